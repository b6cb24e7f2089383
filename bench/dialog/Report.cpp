// SPDX-License-Identifier: Apache-2.0
#include "Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace bench {

namespace {

QByteArray number(const std::vector<double> &values, double share)
{
    return values.empty() ? QByteArray("-") : QByteArray::number(percentile(values, share), 'f', 1);
}

QByteArray cell(const QByteArray &text, int width)
{
    return text.rightJustified(width) + "  ";
}

QByteArray row(const Measurement &measurement)
{
    const std::size_t runs = measurement.painted.size();
    QByteArray text = measurement.program.toUtf8().leftJustified(9) +
                      measurement.conditions.toUtf8().leftJustified(20) +
                      cell(QByteArray::number(measurement.queues), 6) +
                      cell(QByteArray::number(static_cast<qulonglong>(runs)), 4);
    for (const double share : {0.5, 0.0, 0.95})
        text += cell(number(measurement.painted, share), 8);
    text += cell(number(measurement.panelPainted, 0.5), 8) + cell(number(measurement.busy, 0.5), 7) +
            cell(number(measurement.memory, 0.5), 7);
    if (measurement.withoutWindow > 0)
        text += QByteArray::number(measurement.withoutWindow) + " without a window in " +
                QByteArray::number(static_cast<qlonglong>(measurement.timeout.count())) + " ms";
    if (measurement.withoutPanel > 0)
        text += QByteArray::number(measurement.withoutPanel) + " without the panel";
    return text.trimmed() + '\n';
}

QJsonArray array(const std::vector<double> &values)
{
    QJsonArray result;
    for (const double value : values)
        result.append(std::round(value * 100.0) / 100.0);
    return result;
}

QJsonObject object(const Measurement &measurement)
{
    return {{QStringLiteral("program"), measurement.program},
            {QStringLiteral("conditions"), measurement.conditions},
            {QStringLiteral("queues"), measurement.queues},
            {QStringLiteral("medianPaintedMs"), median(measurement.painted)},
            {QStringLiteral("medianPeakMiB"), median(measurement.memory)},
            {QStringLiteral("paintedMs"), array(measurement.painted)},
            {QStringLiteral("panelPaintedMs"), array(measurement.panelPainted)},
            {QStringLiteral("busyMs"), array(measurement.busy)},
            {QStringLiteral("peakMiB"), array(measurement.memory)},
            {QStringLiteral("runsWithoutWindow"), measurement.withoutWindow},
            {QStringLiteral("runsWithoutPanel"), measurement.withoutPanel}};
}

} // namespace

Report::Report(const std::vector<Measurement> &measurements)
    : m_measurements(measurements)
{
    const QString fast = QStringLiteral("fast");
    const QString kvprint = QStringLiteral("kvprint");
    const Measurement *const own = find(kvprint, fast, 1);
    const Measurement *const qt = find(QStringLiteral("Qt"), fast, 1);
    constexpr auto painted = &Measurement::painted;
    addRatio(QStringLiteral("kvprint / Qt"), own, qt, painted, 1.0);
    addRatio(QStringLiteral("kvprint, slow / fast"), find(kvprint, QStringLiteral("slow"), 1), own, painted,
             1.1);
    addRatio(QStringLiteral("kvprint, silent / fast"), find(kvprint, QStringLiteral("silent"), 1), own,
             painted, 1.1);
    for (const Measurement &many : measurements) {
        if (many.queues > 1 && many.program == kvprint)
            addRatio(QStringLiteral("kvprint, %1 queues / 1").arg(many.queues), &many, own, painted, 1.1);
    }
    addRatio(QStringLiteral("kvprint / Qt, peak memory"), own, qt, &Measurement::memory, 1.25);
    addRatio(QStringLiteral("kvprint / bare window"), own, find(QStringLiteral("bare"), fast, 1), painted,
             std::nullopt);
    addRatio(QStringLiteral("kvprint / GTK"), own, find(QStringLiteral("GTK"), fast, 1), painted,
             std::nullopt);
    addRatio(QStringLiteral("kvprint, empty cache / filled"),
             find(kvprint, QStringLiteral("fast, empty cache"), 1), own, painted, std::nullopt);
}

const Measurement *Report::find(const QString &program, const QString &conditions, int queues) const
{
    const auto found = std::ranges::find_if(m_measurements, [&](const Measurement &measurement) {
        return measurement.program == program && measurement.conditions == conditions &&
               measurement.queues == queues;
    });
    return found == m_measurements.end() ? nullptr : &*found;
}

void Report::addRatio(const QString &name, const Measurement *one, const Measurement *other,
                      std::vector<double> Measurement::*values, std::optional<double> target)
{
    if (one && other)
        m_ratios.push_back({name, median(one->*values) / median(other->*values), target});
}

QByteArray Report::table() const
{
    QByteArray text =
        "milliseconds from the program's start to its first painted window; peak memory in MiB\n\n"
        "program  server              queues  runs    median       min       95%     panel     busy"
        "   memory\n";
    for (const Measurement &measurement : m_measurements)
        text += row(measurement);
    text += "\nratio of medians                  value  target\n";
    for (const Ratio &ratio : m_ratios) {
        text += ratio.name.toUtf8().leftJustified(30) + cell(QByteArray::number(ratio.value, 'f', 3), 9);
        if (ratio.target)
            text += cell(QByteArray::number(*ratio.target, 'f', 2), 6) + (ratio.isMet() ? "met" : "MISSED");
        text = text.trimmed() + '\n';
    }
    return text;
}

QByteArray Report::json() const
{
    QJsonArray measurements;
    for (const Measurement &measurement : m_measurements)
        measurements.append(object(measurement));
    QJsonArray ratios;
    for (const Ratio &ratio : m_ratios)
        ratios.append(QJsonObject{{QStringLiteral("name"), ratio.name},
                                  {QStringLiteral("value"), ratio.value},
                                  {QStringLiteral("target"), ratio.target ? *ratio.target : QJsonValue()},
                                  {QStringLiteral("isMet"), ratio.isMet()}});
    return QJsonDocument(QJsonObject{{QStringLiteral("measurements"), measurements},
                                     {QStringLiteral("ratios"), ratios}})
        .toJson();
}

bool Report::isGood() const
{
    const bool showsPanel = std::ranges::all_of(m_measurements, [](const Measurement &measurement) {
        return measurement.hasEmptyCache || (measurement.withoutPanel == 0 &&
                                             measurement.panelPainted.size() <= measurement.painted.size());
    });
    return showsPanel && std::ranges::all_of(m_ratios, &Ratio::isMet);
}

} // namespace bench
