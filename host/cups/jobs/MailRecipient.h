// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace host {
inline namespace cups {
inline namespace jobs {

/// Returns the recipient of the print server's mail when a job is over, as in the -m option of lp:
/// "mailto:USER@HOST", with this machine's fully qualified name if it can be determined. If user is absent,
/// uses libcups's default user.
///
/// Determining the name may use the network; blocks for at most one second.
QByteArray mailRecipient(const std::optional<QString> &user);

} // namespace jobs
} // namespace cups
} // namespace host
