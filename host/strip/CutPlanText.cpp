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

/// Returns the numbers of the labels after which the printer makes a full cut, as "2, 5 and 7".
QString cutPositions(const std::vector<PlannedLabel> &labels)
{
    constexpr qsizetype maxNumbers = 8;
    QStringList numbers;
    qulonglong number = 0;
    for (const PlannedLabel &label : labels) {
        ++number;
        if (label.end.fullCut && numbers.size() <= maxNumbers)
            numbers.append(QLocale().toString(number));
    }
    if (numbers.size() > maxNumbers)
        numbers.back() = QStringLiteral("\u2026");
    return QLocale().createSeparatedList(numbers);
}

/// Returns after how many labels the printer makes a full cut each time; absent if it makes none before the
/// last label, or at different intervals. What follows the last label does not matter: it ends the strip.
std::optional<std::size_t> cutInterval(const std::vector<PlannedLabel> &labels)
{
    const auto isCut = [](const PlannedLabel &label) { return label.end.fullCut; };
    const auto last = labels.end() - 1;
    const auto first = std::find_if(labels.begin(), last, isCut);
    if (first == last)
        return std::nullopt;
    const std::size_t interval = static_cast<std::size_t>(first - labels.begin()) + 1;
    for (std::size_t i = 0; i + 1 < labels.size(); ++i) {
        if (isCut(labels[i]) != ((i + 1) % interval == 0))
            return std::nullopt;
    }
    return interval;
}

QString fullCutSentence(const CutPlan &plan)
{
    if (!plan.areCutsKnown())
        return CutPlanWordsText::tr("Cutting is not known: the printer's description does not say whether it "
                                    "cuts the labels.");
    const std::vector<PlannedLabel> &labels = plan.labels();
    const auto cuts = std::ranges::count_if(labels, [](const auto &label) { return label.end.fullCut; });
    if (cuts == 0)
        return CutPlanWordsText::tr("No full cut: the labels come out as one strip.");
    if (labels.size() > 1 && cuts == 1 && labels.back().end.fullCut)
        return CutPlanWordsText::tr("Full cut after the last label.");
    const std::optional<std::size_t> interval = labels.size() == 1 ? 1 : cutInterval(labels);
    if (!interval)
        return CutPlanWordsText::tr("Full cuts after the labels %1.").arg(cutPositions(labels));
    if (*interval == 1)
        return CutPlanWordsText::tr("Full cut after every label.");
    return CutPlanWordsText::tr("Full cut after every %1 labels.")
        .arg(QLocale().toString(static_cast<qulonglong>(*interval)));
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
    if (!plan.areCutsKnown())
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
    QStringList sentences = plan.effects().cuttingTexts;
    if (sentences.isEmpty())
        sentences.append(fullCutSentence(plan));
    if (any(plan, &LabelEnd::halfCut))
        sentences.append(CutPlanWordsText::tr("Half cut between the labels of a piece."));
    if (any(plan, &LabelEnd::cutMark))
        sentences.append(CutPlanWordsText::tr("Cut marks are printed where there is no full cut."));
    if (plan.isEndHeld())
        sentences.append(CutPlanWordsText::tr(
            "The end stays in the printer; the next job continues there without a margin."));
    if (plan.effects().removeBlank)
        sentences.append(CutPlanWordsText::tr("Blank tape before and after each label is removed."));
    if (plan.effects().mirror)
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
