// SPDX-License-Identifier: Apache-2.0
#include "PpdSource.h"

#include <QCoreApplication>
#include <QFile>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {
inline namespace printer {

namespace {

struct PpdSourceText {
    Q_DECLARE_TR_FUNCTIONS(host::printer::PpdFile)
};

PpdError failure(PpdErrorKind kind, const QString &path, const QString &reason)
{
    return {kind, PpdSourceText::tr("Cannot open the PPD file \"%1\": %2").arg(path, reason)};
}

PpdError failureAtLine(PpdErrorKind kind, const QString &path, int line, const QString &reason)
{
    return failure(kind, path, PpdSourceText::tr("line %1: %2").arg(line).arg(reason));
}

PpdError systemFailure(const QString &path, int error)
{
    const PpdErrorKind kind =
        error == ENOENT || error == ENOTDIR ? PpdErrorKind::Missing : PpdErrorKind::Unreadable;
    return failure(kind, path, qt_error_string(error));
}

QString tooLarge(qint64 limit)
{
    return PpdSourceText::tr("it is larger than %1 MB, the maximum for a PPD file")
        .arg(limit / (qint64{1024} * 1024));
}

QString tooMany(const PpdCounts::Excess &excess)
{
    const QString count = QString::number(excess.count);
    const QString max = QString::number(excess.max);
    if (!excess.keyword)
        return PpdSourceText::tr("it has %1 statements; the maximum is %2").arg(count, max);
    return PpdSourceText::tr("it has %1 \"%2\" statements; the maximum is %3")
        .arg(count, QString::fromUtf8(*excess.keyword), max);
}

PpdError damaged(const QString &path)
{
    return failure(PpdErrorKind::Truncated, path,
                   PpdSourceText::tr("it is damaged or incomplete: it cannot be decompressed"));
}

/// Returns the length of the uncompressed text that a gzip file states in its last four bytes (RFC 1952);
/// absent for a plain file.
std::optional<quint32> gzipLength(int descriptor, off_t size)
{
    std::array<unsigned char, 4> bytes = {};
    if (size < 18 || pread(descriptor, bytes.data(), 2, 0) != 2 || bytes[0] != 0x1f || bytes[1] != 0x8b)
        return std::nullopt;
    if (pread(descriptor, bytes.data(), bytes.size(), size - 4) != 4)
        return std::nullopt;
    return quint32{bytes[0]} | quint32{bytes[1]} << 8 | quint32{bytes[2]} << 16 | quint32{bytes[3]} << 24;
}

} // namespace

PpdSource::PpdSource(QString path, cups_file_t *file)
    : m_path(std::move(path))
    , m_file(file)
{
}

Result<PpdSource, PpdError> PpdSource::open(const QString &path, qint64 maxTextSize)
{
    // Without O_NONBLOCK, opening a pipe would block until another process opens it for writing.
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); // NOLINT
    if (descriptor < 0)
        return systemFailure(path, errno);
    PpdSource source(path, cupsFileOpenFd(descriptor, "r"));
    if (!source.m_file) {
        ::close(descriptor);
        return failure(PpdErrorKind::Unreadable, path, qt_error_string(errno));
    }
    if (const Result<void, PpdError> checked = source.check(maxTextSize, descriptor); !checked)
        return checked.error();
    return source;
}

Result<void, PpdError> PpdSource::check(qint64 maxTextSize, int descriptor)
{
    struct stat status = {};
    if (fstat(descriptor, &status) != 0)
        return systemFailure(m_path, errno);
    if (!S_ISREG(status.st_mode))
        return failure(PpdErrorKind::NotAFile, m_path, PpdSourceText::tr("it is not a file"));
    if (status.st_size > maxTextSize)
        return failure(PpdErrorKind::TooLarge, m_path, tooLarge(maxTextSize));
    if (status.st_size == 0)
        return failure(PpdErrorKind::NotAPpd, m_path, PpdSourceText::tr("it is empty"));

    const Result<qint64, PpdError> length = scan(maxTextSize);
    if (!length)
        return length.error();
    const std::optional<quint32> announced = gzipLength(descriptor, status.st_size);
    if (announced && *announced != static_cast<quint32>(length.value()))
        return damaged(m_path);
    if (const std::optional<PpdCounts::Excess> excess = m_text.counts().excess())
        return failure(PpdErrorKind::TooLarge, m_path, tooMany(*excess));
    if (cupsFileRewind(m_file.get()) != 0)
        return systemFailure(m_path, errno);
    return {};
}

Result<qint64, PpdError> PpdSource::scan(qint64 maxTextSize)
{
    std::vector<char> piece(16384);
    qint64 length = 0;
    ssize_t read = 0;
    // cupsFileRead() returns -1 both at the end of a file and for a stream that cannot be decompressed.
    errno = 0;
    while ((read = cupsFileRead(m_file.get(), piece.data(), piece.size())) > 0) {
        m_text.add({piece.data(), static_cast<std::size_t>(read)});
        length += read;
        if (length > maxTextSize)
            return failure(PpdErrorKind::TooLarge, m_path, tooLarge(maxTextSize));
    }
    if (read < 0 && errno != 0)
        return damaged(m_path);
    m_text.finish();
    return length;
}

Result<PpdHandle, PpdError> PpdSource::parse()
{
    PpdHandle ppd(ppdOpen2(m_file.get()));
    if (!ppd) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        return failureAtLine(PpdErrorKind::NotAPpd, m_path, line, QString::fromUtf8(ppdErrorString(status)));
    }
    // Checked after ppdOpen2(), whose error is more specific if the file is not a PPD.
    if (m_text.isInsideValue())
        return failureAtLine(PpdErrorKind::Truncated, m_path, m_text.line(),
                             PpdSourceText::tr("it ends in the middle of a value; the file is incomplete"));
    return ppd;
}

} // namespace printer
} // namespace host
