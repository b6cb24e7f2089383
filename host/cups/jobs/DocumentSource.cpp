// SPDX-License-Identifier: Apache-2.0
#include "DocumentSource.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

struct DocumentSourceText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::jobs::DocumentSource)
};

constexpr qint64 pieceSize = 65536;

CupsError failureFor(const QString &path, const QString &reason)
{
    return {CupsErrorKind::BadDocument,
            DocumentSourceText::tr("Cannot read the document \"%1\": %2").arg(path, reason)};
}

} // namespace

DocumentSource::DocumentSource(QString path, int descriptor)
    : m_path(std::move(path))
    , m_descriptor(descriptor)
{
}

DocumentSource::DocumentSource(DocumentSource &&other) noexcept
    : m_path(std::move(other.m_path))
    , m_descriptor(std::exchange(other.m_descriptor, -1))
    , m_size(other.m_size)
    , m_taken(other.m_taken)
    , m_stamp(other.m_stamp)
{
}

DocumentSource::~DocumentSource()
{
    if (m_descriptor > STDIN_FILENO)
        ::close(m_descriptor);
}

Result<DocumentSource, CupsError> DocumentSource::open(const QString &path,
                                                       const std::optional<FileStamp> &expected)
{
    if (path == QStringLiteral("-"))
        return DocumentSource(path, STDIN_FILENO);
    // Without O_NONBLOCK, opening a pipe would wait for a writer.
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); // NOLINT
    if (descriptor < 0)
        return failureFor(path, qt_error_string(errno));
    DocumentSource source(path, descriptor);
    struct stat status = {};
    if (fstat(descriptor, &status) != 0)
        return source.failure(qt_error_string(errno));
    if (!S_ISREG(status.st_mode))
        return source.failure(DocumentSourceText::tr("it is not a file"));
    if (status.st_size == 0)
        return source.failure(DocumentSourceText::tr("it is empty"));
    source.m_size = status.st_size;
    source.m_stamp = fileStamp(descriptor);
    if (expected && source.m_stamp != expected)
        return source.failure(
            DocumentSourceText::tr("the file has changed since it was opened; open it again"));
    return source;
}

CupsError DocumentSource::failure(const QString &reason) const
{
    return failureFor(m_path, reason);
}

Result<QByteArray, CupsError> DocumentSource::read(const BackgroundTask &task)
{
    const bool isInput = !m_size;
    const qint64 wanted = isInput ? pieceSize : qMin(pieceSize, *m_size - m_taken);
    if (wanted == 0 && fileStamp(m_descriptor) != m_stamp)
        return failure(DocumentSourceText::tr("it has changed while it was read"));
    if (wanted == 0)
        return QByteArray();
    pollfd input = {m_descriptor, POLLIN, 0};
    while (isInput && ::poll(&input, 1, 100) == 0) {
        if (task.isCanceled())
            return QByteArray();
    }
    QByteArray piece(wanted, Qt::Uninitialized);
    ssize_t length = 0;
    do {
        length = ::read(m_descriptor, piece.data(), static_cast<std::size_t>(wanted));
    } while (length < 0 && errno == EINTR);
    if (length < 0)
        return failure(qt_error_string(errno));
    if (length == 0 && !isInput)
        return failure(DocumentSourceText::tr("it has become shorter while it was read"));
    m_taken += length;
    piece.truncate(length);
    return piece;
}

bool DocumentSource::rewind()
{
    if (!m_size || ::lseek(m_descriptor, 0, SEEK_SET) != 0)
        return false;
    m_taken = 0;
    return true;
}

} // namespace jobs
} // namespace cups
} // namespace host
