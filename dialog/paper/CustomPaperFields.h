// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/printer/PpdFile.h>

#include <QWidget>

namespace dialog {
inline namespace widgets {
class LengthField;
} // namespace widgets
} // namespace dialog

namespace dialog {
inline namespace paper {

/// Width and length of a paper of free size, within what the printer takes.
class CustomPaperFields : public QWidget {
    Q_OBJECT

public:
    CustomPaperFields(const host::PpdCustomLimits &limits, QWidget *parent);

    /// The size as entered, in points.
    QSizeF size() const;
    /// Shows the size, in points, brought within the limits; quietly.
    void showSize(const QSizeF &points);
    /// Where the Tab key leaves the fields.
    QWidget *lastField() const;

Q_SIGNALS:
    /// The user entered another size.
    void edited();

private:
    LengthField *m_width;
    LengthField *m_length;
};

} // namespace paper
} // namespace dialog
