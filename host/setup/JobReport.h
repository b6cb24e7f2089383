// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/Constraints.h>
#include <host/cups/CupsServer.h>
#include <host/cups/JobTicket.h>

#include <QJsonObject>

namespace host {

/// A job that is not sent: what the server would be given. For a terminal.
QString ticketInPlainText(const CupsServer &server, const JobTicket &ticket,
                          const std::vector<Conflict> &conflicts);

/// The same for programs: "server", "destination", "title", "documents" of "file" and "type", "options" of
/// "name", "value", "origin" and "sent", "conflicts" as sentences, and "lp", the command that prints the
/// same. Origins are "ppd", "queue", "user-default", "preset", "panel" and "you" in every language.
QJsonObject ticketJson(const CupsServer &server, const JobTicket &ticket,
                       const std::vector<Conflict> &conflicts);

} // namespace host
