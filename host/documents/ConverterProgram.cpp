// SPDX-License-Identifier: Apache-2.0
#include "ConverterProgram.h"

#include <host/rendering/PrivateProgram.h>
#include <host/rendering/RenderChannel.h>

#include <QCoreApplication>
#include <QProcess>

#include <array>
#include <climits>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace host {
inline namespace documents {

namespace {

struct ConverterProgramText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

/// How a program that has ended did so.
ConverterProgram::End endOf(const QProcess &process)
{
    using End = ConverterProgram::End;
    if (process.exitStatus() != QProcess::NormalExit)
        return process.exitCode() == SIGSYS ? End::Forbidden : End::TooLarge;
    switch (process.exitCode()) {
    case 0:
        return End::Converted;
    case 2:
        return End::TooLarge;
    case 3:
        return End::WrongPassword;
    default:
        return End::Rejected;
    }
}

/// Returns a descriptor from which the process can read the secret.
OwnedDescriptor readableSecret(const QByteArray &secret)
{
    std::array<int, 2> ends = {-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return {};
    OwnedDescriptor readEnd(ends[0]);
    const OwnedDescriptor writeEnd(ends[1]);
    // As much as a pipe holds before a process reads it; no password is that long.
    const ssize_t written = write(ends[1], secret.constData(),
                                  static_cast<std::size_t>(qMin<qsizetype>(secret.size(), PIPE_BUF)));
    Q_UNUSED(written);
    return readEnd;
}

/// Lets the process read the secret from descriptor 3.
void passSecret(QProcess &process, int secret)
{
    constexpr int descriptor = 3;
    process.setChildProcessModifier([secret] {
        if (secret == descriptor)
            fcntl(descriptor, F_SETFD, 0);
        else
            dup2(secret, descriptor);
    });
}

} // namespace

ConverterProgram::ConverterProgram(const QString &converter)
    : m_path(privateProgram(QStringLiteral("kvprint-") + converter))
{
}

ConverterProgram::End ConverterProgram::run(const QStringList &arguments, const QByteArray &content)
{
    QProcess process;
    process.setProgram(m_path);
    process.setArguments(arguments);
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start();
    if (!process.waitForStarted(-1))
        return End::Missing;
    process.write(content);
    process.closeWriteChannel();
    process.waitForFinished(-1);
    m_output = process.readAllStandardOutput();
    return endOf(process);
}

ConverterProgram::End ConverterProgram::runOnFiles(const QStringList &arguments, const QString &input,
                                                   const QString &output,
                                                   const std::function<bool()> &isCanceled)
{
    constexpr int pollInterval = 100;
    QProcess process;
    process.setProgram(m_path);
    process.setArguments(arguments);
    process.setStandardInputFile(input);
    process.setStandardOutputFile(output);
    process.setStandardErrorFile(QProcess::nullDevice());
    OwnedDescriptor secret;
    if (m_secret) {
        secret = readableSecret(*m_secret);
        passSecret(process, secret.number());
    }
    process.start();
    if (!process.waitForStarted(-1))
        return End::Missing;
    do {
        if (!isCanceled())
            continue;
        process.kill();
        process.waitForFinished(-1);
        return End::Canceled;
    } while (!process.waitForFinished(pollInterval) && process.state() != QProcess::NotRunning);
    return endOf(process);
}

DocumentErrorReason ConverterProgram::missing() const
{
    return {DocumentErrorKind::Unreadable,
            ConverterProgramText::tr("the converter \"%1\" cannot be started").arg(m_path)};
}

DocumentErrorReason ConverterProgram::forbidden()
{
    return {DocumentErrorKind::Damaged, ConverterProgramText::tr("it attempts what no document may do")};
}

Result<void, DocumentErrorReason> storePdf(QByteArrayView bytes, QIODevice *pdf)
{
    if (pdf->write(bytes.data(), bytes.size()) != bytes.size())
        return DocumentErrorReason{DocumentErrorKind::NotStored, pdf->errorString()};
    return {};
}

} // namespace documents
} // namespace host
