// SPDX-License-Identifier: Apache-2.0
#include "OutputFiles.h"

#include <platform/PrivateFolder.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace host {
inline namespace strip {

namespace {

struct OutputFilesText {
    Q_DECLARE_TR_FUNCTIONS(host::strip::VirtualPrinter)
};

} // namespace

OutputFiles::OutputFiles(QString folder)
    : m_folder(std::move(folder))
{
    createFolder();
}

OutputFiles::~OutputFiles()
{
    if (m_done || !m_createdFolder)
        return;
    m_files.clear();
    // Removes the created folders from the innermost upwards. A folder that another program has put a file
    // into is not empty and stays.
    QString folder = QDir::cleanPath(QFileInfo(m_folder).absoluteFilePath());
    while (QDir().rmdir(folder) && folder != *m_createdFolder)
        folder = QFileInfo(folder).path();
}

void OutputFiles::createFolder()
{
    QString missing = QDir::cleanPath(QFileInfo(m_folder).absoluteFilePath());
    if (QFileInfo::exists(missing)) {
        if (!QFileInfo(missing).isDir())
            fail(OutputErrorKind::NoFolder, m_folder, OutputFilesText::tr("it is not a folder"));
        return;
    }
    while (!QFileInfo::exists(QFileInfo(missing).path()))
        missing = QFileInfo(missing).path();
    m_createdFolder = missing;
    if (const std::optional<QString> reason = platform::createPrivateFolders(m_folder))
        fail(OutputErrorKind::NoFolder, m_folder,
             OutputFilesText::tr("the folder cannot be created: %1").arg(*reason));
}

void OutputFiles::fail(OutputErrorKind kind, const QString &path, const QString &reason)
{
    if (m_outcome)
        m_outcome = OutputError{kind, OutputFilesText::tr("Cannot write \"%1\": %2").arg(path, reason)};
}

void OutputFiles::write(const QString &name, const std::function<bool(QIODevice *)> &writer)
{
    if (!m_outcome)
        return;
    auto file = std::make_unique<platform::OutputFile>(m_folder + u'/' + name);
    if (!file->write(writer))
        fail(OutputErrorKind::NotWritten, file->path(), file->errorString());
    m_files.push_back(std::move(file));
}

Result<void, OutputError> OutputFiles::commit()
{
    QStringList placed;
    for (const std::unique_ptr<platform::OutputFile> &file : m_files) {
        if (!m_outcome)
            break;
        if (!file->commit())
            fail(OutputErrorKind::NotWritten, file->path(), file->errorString());
        else if (file->hasCreatedFile())
            placed.append(file->path());
    }
    m_done = static_cast<bool>(m_outcome);
    if (!m_done) {
        for (const QString &path : placed)
            QFile::remove(path);
    }
    m_files.clear();
    return m_outcome;
}

} // namespace strip
} // namespace host
