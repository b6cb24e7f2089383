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

/// Fields for the width and length of a custom paper size, within the printer's limits.
class CustomPaperFields : public QWidget {
    Q_OBJECT

public:
    /// A dimension whose limits are equal is shown read-only.
    CustomPaperFields(const host::PpdCustomLimits &limits, QWidget *parent);

    /// Returns the entered size in points.
    QSizeF size() const;
    /// Shows the size, given in points and limited to the range, without emitting a signal.
    void showSize(const QSizeF &points);
    /// Returns the last field in the tab order.
    QWidget *lastField() const;

Q_SIGNALS:
    /// Emitted when the user has entered another size.
    void edited();

private:
    LengthField *m_width;
    LengthField *m_length;
};

} // namespace paper
} // namespace dialog
