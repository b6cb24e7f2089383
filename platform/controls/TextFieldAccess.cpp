// SPDX-License-Identifier: Apache-2.0
#include "TextFieldAccess.h"

#include "TextField.h"

#include <QCoreApplication>

#include <algorithm>

namespace platform {
inline namespace controls {

namespace {

QAccessibleInterface *makeTextFieldAccess(const QString &, QObject *object)
{
    auto *const field = qobject_cast<TextField *>(object);
    return field ? new TextFieldAccess(field) : nullptr;
}

void installTextFieldAccess()
{
    QAccessible::installFactory(makeTextFieldAccess);
}

// Runs when the application starts, or immediately if the library is loaded later.
Q_COREAPP_STARTUP_FUNCTION(installTextFieldAccess)

} // namespace

TextFieldAccess::TextFieldAccess(TextField *field)
    : QAccessibleWidget(field, QAccessible::EditableText)
{
}

TextField *TextFieldAccess::field() const
{
    return static_cast<TextField *>(widget());
}

void *TextFieldAccess::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString TextFieldAccess::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? field()->displayText() : QAccessibleWidget::text(kind);
}

void TextFieldAccess::setText(QAccessible::Text kind, const QString &text)
{
    if (kind == QAccessible::Value)
        field()->enterText(text);
    else
        QAccessibleWidget::setText(kind, text);
}

QAccessible::State TextFieldAccess::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    state.readOnly = field()->isReadOnly();
    state.selectableText = true;
    return state;
}

void TextFieldAccess::selection(int index, int *start, int *end) const
{
    const bool selected = index == 0 && field()->hasSelectedText();
    *start = selected ? field()->selectionStart() : 0;
    *end = selected ? field()->selectionEnd() : 0;
}

int TextFieldAccess::selectionCount() const
{
    return field()->hasSelectedText() ? 1 : 0;
}

void TextFieldAccess::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

void TextFieldAccess::removeSelection(int index)
{
    if (index == 0)
        field()->deselect();
}

void TextFieldAccess::setSelection(int index, int start, int end)
{
    if (index == 0)
        field()->setSelection(start, end - start);
}

int TextFieldAccess::cursorPosition() const
{
    return field()->cursorPosition();
}

void TextFieldAccess::setCursorPosition(int position)
{
    field()->setCursorPosition(position);
}

QString TextFieldAccess::text(int start, int end) const
{
    return field()->displayText().mid(start, end - start);
}

int TextFieldAccess::characterCount() const
{
    return static_cast<int>(field()->displayText().size());
}

QRect TextFieldAccess::characterRect(int offset) const
{
    if (offset < 0 || offset >= characterCount())
        return {};
    // The field exposes the position of the cursor only; the position of the character is computed from it.
    const QFontMetrics metrics(field()->font());
    const QString shown = field()->displayText();
    const int fromCursor = metrics.horizontalAdvance(shown.left(offset)) -
                           metrics.horizontalAdvance(shown.left(cursorPosition()));
    QRect rect = field()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    rect.setWidth(metrics.horizontalAdvance(shown.at(offset)));
    return rect.translated(field()->mapToGlobal(QPoint(fromCursor, 0)));
}

int TextFieldAccess::offsetAtPoint(const QPoint &point) const
{
    const QPoint place = field()->mapFromGlobal(point);
    return field()->rect().contains(place) ? field()->offsetAt(place) : -1;
}

void TextFieldAccess::scrollToSubstring(int start, int end)
{
    field()->setCursorPosition(end);
    field()->setCursorPosition(start);
}

QString TextFieldAccess::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

void TextFieldAccess::deleteText(int start, int end)
{
    replaceText(start, end, QString());
}

void TextFieldAccess::insertText(int offset, const QString &text)
{
    replaceText(offset, offset, text);
}

void TextFieldAccess::replaceText(int start, int end, const QString &text)
{
    const int first = std::clamp(start, 0, static_cast<int>(field()->text().size()));
    field()->enterText(field()->text().replace(first, std::max(end - first, 0), text));
}

} // namespace controls
} // namespace platform
