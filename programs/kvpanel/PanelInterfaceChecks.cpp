// SPDX-License-Identifier: Apache-2.0
// The checks of the optional interfaces.
#include "PanelChecks.h"
#include "PanelTrial.h"
#include "SummaryCheck.h"

#include <host/panels/PanelSettings.h>
#include <protocol/PDEControlReasons.h>
#include <protocol/PDELabelStrip.h>
#include <protocol/PDEPanelInspection.h>
#include <protocol/PDEUserChoices.h>

#include <QJsonObject>

#include <cmath>

namespace panel_checks {

namespace {

/// The panel's optional interface; null if it does not have it.
template<typename Interface>
Interface *interfaceOf(PanelTrial &trial)
{
    return dynamic_cast<Interface *>(&trial.panel());
}

/// The labels of two documents of which two copies are printed, limited to a number.
std::vector<PDELabel> someLabels(std::size_t count)
{
    std::vector<PDELabel> labels(count);
    for (std::size_t index = 0; index < count; ++index)
        labels[index] = {index % 2 == 1, index % 4 == 3};
    return labels;
}

bool isSame(const PDEStripEffects &first, const PDEStripEffects &second)
{
    return first.cutting == second.cutting && first.ends == second.ends && first.mirror == second.mirror &&
           first.removeBlank == second.removeBlank && first.leadingMargin == second.leadingMargin &&
           first.cuttingText == second.cuttingText;
}

void checkEffects(PanelTrial &trial, const PDELabelStrip_v1 &strip, const PDEChoices &choices,
                  const std::vector<PDELabel> &labels)
{
    PDEStripEffects first;
    PDEStripEffects second;
    if (!trial.call(asks, [&] { first = strip.stripEffects(choices, labels); }) ||
        !trial.call(asks, [&] { second = strip.stripEffects(choices, labels); }))
        return;
    const std::size_t expected = first.cutting == PDECutting::Known ? labels.size() : 0;
    if (first.ends.size() != expected)
        trial.report(QStringLiteral("one end for each label if the cutting is known, otherwise none"),
                     QStringLiteral("there are %1 for %2 labels").arg(first.ends.size()).arg(labels.size()));
    if (!isSame(first, second))
        trial.report(QStringLiteral("the same effects for the same choices"),
                     QStringLiteral("they differ at the second call with %1").arg(choicesText(choices)));
    const double margin = first.leadingMargin.value_or(0.0);
    if (!std::isfinite(margin) || margin < 0)
        trial.report(QStringLiteral("a leading margin of 0 points or more"),
                     QStringLiteral("it is %1").arg(margin));
}

PDEChoices shownBy(PanelTrial &trial, const PDEUserChoices_v1 &controls)
{
    PDEChoices shown;
    trial.call(asks, [&] { shown = controls.shownChoices(); });
    return shown;
}

/// Marks the choice and lets the panel restore. Returns whether its control then shows the choice.
bool canShow(PanelTrial &trial, const PDEUserChoices_v1 &controls, const QString &keyword,
             const QString &choice)
{
    trial.mark(keyword, choice);
    trial.restore();
    return host::findChoice(shownBy(trial, controls), keyword) == choice;
}

/// Applies each choice that the option's control can show while it shows another one.
void applyEach(PanelTrial &trial, PDEUserChoices_v1 &controls, const QString &keyword)
{
    QStringList showable;
    for (const QString &choice : trial.choicesOf(keyword)) {
        if (canShow(trial, controls, keyword, choice))
            showable.append(choice);
    }
    for (qsizetype index = 0; showable.size() > 1 && index < showable.size(); ++index) {
        const QString &choice = showable[index];
        const QString &other = showable[(index + 1) % showable.size()];
        if (!canShow(trial, controls, keyword, other))
            continue;
        const auto requested = trial.call(notifiesQuietly, [&] {
            controls.applyUserChoices({{keyword, choice}});
        });
        if (!requested)
            return;
        if (host::findChoice(shownBy(trial, controls), keyword) != choice)
            trial.report(QStringLiteral("that the control shows the choice"),
                         QStringLiteral("it does not show %1=%2").arg(keyword, choice));
        else if (host::findChoice(*requested, keyword) != choice)
            trial.report(QStringLiteral("that the dialog receives the choice"),
                         QStringLiteral("it does not receive %1=%2").arg(keyword, choice));
    }
}

} // namespace

void checkShownChoices(PanelTrial &trial)
{
    const auto *const controls = interfaceOf<PDEUserChoices_v1>(trial);
    if (!controls)
        return;
    const PDEChoices shown = shownBy(trial, *controls);
    if (shown != shownBy(trial, *controls))
        trial.report(QStringLiteral("the same choices each time"), QStringLiteral("they change"));
    for (const auto &[keyword, choice] : shown) {
        if (!trial.handled().contains(keyword))
            trial.report(QStringLiteral("options in supportedPPDOptionKeys()"),
                         QStringLiteral("it returns \"%1\"").arg(keyword));
        else if (!trial.hasChoice(keyword, choice))
            trial.report(QStringLiteral("choices of the PPD"),
                         QStringLiteral("it returns \"%1\" for \"%2\"").arg(choice, keyword));
    }
}

void checkCombinations(PanelTrial &trial)
{
    const auto *const controls = interfaceOf<PDEUserChoices_v1>(trial);
    int chosen = 0;
    if (controls)
        trial.call(asks, [&] { chosen = controls->combinationsChosen(); });
    if (chosen != 0)
        trial.report(QStringLiteral("0 before the user chooses a combination"),
                     QStringLiteral("it returns %1").arg(chosen));
}

void checkAppliedChoices(PanelTrial &trial)
{
    auto *const controls = interfaceOf<PDEUserChoices_v1>(trial);
    if (!controls)
        return;
    const host::PpdFile &ppd = trial.dialog().ppd();
    for (const QString &keyword : trial.handled()) {
        const std::optional<QString> before = ppd.markedChoice(keyword);
        applyEach(trial, *controls, keyword);
        if (before)
            trial.mark(keyword, *before);
    }
    trial.restore();
    trial.call(notifiesQuietly, [&] {
        controls->applyUserChoices({{QStringLiteral("KvNoSuchOption"), QStringLiteral("ON")}});
    });
}

void checkChoiceSummary(PanelTrial &trial)
{
    const auto *const exact = interfaceOf<PDEChoiceSummary_v1>(trial);
    if (!exact)
        return;
    const PDEChoices choices = trial.save().value_or(PDEChoices());
    std::optional<QVariantMap> first;
    std::optional<QVariantMap> second;
    trial.call(asks, [&] { first = exact->summaryInfoFor(choices); });
    trial.call(asks, [&] { second = exact->summaryInfoFor(choices); });
    if (first != second)
        trial.report(QStringLiteral("the same summary for the same choices"), QStringLiteral("it changes"));
    if (first)
        checkSummaryEntries(trial, *first);
}

void checkStrip(PanelTrial &trial)
{
    const auto *const strip = interfaceOf<PDELabelStrip_v1>(trial);
    if (!strip)
        return;
    for (const std::size_t count : {0U, 1U, 2U, 7U})
        checkEffects(trial, *strip, trial.save().value_or(PDEChoices()), someLabels(count));
    // Without a choice, the marks count.
    checkEffects(trial, *strip, {}, someLabels(4));
    for (const QString &keyword : trial.handled()) {
        for (const QString &choice : trial.choicesOf(keyword))
            checkEffects(trial, *strip, {{keyword, choice}}, someLabels(4));
    }
}

void checkReasons(PanelTrial &trial)
{
    const auto *const controls = interfaceOf<PDEControlReasons_v1>(trial);
    if (!controls)
        return;
    std::optional<QString> reason;
    for (const QString &keyword : trial.handled()) {
        reason.reset();
        trial.call(asks, [&] { reason = controls->reasonForDisabled(keyword); });
        if (reason && reason->trimmed().isEmpty())
            trial.report(QStringLiteral("an absent reason or a sentence"),
                         QStringLiteral("the reason for \"%1\" is empty").arg(keyword));
    }
    reason.reset();
    trial.call(asks, [&] { reason = controls->reasonForDisabled(QStringLiteral("KvNoSuchOption")); });
    if (reason)
        trial.report(QStringLiteral("no reason for an option of other panels"),
                     QStringLiteral("it returns \"%1\"").arg(*reason));
}

void checkInspection(PanelTrial &trial)
{
    PDEPanelInspection *inspection = nullptr;
    trial.call(asks, [&] { inspection = trial.factory().panelInspection(); });
    if (!inspection)
        return;
    QJsonObject state;
    if (!trial.call(asks, [&] { state = inspection->panelState(&trial.panel()); }))
        return;
    const QJsonObject marked = state.value(QStringLiteral("marked")).toObject();
    for (const QString &keyword : trial.handled()) {
        if (!marked.contains(keyword))
            trial.report(QStringLiteral("each keyword of the panel in \"marked\""),
                         QStringLiteral("\"%1\" is missing").arg(keyword));
    }
}

} // namespace panel_checks
