// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

namespace walk {

/// Counts the places that a walk has visited, so that a walk that agrees only because it visited too little
/// is detected.
class Coverage {
public:
    /// Counts a request, what the panel did of it, and the state it was left in; the state is empty while
    /// there is no view.
    void record(const QJsonObject &request, const QJsonObject &reply, const QJsonObject &state);

    /// How often the place was visited. Places are "op click", "refused click", "event alert",
    /// "picture SPMROnOff", "preset 7", "paper FL", "tape 1", "family DZ" and "rows 9".
    int visits(const QString &place) const { return m_visits.value(place); }
    /// Every place of those that was visited fewer times.
    QStringList rarerThan(int times, const QStringList &places) const;

private:
    QMap<QString, int> m_visits;
};

} // namespace walk
