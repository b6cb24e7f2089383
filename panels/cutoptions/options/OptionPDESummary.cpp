// SPDX-License-Identifier: Apache-2.0
// The panel's lines in the summary of the dialog.
#include "OptionPDE.h"

#include <ppd/TapeInfo.h>

#include <algorithm>

std::optional<QVariantMap> OptionPDE13_v400_::summaryInfoFor(const PDEChoices &given) const
{
    QVariantMap summary;
    QStringList titles;
    for (const OptionKind kind : summaryOrder) {
        if (!isInSummary(kind, given))
            continue;
        const OptionRow &row = optionRow(kind);
        const QString title = titleFor(row.keyword, row.summaryKey);
        titles.append(title);
        summary.insert(title, summaryValue(kind, given));
    }
    // The display order contains every title, even one without a text: the dialog derives the number of lines
    // from it.
    summary.insert(PDESummaryDisplayOrderKey, titles);
    return summary;
}

std::optional<QString> OptionPDE13_v400_::choiceGiven(OptionKind kind, const PDEChoices &given)
{
    const auto found =
        std::ranges::find(given, QLatin1String(optionRow(kind).keyword), &PDEChoices::value_type::first);
    return found == given.end() ? std::nullopt : std::optional(found->second);
}

int OptionPDE13_v400_::indexGiven(OptionKind kind, const PDEChoices &given) const
{
    const std::optional<QString> choice = choiceGiven(kind, given);
    const PDEChoiceList *const list = choices(kind);
    if (!choice || !list)
        return -1;
    const auto found = std::ranges::find(*list, choice, [](const auto &entry) { return entry->ppdTitle(); });
    return found == list->end() ? -1 : static_cast<int>(found - list->begin());
}

const PDEChoice *OptionPDE13_v400_::heldChoice(OptionKind kind, const PDEChoices &given) const
{
    const int index = indexGiven(kind, given);
    return index < 0 ? selection(kind) : (*choices(kind))[static_cast<std::size_t>(index)].get();
}

bool OptionPDE13_v400_::isInSummary(OptionKind kind, const PDEChoices &given) const
{
    if (!heldChoice(kind, given))
        return false;
    // The cut-every line also describes the automatic cut.
    if (kind == OptionKind::AutoCut)
        return !heldChoice(OptionKind::CutLabel, given);
    if (kind == OptionKind::RemoveBlkSpace)
        return getTapeState() == TapeKindPlain || getTapeState() == TapeKindUnlisted;
    return true;
}

QString OptionPDE13_v400_::summaryValue(OptionKind kind, const PDEChoices &given) const
{
    // The value is that of the box: whether labels are cut at intervals is the choice of the automatic cut.
    const OptionRow &chosen = optionRow(optionRow(kind).edits);
    const int index = indexGiven(chosen.kind, given);
    const PDEChoice &held = *heldChoice(kind, given);
    switch (index < 0 ? indexOfMarkedOption(choices(chosen.kind), QLatin1String(chosen.keyword)) : index) {
    case 0:
        return localized(QStringLiteral("RS_STitle_No"));
    case 1:
        if (kind == OptionKind::CutLabel)
            return held.ppdTitle().value_or(QString()) + u' ' + localized(QStringLiteral("RS_Labels"));
        return localized(QStringLiteral("RS_STitle_Yes"));
    default:
        return held.userTitle().value_or(QString());
    }
}
