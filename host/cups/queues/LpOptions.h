// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

namespace host {

/// The options that lpoptions(1) keeps, for all users and for this one. Read here because libcups merges
/// them into what the server says, so that nobody could tell the two apart, and does not list the
/// instances of a queue that has no options of its own. Never written: that is libcups's business.
class LpOptions {
public:
    /// What is kept for one destination.
    struct Entry {
        QString queue;
        std::optional<QString> instance;
        std::vector<NamedValue> options;
    };

    /// Reads the system's file and the user's; what is missing or malformed is passed over, as libcups does.
    static LpOptions read();

    /// In the files' order; the user's options stand in place of the system's.
    const std::vector<Entry> &entries() const { return m_entries; }
    /// The options of exactly this destination; an instance does not share those of its queue, as with lp.
    std::vector<NamedValue> options(const QString &queue, const std::optional<QString> &instance) const;
    /// The destination to use when none is named: of LPDEST, PRINTER, the user's file or the system's;
    /// nothing when the server's own default counts.
    const std::optional<QString> &defaultName() const { return m_defaultName; }

private:
    void readFile(const QString &path);

    std::vector<Entry> m_entries;
    std::optional<QString> m_defaultName;
};

} // namespace host
