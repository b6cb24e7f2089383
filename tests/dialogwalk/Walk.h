// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Hand.h"

namespace dialogwalk {

/// Steps from the opening of a dialog on.
struct Episode {
    QString destination;
    /// Which description each queue has at the beginning.
    std::map<QString, int> variants;
    std::vector<Step> steps;
};

/// What a dialog did that it must not.
struct Fault {
    /// What was done until then, a line for each step.
    QStringList steps;
    QStringList departures;

    QString text() const;
};

/// Runs walks through dialogs. After every step all that the dialog shows is held to what it would send, and
/// what it would send to what was chosen.
class Walk {
public:
    explicit Walk(WalkedServer &server)
        : m_server(server)
        , m_dialog(server)
    {
    }

    /// Opens the dialog on the episode's printer. A fault when it does not show what it would send.
    std::optional<Fault> begin(const QString &destination);
    /// Goes on by a step.
    std::optional<Fault> go(const Step &step);
    /// The same for an episode from its beginning to its end, the records of the server included.
    std::optional<Fault> run(const Episode &episode);
    /// Holds what the server has recorded since to what was shown.
    std::optional<Fault> checkRecords();

    /// The steps since the dialog was opened last with nothing known of it.
    const Episode &episode() const { return m_episode; }

private:
    std::optional<Fault> check();

    WalkedServer &m_server;
    WalkedDialog m_dialog;
    Intent m_intent;
    Hand m_hand{m_dialog, m_intent};
    Episode m_episode;
    QStringList m_done;
    std::size_t m_recorded = 0;
};

/// The shortest part of the episode that still has a fault, as far as it is found in so many tries; with the
/// fault.
std::pair<Episode, Fault> shortest(WalkedServer &server, Episode failing, Fault fault, int tries);

} // namespace dialogwalk
