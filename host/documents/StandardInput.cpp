// SPDX-License-Identifier: Apache-2.0
#include "StandardInput.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

#include <array>
#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace host {
inline namespace documents {

namespace {

struct StandardInputText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

/// Like read(), but waits for input even if the descriptor that the program inherited does not block.
ssize_t readPiece(char *buffer, std::size_t size)
{
    for (;;) {
        const ssize_t length = ::read(STDIN_FILENO, buffer, size);
        if (length >= 0)
            return length;
        if (errno == EAGAIN) {
            pollfd input = {STDIN_FILENO, POLLIN, 0};
            ::poll(&input, 1, -1);
        } else if (errno != EINTR) {
            return length;
        }
    }
}

} // namespace

Result<std::unique_ptr<platform::TemporaryFile>, DocumentErrorReason> makeTemporaryFile()
{
    auto file = std::make_unique<platform::TemporaryFile>(QDir::tempPath());
    if (!file->create())
        return notStored(*file);
    return file;
}

DocumentErrorReason notStored(const platform::TemporaryFile &file)
{
    return {
        DocumentErrorKind::NotStored,
        StandardInputText::tr("it cannot be stored in \"%1\": %2").arg(QDir::tempPath(), file.errorString())};
}

Result<std::unique_ptr<platform::TemporaryFile>, DocumentErrorReason> readStandardInput(qint64 limit)
{
    auto file = makeTemporaryFile();
    if (!file)
        return file.error();
    std::array<char, 65536> buffer = {};
    qint64 taken = 0;
    for (;;) {
        const ssize_t length = readPiece(buffer.data(), buffer.size());
        if (length < 0)
            return DocumentErrorReason{DocumentErrorKind::Unreadable, qt_error_string(errno)};
        if (length == 0)
            break;
        taken += length;
        if (taken > limit)
            return DocumentErrorReason{
                DocumentErrorKind::TooLarge,
                StandardInputText::tr("it is larger than %1").arg(QLocale().formattedDataSize(limit))};
        if (file.value()->write(buffer.data(), length) != length)
            return notStored(*file.value());
    }
    if (!file.value()->flush())
        return notStored(*file.value());
    return file;
}

} // namespace documents
} // namespace host
