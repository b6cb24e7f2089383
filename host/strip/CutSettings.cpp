// SPDX-License-Identifier: Apache-2.0
#include "CutSettings.h"

#include <algorithm>
#include <utility>

namespace host {
inline namespace strip {

namespace {

std::optional<QString> effectiveChoice(const PpdFile &ppd, const RecordedChoices &recorded,
                                       const QString &keyword)
{
    if (std::optional<QString> choice = recorded.choice(keyword))
        return choice;
    if (std::optional<QString> choice = ppd.markedChoice(keyword))
        return choice;
    return ppd.defaultChoice(keyword);
}

/// The choices of a switch are listed in the order off, on, whatever their names are. A choice that the PPD
/// does not list is on if its name is "ON".
bool isOn(const PpdFile &ppd, const RecordedChoices &recorded, const char *keyword)
{
    const QString name = QLatin1String(keyword);
    const std::optional<QString> choice = effectiveChoice(ppd, recorded, name);
    if (!choice)
        return false;
    const std::optional<int> index = ppd.choiceIndex(name, *choice);
    return index ? *index == 1 : *choice == QStringLiteral("ON");
}

constexpr const char *countKeyword = "KvCutLabel";

/// The options that are on or off, and the setting of each.
constexpr std::pair<const char *, bool CutSettings::*> switches[] = {
    {"KvAutoTapeCut", &CutSettings::automaticCut},
    {"KvCutAtEnd", &CutSettings::cutAtEnd},
    {"KvHalfCut", &CutSettings::halfCut},
    {"KvChainPrint", &CutSettings::chainPrint},
    {"KvSpecialTape", &CutSettings::specialTape},
    {"KvMirror", &CutSettings::mirror},
    {"KvRemoveBlkSpace", &CutSettings::removeBlank},
    {"KvCutMark", &CutSettings::cutMark},
};

} // namespace

QStringList CutSettings::keywords()
{
    QStringList keywords{QLatin1String(countKeyword)};
    for (const auto &[keyword, field] : switches)
        keywords.append(QLatin1String(keyword));
    return keywords;
}

bool CutSettings::areDefinedBy(const PpdFile &ppd)
{
    return std::ranges::any_of(keywords(), [&](const QString &keyword) { return ppd.hasOption(keyword); });
}

CutSettings CutSettings::fromJob(const PpdFile &ppd, const RecordedChoices &recorded)
{
    CutSettings settings;
    settings.areKnown = areDefinedBy(ppd);
    for (const auto &[keyword, field] : switches)
        settings.*field = isOn(ppd, recorded, keyword);
    const std::optional<QString> count = effectiveChoice(ppd, recorded, QLatin1String(countKeyword));
    settings.labelsPerCut = qMax(1, count.value_or(QString()).toInt());
    return settings;
}

} // namespace strip
} // namespace host
