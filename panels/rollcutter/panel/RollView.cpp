// SPDX-License-Identifier: Apache-2.0
#include "RollView.h"

#include "CutButtons.h"
#include "RollPreview.h"

#include <rollcutter/rules/CutEffects.h>

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace rollcutter {

RollView::RollView(const RollRules &rules, const PrinterOptions &options, const PanelTexts &texts)
    : m_rules(rules)
    , m_texts(texts)
{
    auto *const columns = new QHBoxLayout(this);
    addButtons(columns);
    auto *const column = new QVBoxLayout;
    if (!rules.groups().empty()) {
        m_preview = new RollPreview;
        m_preview->setAccessibleName(m_texts.text(QStringLiteral("PREVIEW_NAME")));
        column->addWidget(m_preview);
    }
    if (!rules.rows().empty()) {
        m_rows = new OptionRows(rules, options);
        connect(m_rows, &OptionRows::chosen, this, &RollView::chosen);
        column->addWidget(m_rows);
    }
    column->addStretch();
    columns->addLayout(column, 1);
}

void RollView::addButtons(QLayout *layout)
{
    const bool isOnly = m_rules.groups().size() == 1;
    for (const CutGroup &group : m_rules.groups()) {
        const QString title = isOnly ? m_texts.text(QStringLiteral("CUT_TITLE")) : group.title();
        auto *const buttons = new CutButtons(group, title, m_texts);
        connect(buttons, &CutButtons::chosen, this, &RollView::chosen);
        layout->addWidget(buttons);
        m_buttons.push_back(buttons);
    }
}

void RollView::showChoices(const PrinterOptions &options, const OptionRows::Reason &reason)
{
    for (std::size_t index = 0; index < m_buttons.size(); ++index)
        m_buttons[index]->showChoices(options, reason(m_rules.groups()[index].keywords().constLast()));
    if (m_rows)
        m_rows->showChoices(options, reason);
    if (!m_preview)
        return;
    m_preview->setEffects(cutEffects(m_rules.groups(), options, RollPreview::labels()),
                          m_rules.isTorn(options));
    QStringList settings;
    for (const CutGroup &group : m_rules.groups()) {
        if (const auto current = group.current(options))
            settings.append(m_texts.settingText(group.settings()[*current]));
    }
    m_preview->setAccessibleDescription(settings.join(QStringLiteral(", ")));
}

} // namespace rollcutter
