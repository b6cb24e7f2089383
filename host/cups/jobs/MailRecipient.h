// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace host {

/// Whom the print server sends a mail when a job is over, as lp names them after -m: "mailto:USER@HOST", with
/// this machine's full name as far as it can be found out. The user is libcups's own when none is given.
///
/// Finding out the full name may ask the network, which is waited for no longer than a moment.
QByteArray mailRecipient(const std::optional<QString> &user);

} // namespace host
