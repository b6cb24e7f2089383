// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobOptions.h"

#include <host/documents/RegularFile.h>

struct _ipp_s;

namespace host {

/// One document of a job.
struct JobDocument {
    /// A file, or "-" for standard input.
    QString path;
    /// Its MIME type; empty lets the server look at the content.
    QByteArray format = {};
    /// What the user calls it, when a file made of it is sent; else empty.
    QString name = {};
    /// In which state the file was shown to the user, who wants that printed and nothing else; nothing when
    /// nobody has looked at it.
    std::optional<FileStamp> stamp = {};

    const QString &shownName() const { return name.isEmpty() ? path : name; }
};

/// A job, ready to be sent.
struct JobTicket {
    Destination destination;
    /// The job's name, as it is shown in the queue: see sendableTitle().
    QString title;
    /// As makeJobOptions() made them; only those marked as sent are.
    std::vector<JobOption> options;
    /// Printed in this order.
    std::vector<JobDocument> documents;
};

/// The job's name, or as much of its beginning as print servers take: 255 bytes of UTF-8. Of a longer one
/// they would keep nothing at all. Never cut within what is read as one character.
QString sendableTitle(const QString &title);

/// Puts the options that are sent into a Create-Job request, with the syntax that lp gives them; except where
/// that would not arrive at the printer's filters: see isSentAsName().
void encodeJobOptions(_ipp_s *request, const std::vector<JobOption> &options);

/// Whether the option is sent as a plain name where lp would do otherwise. lp takes a value that begins with
/// a brace for a collection, which the server does not hand to filters. And it takes "true" and "false"
/// for switches, which filters get as "NAME" and "noNAME": that loses the case of a paper's name, and for an
/// option called "notch" it reads as one called "tch".
bool isSentAsName(const JobOption &option);

/// The first option that is sent and cannot arrive, null when there is none. To the server's filters a brace
/// that is not closed takes in all options behind it.
const JobOption *findUnsendable(const std::vector<JobOption> &options);

} // namespace host
