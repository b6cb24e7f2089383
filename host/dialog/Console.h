// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>

namespace dialog {

/// Where a run of the program writes what it has to say.
struct Console {
    /// Data and results.
    std::function<void(const QString &)> out;
    /// Messages for people.
    std::function<void(const QString &)> error;

    /// Writes the message as a line of the program's.
    void complain(const QString &message) const;
};

} // namespace dialog
