// SPDX-License-Identifier: Apache-2.0
#include "CutPlanText.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace host {
inline namespace strip {

namespace {

struct CutPlanWordsText {
    Q_DECLARE_TR_FUNCTIONS(host::strip::CutPlan)
};

bool any(const CutPlan &plan, bool LabelEnd::*what)
{
    return std::ranges::any_of(plan.labels(), [what](const PlannedLabel &label) { return label.end.*what; });
}

QString fullCutSentence(const CutPlan &plan)
{
    const CutSettings &settings = plan.settings();
    if (!settings.areKnown)
        return CutPlanWordsText::tr("The printer's description does not say whether it cuts the labels.");
    if (!any(plan, &LabelEnd::fullCut))
        return CutPlanWordsText::tr("No full cut: the labels come out as one strip.");
    if (!settings.automaticCut)
        return CutPlanWordsText::tr("Full cut after the last label.");
    if (settings.labelsPerCut == 1)
        return CutPlanWordsText::tr("Full cut after every label.");
    return CutPlanWordsText::tr("Full cut after every %1 labels.")
        .arg(QLocale().toString(settings.labelsPerCut));
}

/// Rounds to a hundredth of a millimetre: further digits only result from the conversion from points.
double rounded(Millimetres length)
{
    return std::round(length.number() * 100.0) / 100.0;
}

QJsonValue lengthJson(Millimetres length, bool isMeasured)
{
    return isMeasured ? QJsonValue(rounded(length)) : QJsonValue();
}

QJsonObject labelJson(const PlannedLabel &label)
{
    QJsonArray after;
    const std::pair<bool, const char *> ends[] = {{label.end.fullCut, "full cut"},
                                                  {label.end.halfCut, "half cut"},
                                                  {label.end.cutMark, "cut mark"},
                                                  {label.end.held, "held"}};
    for (const auto &[happens, name] : ends) {
        if (happens)
            after.append(QLatin1String(name));
    }
    return {
        {"page", label.page + 1}, {"length", lengthJson(label.length, label.isMeasured)}, {"after", after}};
}

} // namespace

QString lengthText(Millimetres length)
{
    const QLocale locale;
    QString number = locale.toString(length.number(), 'f', 1);
    const QString wholeTail = locale.decimalPoint() + locale.zeroDigit();
    if (number.endsWith(wholeTail))
        number.chop(wholeTail.size());
    return CutPlanWordsText::tr("%1 mm", "a length").arg(number);
}

QString tapeText(const CutPlan &plan)
{
    return plan.isMeasured() ? lengthText(plan.tapeUsed())
                             : CutPlanWordsText::tr("measuring\u2026", "a length");
}

QString cutPlanFigures(const CutPlan &plan)
{
    const QLocale locale;
    if (!plan.settings().areKnown)
        return CutPlanWordsText::tr("Labels: %1 \u00b7 Tape: %2")
            .arg(locale.toString(static_cast<qulonglong>(plan.labels().size())), lengthText(plan.tapeUsed()));
    return CutPlanWordsText::tr("Labels: %1 \u00b7 Pieces: %2 \u00b7 Tape: %3")
        .arg(locale.toString(static_cast<qulonglong>(plan.labels().size())),
             locale.toString(static_cast<qulonglong>(plan.pieces().size())), tapeText(plan));
}

QStringList cutPlanDescription(const CutPlan &plan)
{
    if (plan.labels().empty())
        return {CutPlanWordsText::tr("Nothing is printed.")};
    QStringList sentences;
    if (plan.settings().specialTape)
        sentences.append(CutPlanWordsText::tr("Special tape: the printer cuts nothing."));
    else
        sentences.append(fullCutSentence(plan));
    if (any(plan, &LabelEnd::halfCut))
        sentences.append(CutPlanWordsText::tr("Half cut between the labels of a piece."));
    if (any(plan, &LabelEnd::cutMark))
        sentences.append(CutPlanWordsText::tr("Cut marks are printed where there is no full cut."));
    if (plan.isEndHeld())
        sentences.append(CutPlanWordsText::tr(
            "The end stays in the printer; the next job continues there without a margin."));
    if (plan.settings().removeBlank)
        sentences.append(CutPlanWordsText::tr("Blank tape before and after each label is removed."));
    if (plan.settings().mirror)
        sentences.append(CutPlanWordsText::tr("The labels are mirrored."));
    return sentences;
}

QJsonObject cutPlanJson(const CutPlan &plan)
{
    QJsonArray labels;
    for (const PlannedLabel &label : plan.labels())
        labels.append(labelJson(label));
    QJsonArray pieces;
    for (const Piece &piece : plan.pieces()) {
        pieces.append(QJsonObject{{"firstLabel", static_cast<qint64>(piece.firstLabel) + 1},
                                  {"labels", static_cast<qint64>(piece.labelCount)},
                                  {"length", lengthJson(piece.length, piece.isMeasured)},
                                  {"held", piece.held}});
    }
    const std::optional<Millimetres> &margin = plan.leadingMargin();
    return {{"labels", labels},
            {"pieces", pieces},
            {"leadingMargin", margin ? QJsonValue(rounded(*margin)) : QJsonValue()},
            {"tapeUsed", lengthJson(plan.tapeUsed(), plan.isMeasured())}};
}

} // namespace strip
} // namespace host
