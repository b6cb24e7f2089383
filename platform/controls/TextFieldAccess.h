// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessibleWidget>

namespace platform {
inline namespace controls {

class TextField;

/// The accessible interface of a text field. An edit counts as an edit of the user: Qt's own interface sets
/// the text without emitting textEdited(), and the panel would not receive the text.
class TextFieldAccess : public QAccessibleWidget,
                        public QAccessibleTextInterface,
                        public QAccessibleEditableTextInterface {
public:
    /// Qt creates an object for each TextField that assistive technology queries; the factory is registered
    /// when the application starts.
    explicit TextFieldAccess(TextField *field);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    QAccessible::State state() const override;

    /// Reimplements QAccessibleTextInterface. Offsets count the UTF-16 units of the displayed text.
    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int *start, int *end) const override;

    /// Reimplements QAccessibleEditableTextInterface. Offsets are limited to the length of the text.
    void deleteText(int start, int end) override;
    void insertText(int offset, const QString &text) override;
    void replaceText(int start, int end, const QString &text) override;

private:
    TextField *field() const;
};

} // namespace controls
} // namespace platform
