// SPDX-License-Identifier: Apache-2.0
#include "RollView.h"

#include "CutButtons.h"
#include "RollPreview.h"

#include <rollcutter/rules/CutEffects.h>

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace rollcutter {

RollView::RollView(const RollRules &rules, const PrinterOptions &options, const PanelTexts &texts,
                   const ChoicesHook &chosen)
    : m_rules(rules)
    , m_texts(texts)
    , m_widget(std::make_unique<QWidget>())
{
    auto *const columns = new QHBoxLayout(m_widget.get());
    addButtons(columns, chosen);
    auto *const column = new QVBoxLayout;
    if (!rules.groups().empty()) {
        m_preview = new RollPreview;
        m_preview->setObjectName(QStringLiteral("preview"));
        m_preview->setAccessibleName(m_texts.text(QStringLiteral("PREVIEW_NAME")));
        column->addWidget(m_preview);
    }
    if (!rules.rows().empty()) {
        m_rows = std::make_unique<OptionRows>(rules, options, chosen);
        column->addLayout(m_rows->layout());
    }
    column->addStretch();
    columns->addLayout(column, 1);
}

void RollView::addButtons(QLayout *layout, const ChoicesHook &chosen)
{
    const bool isOnly = m_rules.groups().size() == 1;
    for (const CutGroup &group : m_rules.groups()) {
        const QString title = isOnly ? m_texts.text(QStringLiteral("CUT_TITLE")) : group.title();
        m_buttons.push_back(std::make_unique<CutButtons>(group, title, m_texts, chosen));
        layout->addWidget(m_buttons.back()->box());
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
