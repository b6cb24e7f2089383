// SPDX-License-Identifier: Apache-2.0
#include "RollPanel.h"

#include <rollcutter/rules/CutEffects.h>

#include <algorithm>

namespace rollcutter {

RollPanel::RollPanel(std::shared_ptr<PDEPluginCallback13_v400_> dialog,
                     std::shared_ptr<const platform::Bundle> bundle)
    : m_dialog(std::move(dialog))
    , m_texts(std::move(bundle))
    , m_rules(PrinterOptions(ppd()))
{
    restoreValuesAndReturnError(nullptr);
}

QWidget *RollPanel::panelView()
{
    if (!m_view) {
        m_view = std::make_unique<RollView>(m_rules, PrinterOptions(ppd()), m_texts,
                                            [this](const PDEChoices &choices) { choose(choices); });
        showChoices();
    }
    return m_view->widget();
}

QString RollPanel::panelName()
{
    return m_texts.text(QStringLiteral("PANEL_NAME"));
}

QString RollPanel::panelKind() const
{
    return QStringLiteral("kvprint.RollCutter");
}

std::optional<QStringList> RollPanel::supportedPPDOptionKeys()
{
    return m_rules.keywords().isEmpty() ? std::nullopt : std::optional(m_rules.keywords());
}

void RollPanel::willShow()
{
    restoreValuesAndReturnError(nullptr);
}

void RollPanel::PPDOptionKeyValueDidChange(const std::optional<QString> &key,
                                           const std::optional<QString> &choice)
{
    if (key && choice && m_rules.keywords().contains(*key))
        restoreValuesAndReturnError(nullptr);
}

bool RollPanel::restoreValuesAndReturnError(QString *)
{
    m_choices.clear();
    const PrinterOptions marks(ppd());
    for (const QString &keyword : m_rules.keywords()) {
        if (const std::optional<QString> choice = marks.current(keyword))
            m_choices.emplace_back(keyword, *choice);
    }
    showChoices();
    return true;
}

bool RollPanel::saveValuesAndReturnError(QString *)
{
    const PDEChoices saved = m_choices;
    for (const auto &[keyword, choice] : saved)
        m_dialog->willChangePPDOptionKeyValue(keyword, choice);
    return true;
}

PDEStripEffects RollPanel::stripEffects(const PDEChoices &choices, std::span<const PDELabel> labels) const
{
    const PrinterOptions options(ppd(), choices);
    PDEStripEffects effects = cutEffects(m_rules.groups(), options, labels);
    if (const std::optional<QString> key = m_rules.stripText(options))
        effects.cuttingText = m_texts.text(*key);
    return effects;
}

bool RollPanel::canChoose(const QString &keyword, const QString &choice) const
{
    const PrinterOptions options(ppd());
    const std::vector<OptionChoice> listed = options.choices(keyword);
    if (std::ranges::find(listed, choice, &OptionChoice::name) != listed.end())
        return true;
    const auto range = options.customRange(keyword);
    const QString custom = QStringLiteral("Custom.");
    bool isNumber = false;
    const int number = choice.startsWith(custom) ? choice.mid(custom.size()).toInt(&isNumber) : 0;
    return range && isNumber && number >= range->first && number <= range->second;
}

void RollPanel::applyUserChoices(const PDEChoices &choices)
{
    PDEChoices possible;
    for (const auto &choice : choices) {
        if (m_rules.keywords().contains(choice.first) && canChoose(choice.first, choice.second))
            possible.push_back(choice);
    }
    choose(possible);
}

void RollPanel::choose(const PDEChoices &choices)
{
    PDEChoices changed;
    for (const auto &[keyword, choice] : choices) {
        const auto shown = std::ranges::find(m_choices, keyword, &PDEChoices::value_type::first);
        if (shown != m_choices.end() && shown->second == choice)
            continue;
        if (shown == m_choices.end())
            m_choices.emplace_back(keyword, choice);
        else
            shown->second = choice;
        changed.emplace_back(keyword, choice);
    }
    showChoices();
    // The dialog reads all choices at each change, so that the list is complete before the first one.
    for (const auto &[keyword, choice] : changed)
        m_dialog->willChangePPDOptionKeyValue(keyword, choice);
}

void RollPanel::showChoices()
{
    if (m_view)
        m_view->showChoices(PrinterOptions(ppd(), m_choices),
                            [this](const QString &keyword) { return reasonForDisabled(keyword); });
}

std::optional<QVariantMap> RollPanel::summaryInfoFor(const PDEChoices &choices) const
{
    const PrinterOptions options(ppd(), choices);
    QVariantMap summary;
    QStringList titles;
    const auto add = [&](QString title, const QString &keyword, const QString &value) {
        // Two options of one PPD can have the same text.
        if (titles.contains(title))
            title += QStringLiteral(" (%1)").arg(keyword);
        titles.append(title);
        summary.insert(title, value);
    };
    for (const CutGroup &group : m_rules.groups()) {
        const auto current = group.current(options);
        const QString unknown = options.current(group.keyword()).value_or(QString());
        add(m_rules.groups().size() == 1 ? m_texts.text(QStringLiteral("CUT_TITLE")) : group.title(),
            group.keyword(), current ? m_texts.settingText(group.settings()[*current]) : unknown);
    }
    for (const RollRow &row : m_rules.rows()) {
        const QString keyword = QString::fromLatin1(row.keyword);
        const std::optional<QString> choice = options.current(keyword);
        if (choice && !m_rules.disabledReason(keyword, options))
            add(options.text(keyword), keyword, PanelTexts::choiceText(options, keyword, *choice));
    }
    summary.insert(PDESummaryDisplayOrderKey, titles);
    return summary;
}

std::optional<QString> RollPanel::reasonForDisabled(const QString &keyword) const
{
    const std::optional<QString> key = m_rules.disabledReason(keyword, PrinterOptions(ppd(), m_choices));
    return key ? std::optional(m_texts.text(*key)) : std::nullopt;
}

QString RollPanel::helpText() const
{
    return m_texts.text(QStringLiteral("HELP"));
}

} // namespace rollcutter
