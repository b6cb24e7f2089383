// SPDX-License-Identifier: Apache-2.0
#include "ChoiceControl.h"

#include "CustomValueFields.h"

#include <dialog/widgets/PlainToolTip.h>

#include <QComboBox>
#include <QEvent>
#include <QHash>
#include <QStringListModel>
#include <QVBoxLayout>

#include <algorithm>

namespace dialog {
inline namespace options {

ChoiceControl::ChoiceControl(host::PpdOption option, QWidget *parent)
    : OptionControl(option, parent)
    , m_option(std::move(option))
    , m_list(new QComboBox(this))
{
    // Measuring the text of every choice would take longer than the rest of a large page.
    m_list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_list->setMinimumContentsLength(16);
    m_list->setModel(new QStringListModel(texts(), m_list));
    m_list->setPlaceholderText(tr("not set"));
    m_list->setCurrentIndex(-1);
    // The mouse wheel scrolls the page unless the list has the focus.
    m_list->setFocusPolicy(Qt::StrongFocus);
    m_list->installEventFilter(this);
    m_list->setAccessibleName(m_option.text);
    column()->addWidget(m_list);
    setFocusProxy(m_list);
    connect(m_list, &QComboBox::activated, this, &ChoiceControl::choose);
    connect(m_list, &QComboBox::currentTextChanged, m_list,
            [this](const QString &text) { m_list->setToolTip(plainToolTip(text)); });
}

QStringList ChoiceControl::texts() const
{
    QHash<QString, int> uses;
    for (const host::PpdChoice &choice : m_option.choices)
        ++uses[choice.text];
    QStringList texts;
    for (const host::PpdChoice &choice : m_option.choices) {
        const QString name = QString::fromUtf8(choice.name);
        texts.append(uses[choice.text] == 1 ? choice.text : tr("%1 (%2)").arg(choice.text, name));
    }
    if (m_option.customText)
        texts.append(tr("%1\u2026", "a choice whose value is still to be given").arg(*m_option.customText));
    return texts;
}

QWidget *ChoiceControl::labelled() const
{
    return m_list;
}

void ChoiceControl::choose(int index)
{
    if (index < 0)
        return;
    const auto chosenIndex = static_cast<std::size_t>(index);
    if (chosenIndex == m_option.choices.size()) {
        chooseCustom();
        return;
    }
    m_isWaiting = false;
    showFields(false);
    Q_EMIT chosen(m_option.choices[chosenIndex].name);
}

void ChoiceControl::chooseCustom()
{
    showFields(true);
    m_fields->setFocus();
    m_isWaiting = !m_fields->isComplete();
    if (!m_isWaiting)
        Q_EMIT chosen(m_fields->value());
}

void ChoiceControl::showFields(bool show)
{
    if (show && !m_fields) {
        m_fields = new CustomValueFields(m_parameters, this);
        column()->insertWidget(1, m_fields);
        connect(m_fields, &CustomValueFields::edited, this, [this] {
            m_isWaiting = false;
            Q_EMIT chosen(m_fields->value());
        });
    }
    if (m_fields)
        m_fields->setVisible(show);
}

void ChoiceControl::showMarked(const host::PpdOptions &options)
{
    const std::vector<QByteArray> marked = options.markedChoices(keyword());
    const QByteArray now = marked.empty() ? QByteArray() : marked.front();
    m_parameters = m_option.customText ? options.parameters(keyword()) : std::vector<host::PpdParameter>();
    // Other options may be marked while the user types a value; the marked choice of this option is unchanged
    // then.
    if (m_isWaiting && now == m_marked)
        return;
    m_isWaiting = false;
    m_marked = now;
    const auto found = std::ranges::find(m_option.choices, now, &host::PpdChoice::name);
    const bool isFree = m_option.customText && qstricmp(now.constData(), host::customChoiceName) == 0;
    const bool isKnown = isFree || found != m_option.choices.end();
    m_list->setCurrentIndex(isKnown ? static_cast<int>(found - m_option.choices.begin()) : -1);
    showFields(isFree);
    if (m_fields && isFree)
        m_fields->showValues(m_parameters);
}

QList<QWidget *> ChoiceControl::spoken() const
{
    return {m_list};
}

bool ChoiceControl::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Wheel && !m_list->hasFocus()) {
        event->ignore();
        return true;
    }
    return OptionControl::eventFilter(watched, event);
}

} // namespace options
} // namespace dialog
