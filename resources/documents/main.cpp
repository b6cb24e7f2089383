// SPDX-License-Identifier: Apache-2.0
// Makes the documents of labels that come with the programs and those that the tests read.
#include "SampleLabels.h"
#include "TestDocuments.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QHashSeed>
#include <QSaveFile>

#include <cstdio>

namespace {

bool write(const QString &folder, const QString &name, const QByteArray &bytes)
{
    QSaveFile file(QDir(folder).filePath(name));
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    std::fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()), qPrintable(file.errorString()));
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt writes the fonts of a PDF in the order of a hash table.
    QHashSeed::setDeterministicGlobalSeed();
    const QGuiApplication application(argc, argv);
    const QCommandLineOption samples(QStringLiteral("samples"),
                                     QStringLiteral("Write the sample documents there."),
                                     QStringLiteral("folder"));
    const QCommandLineOption tests(QStringLiteral("tests"),
                                   QStringLiteral("Write the tests' documents there."),
                                   QStringLiteral("folder"));
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({samples, tests});
    parser.process(application);

    bool written = true;
    if (parser.isSet(samples))
        written = write(parser.value(samples), QStringLiteral("labels.pdf"), documents::sampleLabels());
    if (parser.isSet(tests)) {
        for (const documents::TestDocument &document : documents::testDocuments())
            written = write(parser.value(tests), document.name, document.bytes) && written;
    }
    return written ? 0 : 1;
}
