// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLineEdit>

/// A text field that announces activity in it: it posts "TextFieldResignFirstResponderNotification", with
/// itself as the object, whenever the user changes its text and whenever it is asked to select its text.
/// Gaining and losing the keyboard focus stay silent, whatever the notification's name says: listeners
/// rely on hearing of entries while they are made, not when they are over.
///
/// A layout file names the class to have one made; see textentry::registerWithLayoutLoader().
class PDETextField13_v400_ : public QLineEdit {
    Q_OBJECT

public:
    /// The name of the notification that is posted when the field loses the focus.
    static inline const QString resignFirstResponderNotification =
        QStringLiteral("TextFieldResignFirstResponderNotification");

    explicit PDETextField13_v400_(QWidget *parent = nullptr);

    /// Posts the notification, unless the activity is about the focus.
    void sendFirstResponderNotification(bool isFocusActivity);

    /// Asks for the keyboard focus; whether the field has got it in its window.
    bool becomeFirstResponder();
    /// Gives up the keyboard focus; whether the field is now without it.
    bool resignFirstResponder();

    /// Posts the notification and selects nothing: the entry is whole at any time, and a selection would
    /// have the next key wipe it out.
    void selectText(QObject *sender);

    /// The user has changed the text.
    void textDidChange();
    /// The user has finished editing: the field loses the focus.
    void textDidEndEditing();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};
