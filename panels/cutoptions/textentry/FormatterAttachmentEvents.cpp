// SPDX-License-Identifier: Apache-2.0
// The user's edits of a field with a formatter, event by event.
#include "FormatterAttachment.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>

namespace textentry {

namespace {

bool isMiddleButton(const QEvent *event)
{
    return static_cast<const QMouseEvent *>(event)->button() == Qt::MiddleButton;
}

/// What undo or redo has put in: the part of the new text between what both texts begin and end with.
PDETextRange changedRange(const QString &before, const QString &after)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype start = 0;
    while (start < shorter && before[start] == after[start])
        ++start;
    qsizetype tail = 0;
    while (tail < shorter - start && before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;
    return {start, after.size() - tail - start};
}

/// QLineEdit::redo() can leave the cursor behind the text's end, or a selection that begins before the text,
/// and both spoil the edits that follow.
void mendSelection(QLineEdit *field)
{
    if (field->selectionStart() < 0)
        field->deselect();
    if (field->cursorPosition() > field->text().size())
        field->end(false);
}

} // namespace

bool FormatterAttachment::eventFilter(QObject *watched, QEvent *event)
{
    // At its end the field sends events that it does not handle as a text field any more.
    const auto *const field = qobject_cast<QLineEdit *>(watched);
    return field && !m_delivering && !field->isReadOnly() && handleEdit(event);
}

bool FormatterAttachment::handleEdit(QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return handleKey(static_cast<QKeyEvent *>(event));
    case QEvent::InputMethod:
        return handleInputMethod(static_cast<QInputMethodEvent *>(event));
    case QEvent::DragEnter:
        m_gesture = FieldState::of(*m_field);
        return false;
    case QEvent::MouseButtonPress:
        // A middle click pastes when the button is let go, but moves the cursor when it is pressed.
        m_gesture = isMiddleButton(event) ? std::optional(FieldState::of(*m_field)) : std::nullopt;
        return false;
    case QEvent::MouseButtonRelease:
        return isMiddleButton(event) && endGesture(event);
    case QEvent::Drop:
        return endGesture(event);
    case QEvent::ContextMenu:
        if (m_field->contextMenuPolicy() != Qt::DefaultContextMenu)
            return false;
        showContextMenu(static_cast<QContextMenuEvent *>(event));
        return true;
    default:
        return false;
    }
}

/// Lets the field handle the event. If it made an edit that was refused, restores the field and then reports
/// the refusal, so that observers find the field unchanged.
void FormatterAttachment::deliver(QEvent *event, const FieldState &before)
{
    const QPointer<FormatterAttachment> alive(this);
    remember();
    m_delivering = true;
    m_edit->refusal.reset();
    static_cast<QObject *>(m_field)->event(event);
    if (!alive)
        return;
    m_delivering = false;
    const std::optional<PDEFormatter::Refusal> refusal = std::exchange(m_edit->refusal, std::nullopt);
    if (!refusal)
        return;
    if (event->type() == QEvent::Drop) {
        // The text was not dropped here, so its source must not remove it.
        static_cast<QDropEvent *>(event)->setDropAction(Qt::IgnoreAction);
        event->ignore();
    }
    if (event->type() == QEvent::InputMethod)
        takeBackComposition(*static_cast<QInputMethodEvent *>(event), before);
    if (m_field->text() == before.text)
        before.restoreSelection(m_field);
    m_formatter->announce(*refusal);
}

bool FormatterAttachment::handleKey(QKeyEvent *event)
{
    const bool isUndo = event->matches(QKeySequence::Undo);
    if (!isUndo && !event->matches(QKeySequence::Redo)) {
        deliver(event, FieldState::of(*m_field));
        return true;
    }
    if (isUndo)
        stepHistory(&QLineEdit::undo, &QLineEdit::redo);
    else
        stepHistory(&QLineEdit::redo, &QLineEdit::undo);
    event->accept();
    return true;
}

/// A drop or a middle click: the edit is held against the place where it happens, but what the user had
/// before pointing there is what comes back.
bool FormatterAttachment::endGesture(QEvent *event)
{
    const FieldState before = m_gesture.value_or(FieldState::of(*m_field));
    m_gesture.reset();
    deliver(event, before);
    return true;
}

