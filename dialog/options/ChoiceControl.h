// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OptionControl.h"

class QComboBox;

namespace dialog {
inline namespace options {

class FreeChoiceFields;

/// A list to pick one choice from; "Custom…" in it opens the fields of a free choice.
class ChoiceControl : public OptionControl {
    Q_OBJECT

public:
    ChoiceControl(host::PpdOption option, QWidget *parent);

    QWidget *labelled() const override;
    void showMarked(const host::PpdOptions &options) override;

protected:
    QList<QWidget *> spoken() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QStringList texts() const;
    void choose(int index);
    void chooseFree();
    void showFields(bool show);

    host::PpdOption m_option;
    std::vector<host::PpdParameter> m_parameters;
    QByteArray m_marked;
    QComboBox *m_list;
    /// Made when a free choice is first shown.
    FreeChoiceFields *m_fields = nullptr;
    /// The user asked for a free choice, and a value that the job can carry is still missing.
    bool m_isWaiting = false;
};

} // namespace options
} // namespace dialog
