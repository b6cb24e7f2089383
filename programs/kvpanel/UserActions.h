// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <cstdint>

class QWidget;

/// What a user does with a panel's controls, done with the events that a mouse and a keyboard send.
///
/// A control that a user could not reach, because it is hidden or greyed, is a RequestError, unless the
/// action is forced: its signal is then sent as if the event had come through.
namespace user_actions {

/// Whether controls that a user cannot reach are operated, too.
enum class Force : bool { No, Yes };

/// Clicks the check box of that name.
void click(QWidget *panel, const QString &control, Force force);

/// Replaces the whole text of the field of that name by one edit.
void type(QWidget *panel, const QString &field, const QString &text, Force force);

/// Leaves the stepper of that name at the value, as the user's last step would.
void step(QWidget *panel, const QString &stepper, std::int32_t value, Force force);

/// Opens the pop-up of that name and chooses the item with the tag.
void choosePreset(QWidget *panel, const QString &popUp, std::int32_t tag, Force force);

} // namespace user_actions
