// SPDX-License-Identifier: Apache-2.0
#include "RollRules.h"

#include <algorithm>

namespace rollcutter {

RollRules::RollRules(const PrinterOptions &options)
    : m_groups(CutGroup::groupsOf(options))
{
    for (const CutGroup &group : m_groups)
        m_keywords += group.keywords();
    for (const RollRow &row : rollRows)
        addRow(row, options);
    const bool isRoll = std::ranges::any_of(m_rows, [](const RollRow &row) { return !row.isCommon; });
    if (m_groups.empty() && !isRoll) {
        m_rows.clear();
        m_keywords.clear();
    }
}

void RollRules::addRow(const RollRow &row, const PrinterOptions &options)
{
    const QString keyword = QString::fromLatin1(row.keyword);
    if (!options.has(keyword) || m_keywords.contains(keyword) || (row.isCommon && options.hasCustom(keyword)))
        return;
    m_rows.push_back(row);
    m_keywords.append(keyword);
}

CutStyle RollRules::styleOf(const CutGroup &group, const PrinterOptions &options)
{
    const auto current = group.current(options);
    return current ? group.settings()[*current].style : CutStyle::Other;
}

bool RollRules::isCut(const PrinterOptions &options) const
{
    return std::ranges::any_of(m_groups, [&](const CutGroup &group) {
        const CutPlace place = cutStyleRow(styleOf(group, options)).place;
        return place != CutPlace::Nowhere && place != CutPlace::NotKnown;
    });
}

bool RollRules::isTorn(const PrinterOptions &options) const
{
    return !isCut(options) && std::ranges::any_of(m_groups, [&](const CutGroup &group) {
        return cutStyleRow(styleOf(group, options)).isTorn;
    });
}

std::optional<QString> RollRules::stripText(const PrinterOptions &options) const
{
    if (isCut(options))
        return std::nullopt;
    for (const CutGroup &group : m_groups) {
        if (const char *const key = cutStyleRow(styleOf(group, options)).stripKey)
            return QString::fromLatin1(key);
    }
    return std::nullopt;
}

std::optional<QString> RollRules::disabledReason(const QString &keyword, const PrinterOptions &options) const
{
    for (const CutGroup &group : m_groups) {
        const bool isInterval = keyword != group.keyword() && group.keywords().contains(keyword);
        if (isInterval && styleOf(group, options) != CutStyle::EveryFew)
            return QStringLiteral("REASON_INTERVAL");
    }
    const auto row = std::ranges::find_if(
        m_rows, [&](const RollRow &each) { return keyword == QLatin1String(each.keyword); });
    if (row == m_rows.end())
        return std::nullopt;
    if (!options.isSent(keyword))
        return QStringLiteral("REASON_NOT_SENT");
    if (row->rule == RowRule::OnlyTearing && !m_groups.empty() && !isTorn(options))
        return QStringLiteral("REASON_TEAR_INTERVAL");
    if (row->rule == RowRule::NotCutting && isCut(options))
        return QStringLiteral("REASON_TEAR_POSITION");
    return std::nullopt;
}

} // namespace rollcutter
