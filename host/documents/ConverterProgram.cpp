// SPDX-License-Identifier: Apache-2.0
#include "ConverterProgram.h"

#include <host/rendering/PrivateProgram.h>

#include <QCoreApplication>
#include <QProcess>

namespace host {
inline namespace documents {

namespace {

struct ConverterProgramText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

/// How a program that has ended did so.
ConverterProgram::End endOf(const QProcess &process)
{
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() == 2)
        return ConverterProgram::End::TooLarge;
    return process.exitCode() == 0 ? ConverterProgram::End::Converted : ConverterProgram::End::Rejected;
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

Result<void, DocumentErrorReason> storePdf(QByteArrayView bytes, QIODevice *pdf)
{
    if (pdf->write(bytes.data(), bytes.size()) != bytes.size())
        return DocumentErrorReason{DocumentErrorKind::NotStored, pdf->errorString()};
    return {};
}

} // namespace documents
} // namespace host
