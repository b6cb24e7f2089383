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

/// A wrong behavior of a dialog.
struct Fault {
    /// What was done until then, a line for each step.
    QStringList steps;
    QStringList disagreements;

    QString text() const;
};

/// Runs walks through dialogs. After every step, compares what the dialog shows with what it would send, and
/// what it would send with what was chosen.
class Walk {
public:
    explicit Walk(WalkedServer &server)
        : m_server(server)
        , m_dialog(server)
    {
    }

    /// Opens the dialog on the episode's printer. Returns a fault when the dialog does not show what it would
    /// send.
    std::optional<Fault> begin(const QString &destination);
    /// Performs the next step.
    std::optional<Fault> go(const Step &step);
    /// The same for an episode from its beginning to its end, the records of the server included.
    std::optional<Fault> run(const Episode &episode);
    /// Compares what the server has recorded since with what was shown.
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
