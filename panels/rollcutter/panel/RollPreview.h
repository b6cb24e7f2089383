// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <protocol/PDELabelStrip.h>

#include <QWidget>

#include <vector>

namespace rollcutter {

/// A picture of a short job on the roll: numbered labels, scissors where the printer cuts, dashes where the
/// user tears, and question marks if the cuts are not known.
class RollPreview : public QWidget {
public:
    /// A picture without cuts; see setEffects().
    RollPreview();

    /// The job of the picture: two copies of a document with three labels.
    static std::vector<PDELabel> labels();

    /// Shows the effects on labels(). isTorn: the user tears the labels off.
    void setEffects(const PDEStripEffects &effects, bool isTorn);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    enum class End { Nothing, Cut, Tear, NotKnown };

    End endAfter(std::size_t label) const;

    PDEStripEffects m_effects;
    bool m_isTorn = false;
};

} // namespace rollcutter
