// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/printer/PpdOptions.h>

#include <QWidget>

class QFormLayout;
class QLabel;

namespace dialog {
inline namespace options {

/// A field for each parameter of a free choice. Numbers out of their limits cannot be entered; a text that is
/// still too short is told in words, and counts from when it is long enough.
class FreeChoiceFields : public QWidget {
    Q_OBJECT

public:
    FreeChoiceFields(std::vector<host::PpdParameter> parameters, QWidget *parent);

    /// Shows these values, quietly. The same parameters as at first.
    void showValues(const std::vector<host::PpdParameter> &parameters);
    /// Whether every field holds what the job can carry.
    bool isComplete() const;
    /// The value, as a job carries it.
    QByteArray value() const;

Q_SIGNALS:
    /// The user entered something, and the value is complete.
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
