// SPDX-License-Identifier: Apache-2.0
#include "ConverterProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

namespace host {
inline namespace documents {

namespace {

struct ConverterProgramText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

/// The path of a file in the folder of the private libraries: that of the build tree, or that of the
/// installation.
QString privateFile(const QString &name)
{
    const QDir programs(QCoreApplication::applicationDirPath());
    QString built = QDir::cleanPath(programs.filePath(QStringLiteral("../lib/") + name));
    if (QFileInfo::exists(built))
        return built;
    return QDir::cleanPath(programs.filePath(QStringLiteral(KV_PRIVATE_LIBRARIES))) + u'/' + name;
}

} // namespace

ConverterProgram::ConverterProgram(const QString &converter)
    : m_path(privateFile(QStringLiteral("kvprint-") + converter))
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
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() == 2)
        return End::TooLarge;
    return process.exitCode() == 0 ? End::Converted : End::Rejected;
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
