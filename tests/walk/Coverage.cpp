// SPDX-License-Identifier: Apache-2.0
#include "Coverage.h"

#include <QJsonArray>

#include <algorithm>

namespace walk {

void Coverage::record(const QJsonObject &request, const QJsonObject &reply, const QJsonObject &state)
{
    const auto op = request["op"].toString();
    ++m_visits[(reply["ok"].toBool() ? "op " : "refused ") + op];
    for (const auto event : reply["events"].toArray())
        ++m_visits["event " + event[0].toString()];
    if (op == "paper" || op == "open")
        ++m_visits["paper " + request["paper"]["name"].toString("none").left(2)];
    if (state.isEmpty())
        return;
    ++m_visits["picture " + state["preview"]["picture"].toString()];
    ++m_visits["preset " + QString::number(state["popUp"]["selectedTag"].toInt())];
    ++m_visits["tape " + QString::number(state["tapeState"].toInt())];
    ++m_visits[state["flags"]["isDZPrinter"].toBool() ? "family DZ" : "family LX"];
    const auto controls = state["controls"].toObject();
    const auto shown = std::ranges::count_if(controls, [](const QJsonValue &control) {
        return control["state"].isDouble() && !control["hidden"].toBool();
    });
    ++m_visits["rows " + QString::number(shown)];
}

QStringList Coverage::rarerThan(int times, const QStringList &places) const
{
    QStringList rare;
    for (const auto &place : places) {
        if (visits(place) < times)
            rare.append(place + ": " + QString::number(visits(place)));
    }
    return rare;
}

} // namespace walk
