// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QCheckBox;
class QWidget;

/// Reading and writing controls that may not be loaded. A control that is not there reads as visible,
/// disabled and off, and writing to it does nothing.
namespace controls {

bool isHidden(const QWidget *control);
/// The control's own enabled flag, whatever its surroundings are.
bool isEnabled(const QWidget *control);
/// Whether the control is there and not hidden itself.
bool isShown(const QWidget *control);
/// 1 when the box is ticked, else 0.
int state(const QCheckBox *box);

/// Ticks the box for every index but 0, without telling anybody.
void setState(QCheckBox *box, int index);
void setEnabled(QWidget *control, bool enabled);
/// Sets the enabled flag only where it differs. Answers whether it did.
bool setEnabledIfDifferent(QWidget *control, bool enabled);
/// Sets the title as it is written: an ampersand is a letter, not the mark of a shortcut.
void setTitle(QCheckBox *box, const QString &title);
QString title(const QCheckBox *box);

} // namespace controls
