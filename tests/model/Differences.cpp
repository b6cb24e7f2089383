// SPDX-License-Identifier: Apache-2.0
#include "DriverModel.h"

#include <QJsonDocument>

#include <cmath>

namespace model {

namespace {

QString shown(const QJsonValue &value)
{
    if (value.isUndefined())
        return "nothing";
    return QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact))
        .mid(1)
        .chopped(1);
}

bool isSame(const QJsonValue &expected, const QJsonValue &actual)
{
    if (!expected.isDouble() || !actual.isDouble())
        return expected == actual;
    return std::abs(expected.toDouble() - actual.toDouble()) <= 1e-9 * (1.0 + std::abs(expected.toDouble()));
}

void collect(const QString &place, const QJsonValue &expected, const QJsonValue &actual, QStringList &found)
{
    if (expected.isObject() && actual.isObject()) {
        const auto left = expected.toObject();
        const auto right = actual.toObject();
        for (const auto &key : left.keys())
            collect(place + "." + key, left[key], right[key], found);
        for (const auto &key : right.keys()) {
            if (!left.contains(key))
                collect(place + "." + key, QJsonValue::Undefined, right[key], found);
        }
    } else if (!isSame(expected, actual)) {
        found.append(place.mid(1) + ": expected " + shown(expected) + ", but is " + shown(actual));
    }
}

} // namespace

QStringList differences(const QJsonObject &expected, const QJsonObject &actual)
{
    QStringList found;
    if (expected["ok"] == false)
        collect({}, QJsonObject{{"ok", false}}, QJsonObject{{"ok", actual["ok"]}}, found);
    else
        collect({}, expected, actual, found);
    return found;
}

} // namespace model
