// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "FieldState.h"
#include "PDEFormatter.h"

#include <QPointer>
#include <QValidator>

#include <memory>
#include <optional>

class QContextMenuEvent;
class QInputMethodEvent;
class QKeyEvent;
class QLineEdit;
class QMenu;

namespace textentry {

/// Puts a formatter to work on a text field. An edit that the formatter refuses leaves text, cursor and
/// selection as they were, whichever way it came: typed, pasted, dropped, composed with an input method,
/// or brought back by undo or redo. Changes by the program, QLineEdit::setText() and the undo() and
/// redo() slots, are not checked.
///
/// It is the field's validator, since a QLineEdit takes an edit that its validator finds invalid back
/// together with its undo history. A validator only sees texts; what else an edit is made of (the cursor
/// and selection before, where a drop or a composition began) it learns from the field's events, which it
/// filters. Undo, which no validator can refuse, is tried with the field's signals blocked and taken
/// back. Observers of the field's signals never see a refused text.
class FormatterAttachment : public QValidator {
    Q_OBJECT

public:
    /// Attaches the formatter to the field, which owns the attachment; an earlier one is replaced. A text
    /// that the field holds already is displayed through the formatter's format string.
    static FormatterAttachment *attach(QLineEdit *field, std::unique_ptr<PDEFormatter> formatter);

    /// The field's attachment, or null.
    static FormatterAttachment *of(const QLineEdit *field);

    /// The formatter, whose settings may be changed at any time.
    PDEFormatter &formatter() { return *m_formatter; }

    /// Asked by the field after each change, before anybody else sees it.
    State validate(QString &text, int &cursor) const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Slot = void (QLineEdit::*)();

    /// The edit that is going on. A validator's check is const, and this is what it leaves behind.
    struct Edit {
        /// What the field showed when it was last at rest.
        FieldState known;
        /// What the edit is held against, where that is not what is known.
        std::optional<FieldState> original;
        std::optional<PDEFormatter::Refusal> refusal;
        /// The refused text, until the field is known to have restored the text before it.
        std::optional<QString> refusedText;
        bool unchecked = false;
    };

    FormatterAttachment(QLineEdit *field, std::unique_ptr<PDEFormatter> formatter);

    bool handleEdit(QEvent *event);
    void deliver(QEvent *event, const FieldState &before);
    bool handleKey(QKeyEvent *event);
    bool handleInputMethod(QInputMethodEvent *event);
    bool endGesture(QEvent *event);
    void takeBackComposition(const QInputMethodEvent &event, const FieldState &before);
    void restore(const FieldState &state);

    void stepHistory(Slot step, Slot back);
    void announceHistoryStep(const FieldState &before, const FieldState &after);
    void showContextMenu(const QContextMenuEvent *event);

    void remember();
    void takeBackUnreverted(const QString &text);
    void displayEnteredText();

    QLineEdit *const m_field;
    const std::unique_ptr<PDEFormatter> m_formatter;
    const std::unique_ptr<Edit> m_edit;
    /// The field before a composition or a drop or middle-click in progress.
    std::optional<FieldState> m_composition;
    std::optional<FieldState> m_gesture;
    bool m_delivering = false;
    bool m_entered = false;
};

} // namespace textentry
