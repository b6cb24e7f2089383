// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/queues/Destination.h>

namespace programs {
inline namespace kvprint {

/// Returns the destinations for users: each name at the beginning of a line and its properties on indented
/// lines below, so that scripts can extract the names. Empty without destinations.
QString destinationsInPlainText(const std::vector<host::Destination> &destinations);

/// The destinations for programs, a JSON array (UTF-8, with a line end) of one object each:
///
///   name           "queue" or "queue/instance", as -d takes it
///   queue          the queue alone
///   instance       the name of the set of options; null for the queue itself
///   description, location, makeAndModel, uri    texts, empty if the server does not report them
///   class          whether it is a class; members: its queues
///   default        whether jobs go there that name no destination
///   accepting      whether it takes jobs
///   state          "ready", "printing", "paused" or "unknown"
///   reasons        IPP's keywords for the state
///   message        the server's own words
QByteArray destinationsAsJson(const std::vector<host::Destination> &destinations);

} // namespace kvprint
} // namespace programs
