// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Preflight.h"

#include <host/cups/server/CupsServer.h>

#include <QJsonObject>

namespace host {
inline namespace setup {

/// Returns what the server would receive for the job, as text for a terminal.
QString ticketInPlainText(const CupsServer &server, const Ticket &ticket,
                          const std::vector<PreflightNote> &notes);

/// The same for programs: "server", "destination", "title", "documents" of "file" and "type", "options" of
/// "name", "value", "origin" and "sent", "conflicts" as sentences, "preflight" as
/// preflightJson() describes it, and "lp", the command that prints the
/// same. Origins are "ppd", "queue", "user-default", "preset", "panel", "you" and "layout" in every language.
QJsonObject ticketJson(const CupsServer &server, const Ticket &ticket,
                       const std::vector<PreflightNote> &notes);

/// Returns a job of the virtual printer for programs: "printer", "ppd", "documents", "paper", "pages" from
/// 1, "copies", "collate", "options" with the paper first, and "plan", the plan of cuts. The ticket must
/// have a paper.
QJsonObject printedJobJson(const Ticket &ticket, const LabelDocument &document, const QString &ppdPath,
                           const CutPlan &plan);

} // namespace setup
} // namespace host
