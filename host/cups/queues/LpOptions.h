// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Destination.h"

namespace host {
inline namespace cups {
inline namespace queues {

/// The options that lpoptions(1) stores, for all users and for the current one. They are read here because
/// libcups merges them into the server's options, so that the two cannot be distinguished, and does not list
/// the instances of a queue without options of its own. The files are never written here; only libcups writes
/// them.
class LpOptions {
public:
    /// The options of one destination.
    struct Entry {
        QString queue;
        std::optional<QString> instance;
        std::vector<NamedValue> options;
    };

    /// Reads the system's file and the user's. Skips what is missing or malformed, as libcups does.
    static LpOptions read();

    /// The entries in the files' order; an option of the user replaces that of the system.
    const std::vector<Entry> &entries() const { return m_entries; }
    /// Returns the options of exactly this destination; an instance does not share those of its queue, as
    /// with lp.
    std::vector<NamedValue> options(const QString &queue, const std::optional<QString> &instance) const;
    /// The destination to use if none is named: from LPDEST, PRINTER, the user's file or the system's; absent
    /// if the server's default applies.
    const std::optional<QString> &defaultName() const { return m_defaultName; }

private:
    void readFile(const QString &path);

    std::vector<Entry> m_entries;
    std::optional<QString> m_defaultName;
};

} // namespace queues
} // namespace cups
} // namespace host
