// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/printer/PpdOptions.h>

#include <QWidget>

class QFormLayout;
class QLabel;

namespace dialog {
inline namespace options {

/// A field for each parameter of a custom value. Numbers outside their limits cannot be entered. While a text
/// is shorter than its minimum, a message reports it and edited() is not emitted.
class CustomValueFields : public QWidget {
    Q_OBJECT

public:
    /// Creates the fields and shows the current values of the parameters.
    CustomValueFields(std::vector<host::PpdParameter> parameters, QWidget *parent);

    /// Shows the values of the same parameters as in the constructor, without emitting a signal. Does nothing
    /// while the user edits an incomplete value.
    void showValues(const std::vector<host::PpdParameter> &parameters);
    /// Returns whether a job can contain the values of all fields.
    bool isComplete() const;
    /// Returns the custom value, as a job contains it.
    QByteArray value() const;

Q_SIGNALS:
    /// Emitted when the user has edited a field and the value is complete.
    void edited();

private:
    void addField(QFormLayout *form, std::size_t index);
    QWidget *makeNumber(std::size_t index);
    QWidget *makeText(std::size_t index);
    void changed();

    std::vector<host::PpdParameter> m_parameters;
    std::vector<QWidget *> m_fields;
    QLabel *m_missing;
};

} // namespace options
} // namespace dialog
