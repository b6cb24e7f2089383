// SPDX-License-Identifier: Apache-2.0
// A record of a job that is being sent, after a full disk, an older version or another program has changed
// the file: it is read whole, or removed and reported.
#include "FuzzFile.h"

#include <host/cups/jobs/JobJournal.h>
#include <host/cups/jobs/LeftJob.h>

#include <cstdint>

namespace {

const QString recordName = QStringLiteral("state/kvprint/jobs/5c1c4e4a-9d0e-4f0b-8f39-0d6f6a3b2c11.json");

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString path = writeFuzzFile(
        recordName, QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    qputenv("XDG_STATE_HOME", QFile::encodeName(fuzzFolder() + QStringLiteral("/state")));
    const host::JobJournal journal;
    const host::JobJournal::Left left = journal.left();
    for (const host::JobRecord &record : left.jobs) {
        if (record.jobId && *record.jobId <= 0)
            qFatal("a job with the number %d", *record.jobId);
        if (host::leftJobSentence(record).isEmpty() || journal.path(record) != path)
            qFatal("the record is another job's");
        journal.remove(record);
        if (QFile::exists(path))
            qFatal("the record cannot be removed");
    }
    if (!left.damages.isEmpty() && QFile::exists(path))
        qFatal("a damaged record is reported again at every start");
    return 0;
}
