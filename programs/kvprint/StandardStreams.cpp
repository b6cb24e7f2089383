// SPDX-License-Identifier: Apache-2.0
#include "StandardStreams.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace programs {
inline namespace kvprint {

namespace {

struct StandardStreamsText {
    Q_DECLARE_TR_FUNCTIONS(programs::kvprint::StandardStreams)
};

bool write(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    const auto size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stream) == size && std::fflush(stream) == 0;
}

} // namespace

StandardStreams::StandardStreams()
{
    // Opened with the opposite access, so that using a closed stream still fails. open() returns the lowest
    // free number, which determines the order.
    constexpr struct {
        int descriptor;
        int mode;
    } places[] = {{STDIN_FILENO, O_WRONLY}, {STDOUT_FILENO, O_RDONLY}, {STDERR_FILENO, O_WRONLY}};
    for (const auto &place : places) {
        if (fcntl(place.descriptor, F_GETFD) < 0) // NOLINT
            ::open("/dev/null", place.mode);      // NOLINT
    }
}

bool StandardStreams::out(const QString &text)
{
    if (write(stdout, text))
        return true;
    const QString reason = qt_error_string(errno);
    if (!m_isOutputIncomplete)
        error(QStringLiteral("kvprint: ") +
              StandardStreamsText::tr("Cannot write to standard output: %1").arg(reason) + u'\n');
    m_isOutputIncomplete = true;
    return false;
}

void StandardStreams::error(const QString &text)
{
    write(stderr, text);
}

} // namespace kvprint
} // namespace programs
