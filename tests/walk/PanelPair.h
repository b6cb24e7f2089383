// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <options/OptionPDE.h>
#include <tests/model/Panel.h>
#include <tests/support/TestDialog.h>

#include <array>
#include <memory>
#include <optional>

namespace walk {

/// The panel itself and its model, both loaded with every row and every preset, whose controls are then put
/// into any state at once: for rules that are to hold in all of them, more than a driver could go through.
class PanelPair {
public:
    /// A pair for the family, without a paper.
    explicit PanelPair(bool isDZ);

    /// A paper that the printer lists; absent for no paper at all.
    void setPaper(const std::optional<QString> &name);

    // One control, in both.
    void setHidden(model::Row row, bool hidden);
    void setState(model::Row row, bool on);
    void setEnabled(model::Row row, bool enabled);
    void setCountEnabled(bool field, bool stepper, bool wordGrey);
    /// Chooses the preset as the pop-up does.
    void choosePreset(int tag);

    /// Whether states and enabled flags of all controls, and the word's colour, agree.
    bool agrees() const;
    /// The controls of both, for a failed comparison.
    std::string description() const;

    /// The name of the picture that the real preview would draw; empty without one.
    QString picture() const;

    OptionPDE13_v400_ &real() { return *m_real; }
    model::Panel &expected() { return *m_model; }

private:
    QCheckBox *box(model::Row row) const { return m_boxes[static_cast<std::size_t>(row)]; }

    std::shared_ptr<test_support::TestDialog> m_dialog;
    std::shared_ptr<OptionPDE13_v400_> m_real;
    std::array<QCheckBox *, 9> m_boxes = {};
    std::unique_ptr<model::Dialog> m_modelDialog;
    std::unique_ptr<model::Panel> m_model;
};

/// The papers that rules distinguish, and some that they must not distinguish: names listed by the printer,
/// and none.
inline const std::array<std::optional<QString>, 6> distinctPapers = {"FL01", "24mm", "DC01",
                                                                     "AV01", "HS24", std::nullopt};

} // namespace walk
