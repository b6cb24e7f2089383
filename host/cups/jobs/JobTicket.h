// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobOptions.h"

#include <host/documents/RegularFile.h>
#include <host/layout/PageLayout.h>

struct _ipp_s;

namespace host {
inline namespace cups {
inline namespace jobs {

/// One document of a job.
struct JobDocument {
    /// The path of a file, or "-" for standard input.
    QString path;
    /// The MIME type; if empty, the server determines it from the content.
    QByteArray format = {};
    /// The name that the user knows if the file is converted from the user's document; otherwise empty.
    QString name = {};
    /// The state of the file when it was shown to the user; a file in any other state is not sent. Absent if
    /// the document was not shown.
    std::optional<FileStamp> stamp = {};
    /// How the pages of a PDF are laid out before it is sent; absent for a document that is sent as it is.
    std::optional<PageLayout> layout = {};
    /// Whether pages are known to change when they are laid out.
    bool changesPages = false;

    /// The name for messages.
    const QString &shownName() const { return name.isEmpty() ? path : name; }
};

/// A job that is ready to be sent.
struct JobTicket {
    Destination destination;
    /// The job's name in the queue; see sendableTitle().
    QString title;
    /// The options from makeJobOptions(); only those marked as sent are sent.
    std::vector<JobOption> options;
    /// The documents in printing order.
    std::vector<JobDocument> documents;
};

/// Returns the job's name, shortened to what print servers accept: 255 bytes of UTF-8. They would discard a
/// longer name completely. Does not split characters as users perceive them (grapheme clusters), unless a
/// single one is longer.
QString sendableTitle(const QString &title);

/// Adds the options that are sent to a Create-Job request, with the syntax of lp, except those that the
/// printer's filters would not receive that way: see isSentAsName().
void encodeJobOptions(_ipp_s *request, const std::vector<JobOption> &options);

/// Returns whether the option is sent as a plain name where lp would use another syntax. lp sends a value
/// that starts with a brace as a collection, which the server does not pass to filters. It sends "true" and
/// "false" as booleans, which filters receive as "NAME" and "noNAME": this changes the case of a paper's
/// name, and an option called "notch" is read as one called "tch".
bool isSentAsName(const JobOption &option);

/// Returns the first option that is sent but cannot be passed to the server's filters; null if there is none.
/// In filters, an unclosed brace includes all following options in the value.
const JobOption *findUnsendable(const std::vector<JobOption> &options);

} // namespace jobs
} // namespace cups
} // namespace host
