// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QCheckBox;
class QWidget;

/// Functions that read and write controls that may not be loaded. A null control reads as visible, disabled
/// and off; writing to it does nothing.
namespace controls {

/// Whether the control itself is hidden, regardless of its parents; false for null.
bool isHidden(const QWidget *control);
/// Whether the control itself is enabled, regardless of its parents.
bool isEnabled(const QWidget *control);
/// Whether the control is loaded and not hidden itself.
bool isShown(const QWidget *control);
/// Returns 1 if the box is checked, otherwise 0.
int state(const QCheckBox *box);

/// Checks the box for every index except 0. Does not emit clicked().
void setState(QCheckBox *box, int index);
/// Enables or disables the control itself.
void setEnabled(QWidget *control, bool enabled);
/// Enables or disables the control if its state differs. Returns whether it was changed.
bool setEnabledIfDifferent(QWidget *control, bool enabled);
/// Sets the title literally: an ampersand is displayed and does not define a mnemonic.
void setTitle(QCheckBox *box, const QString &title);
/// The title as it was set; empty for null.
QString title(const QCheckBox *box);

} // namespace controls
