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

bool CutSettings::areKnownTo(const PpdFile &ppd)
{
    return ppd.hasOption(QStringLiteral("KvCutLabel")) ||
           std::any_of(std::begin(switches), std::end(switches),
                       [&](const auto &each) { return ppd.hasOption(QLatin1String(each.first)); });
}

CutSettings CutSettings::fromJob(const PpdFile &ppd, const RecordedChoices &recorded)
{
    CutSettings settings;
    settings.areKnown = areKnownTo(ppd);
    for (const auto &[keyword, field] : switches)
        settings.*field = isOn(ppd, recorded, keyword);
    const std::optional<QString> count = effectiveChoice(ppd, recorded, QStringLiteral("KvCutLabel"));
    settings.labelsPerCut = qMax(1, count.value_or(QString()).toInt());
    return settings;
}

} // namespace strip
} // namespace host
