// SPDX-License-Identifier: Apache-2.0
#include "FormatterAttachment.h"

#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSignalBlocker>

namespace textentry {

FormatterAttachment *FormatterAttachment::attach(QLineEdit *field, std::unique_ptr<PDEFormatter> formatter)
{
    delete of(field);
    return new FormatterAttachment(field, std::move(formatter));
}

FormatterAttachment *FormatterAttachment::of(const QLineEdit *field)
{
    return qobject_cast<FormatterAttachment *>(const_cast<QValidator *>(field->validator()));
}

FormatterAttachment::FormatterAttachment(QLineEdit *field, std::unique_ptr<PDEFormatter> formatter)
    : QValidator(field)
    , m_field(field)
    , m_formatter(std::move(formatter))
    , m_edit(std::make_unique<Edit>())
{
    if (!field->text().isEmpty())
        field->setText(m_formatter->stringForObjectValue(field->text()));
    m_edit->known = FieldState::of(*field);
    field->setValidator(this);
    field->installEventFilter(this);
    connect(field, &QLineEdit::selectionChanged, this, &FormatterAttachment::remember);
    connect(field, &QLineEdit::cursorPositionChanged, this, &FormatterAttachment::remember);
    connect(field, &QLineEdit::textChanged, this, &FormatterAttachment::takeBackUnreverted);
    connect(field, &QLineEdit::textEdited, this, [this] { m_entered = true; });
    connect(field, &QLineEdit::editingFinished, this, &FormatterAttachment::displayEnteredText);
}

QValidator::State FormatterAttachment::validate(QString &text, int &cursor) const
{
    // An edit can be undone, an undone edit can be redone; a text set by the program can neither.
    const bool byProgram = !m_field->isUndoAvailable() || m_field->isRedoAvailable();
    const bool unchanged = text == m_edit->known.text;
    if (!unchanged && !byProgram && !m_edit->unchecked) {
        const FieldState &original = m_edit->original.value_or(m_edit->known);
        m_edit->refusal =
            m_formatter->refusalOf(text, PDETextRange{cursor, 0}, original.text, original.selection());
        if (m_edit->refusal) {
            m_edit->refusedText = text;
            if (!m_delivering)
                m_formatter->announce(*std::exchange(m_edit->refusal, std::nullopt));
            return Invalid;
        }
    }
    m_edit->refusedText.reset();
    m_edit->known.text = text;
    return Acceptable;
}

/// Not the text: a field may tell of its cursor's new place before its new text has been checked.
void FormatterAttachment::remember()
{
    const QString text = std::exchange(m_edit->known, FieldState::of(*m_field)).text;
    m_edit->known.text = text;
}

/// After QLineEdit::redo() with the field's signals blocked, the field believes that it was invalid all
/// along, and does not take the next refused edit back by itself.
void FormatterAttachment::takeBackUnreverted(const QString &text)
{
    if (text == m_edit->refusedText)
        restore(FieldState(m_edit->known));
    remember();
}

void FormatterAttachment::restore(const FieldState &state)
{
    const QSignalBlocker silent(m_field);
    const QScopedValueRollback unchecked(m_edit->unchecked, true);
    if (m_field->text() != state.text)
        m_field->setText(state.text);
    state.restoreSelection(m_field);
    remember();
}

/// At the end of an entry the field shows the value that was entered through the format string.
void FormatterAttachment::displayEnteredText()
{
    if (!std::exchange(m_entered, false) || m_field->text().isEmpty())
        return;
    std::optional<QString> display;
    m_formatter->getObjectValue(&display, m_field->text(), nullptr);
    if (display && *display != m_field->text())
        m_field->setText(*display);
}

} // namespace textentry