/// A composition is one edit, from its first unfinished character, which takes the selected text out, to
/// the text that is committed.
bool FormatterAttachment::handleInputMethod(QInputMethodEvent *event)
{
    const FieldState now = FieldState::of(*m_field);
    const FieldState before = m_composition.value_or(now);
    FieldState original = before;
    if (event->replacementLength() > 0) {
        original.cursor =
            std::max(0, static_cast<int>(before.selection().location) + event->replacementStart());
        original.selectionLength = 0;
    }
    m_edit->original = original;
    if (!event->preeditString().isEmpty())
        m_composition = before;
    const QPointer<FormatterAttachment> alive(this);
    deliver(event, before);
    if (!alive)
        return true;
    m_edit->original.reset();
    if (event->preeditString().isEmpty())
        m_composition.reset();
    else if (m_composition && !event->commitString().isEmpty())
        m_composition = FieldState::of(*m_field); // a part is committed, the next one begins here
    return true;
}

/// Ends the composition, of which a part may be unfinished, and brings back the selected text that it has
/// replaced: by undo, since setting the text would lose the undo history.
void FormatterAttachment::takeBackComposition(const QInputMethodEvent &event, const FieldState &before)
{
    const FieldState removed = FieldState::of(*m_field);
    {
        const QSignalBlocker silent(m_field);
        const QScopedValueRollback unchecked(m_edit->unchecked, true);
        if (!event.preeditString().isEmpty()) {
            m_field->deselect(); // an input method's event replaces what is selected
            QInputMethodEvent ended;
            const QScopedValueRollback delivering(m_delivering, true);
            static_cast<QObject *>(m_field)->event(&ended);
            QGuiApplication::inputMethod()->reset();
        }
        if (removed.text != before.text)
            m_field->undo();
    }
    m_composition.reset();
    restore(before);
    if (removed.text != before.text)
        announceHistoryStep(removed, before);
}

/// Performs one step of the undo history and reverts it if the formatter refuses the resulting text.
void FormatterAttachment::stepHistory(Slot step, Slot back)
{
    const FieldState before = FieldState::of(*m_field);
    std::optional<PDEFormatter::Refusal> refusal;
    FieldState after;
    {
        const QSignalBlocker silent(m_field);
        const QScopedValueRollback unchecked(m_edit->unchecked, true);
        (m_field->*step)();
        mendSelection(m_field);
        after = FieldState::of(*m_field);
        const auto [start, length] = changedRange(before.text, after.text);
        refusal =
            m_formatter->refusalOf(after.text, PDETextRange{start + length, 0}, before.text, {start, 0});
        if (refusal)
            (m_field->*back)();
    }
    if (!refusal) {
        announceHistoryStep(before, after);
        return;
    }
    restore(before);
    m_formatter->announce(*refusal);
}

/// Tells the field's observers of a step that was made with its signals blocked.
void FormatterAttachment::announceHistoryStep(const FieldState &before, const FieldState &after)
{
    const QPointer<FormatterAttachment> alive(this);
    m_edit->known = after;
    if (after.text != before.text) {
        Q_EMIT m_field->textEdited(after.text);
        if (alive)
            Q_EMIT m_field->textChanged(after.text);
    }
    if (alive &&
        (after.selectionStart != before.selectionStart || after.selectionLength != before.selectionLength))
        Q_EMIT m_field->selectionChanged();
    if (alive && after.cursor != before.cursor)
        Q_EMIT m_field->cursorPositionChanged(before.cursor, after.cursor);
}

/// The field's own menu, with its undo and redo led through the formatter.
void FormatterAttachment::showContextMenu(const QContextMenuEvent *event)
{
    QMenu *const menu = m_field->createStandardContextMenu();
    if (!menu)
        return;
    for (QAction *const action : menu->actions()) {
        if (disconnect(action, SIGNAL(triggered()), m_field, SLOT(undo())))
            connect(action, &QAction::triggered, this,
                    [this] { stepHistory(&QLineEdit::undo, &QLineEdit::redo); });
        else if (disconnect(action, SIGNAL(triggered()), m_field, SLOT(redo())))
            connect(action, &QAction::triggered, this,
                    [this] { stepHistory(&QLineEdit::redo, &QLineEdit::undo); });
    }
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
}

} // namespace textentry
