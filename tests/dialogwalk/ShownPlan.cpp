// SPDX-License-Identifier: Apache-2.0
#include "ShownPlan.h"

#include <host/strip/CutPlan.h>

#include <QRegularExpression>

#include <cmath>

namespace dialogwalk {

ExpectedStrip stripOf(const host::CutPlan &plan, const QString &words)
{
    ExpectedStrip strip;
    strip.areCutsKnown = plan.areCutsKnown();
    strip.tape = plan.tapeUsed().number();
    for (const host::PlannedLabel &label : plan.labels())
        strip.labels.push_back({label.page, label.length.number(), label.end.fullCut, label.end.halfCut,
                                label.end.cutMark, label.end.held});
    static const QRegularExpression sentence(QStringLiteral("[A-Z][^.]*\\.(?= |$)"));
    static const QRegularExpression figures(QStringLiteral("^Labels: .*? m{1,2} (?=[A-Z])"));
    for (auto each = sentence.globalMatch(QString(words).remove(figures)); each.hasNext();)
        strip.sentences.append(each.next().captured());
    return strip;
}

QStringList compareFigures(const QString &place, const QString &words, const ExpectedStrip &expected)
{
    static const QRegularExpression form(
        QStringLiteral("^Labels: (\\d+)(?: \u00b7 Pieces: (\\d+))? \u00b7 Tape: ([\\d.,]+) (mm|m)"));
    const QRegularExpressionMatch match = form.match(words);
    const double unit = match.captured(4) == QStringLiteral("m") ? 1000.0 : 1.0;
    const double tape = match.captured(3).remove(u',').toDouble() * unit;
    const QString pieces = expected.areCutsKnown ? QString::number(expected.pieces()) : QString();
    const double uncertainty = 0.5 * unit / 10.0 + 0.6 + 0.4 * static_cast<double>(expected.labels.size());
    const bool isSame = match.hasMatch() && match.captured(1).toULongLong() == expected.labels.size() &&
                        match.captured(2) == pieces && std::abs(tape - expected.tape) < uncertainty;
    return isSame ? QStringList() : QStringList{place + QStringLiteral(" shows ") + words, expected.text()};
}

} // namespace dialogwalk
