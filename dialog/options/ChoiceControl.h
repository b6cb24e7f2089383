// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OptionControl.h"

class QComboBox;

namespace dialog {
inline namespace options {

class CustomValueFields;

/// A combo box with the choices of an option that has one choice at a time. If the option allows custom
/// values, the last entry ("Custom…") shows the fields for one.
class ChoiceControl : public OptionControl {
    Q_OBJECT

public:
    /// Creates the control without a selection; showMarked() makes one.
    ChoiceControl(host::PpdOption option, QWidget *parent);

    QWidget *labelled() const override;
    void showMarked(const host::PpdOptions &options) override;

protected:
    QList<QWidget *> spoken() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QStringList texts() const;
    void choose(int index);
    void chooseCustom();
    void showFields(bool show);

    host::PpdOption m_option;
    std::vector<host::PpdParameter> m_parameters;
    QByteArray m_marked;
    QComboBox *m_list;
    /// Created when a custom value is first shown.
    CustomValueFields *m_fields = nullptr;
    /// The user selected the custom value, but has not yet entered a value that a job can contain.
    bool m_isWaiting = false;
};

} // namespace options
} // namespace dialog
