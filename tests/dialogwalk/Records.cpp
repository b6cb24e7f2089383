// SPDX-License-Identifier: Apache-2.0
#include "Records.h"

#include <tests/samples/Sandbox.h>

#include <host/documents/LaidOutPdf.h>
#include <host/printer/PpdFile.h>

#include <QFile>

#include <cups/cups.h>

#include <algorithm>

namespace dialogwalk {

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// As filters see them: libcups writes switches in small letters, and an open end of a range as its largest
/// number.
QByteArray plain(const QByteArray &value)
{
    return value.toLower().replace("-2147483647", "-");
}

/// The server processes these itself and passes the result to filters in another way.
bool isServers(const QByteArray &name)
{
    return name == "job-hold-until" || name == "job-priority";
}

/// Returns the document as it is sent, laid out on the paper of the job.
QByteArray sentDocument(const QString &path, const QByteArray &ppd, const QByteArray &paperName)
{
    const Sandbox sandbox;
    const auto printer = host::PpdFile::open(sandbox.write(QStringLiteral("printer.ppd"), ppd));
    const auto paper = printer ? printer.value().paper(paperName) : std::nullopt;
    if (!paper)
        return contentOf(path);
    const host::PageLayout layout(paper->size, paper->margins.value_or(QMarginsF()));
    const auto laidOut = host::layOutPdf(path, layout, [] { return false; });
    return laidOut && laidOut.value() ? contentOf(laidOut.value()->fileName()) : contentOf(path);
}

QStringList compare(const SentJob &job, const test_support::RecordedDocument &document, WalkedServer &server)
{
    QStringList lines;
    const OptionTexts recorded = optionsOf(document);
    for (auto each = job.shown.begin(); each != job.shown.end(); ++each) {
        if (!isServers(each.key()) && plain(recorded.value(each.key())) != plain(each.value()))
            lines.append(QStringLiteral("job %4: %1 was shown as \"%2\", the printer received \"%3\"")
                             .arg(QString::fromUtf8(each.key()), QString::fromUtf8(each.value()),
                                  QString::fromUtf8(recorded.value(each.key())))
                             .arg(job.id));
    }
    if (document.content != sentDocument(server.documentPath(), job.ppd, recorded.value("PageSize")))
        lines.append(QStringLiteral("the document arrived with other bytes"));
    const auto strip = expectedStrip(recorded, PrinterFacts::of(job.ppd), server.pages());
    if (strip.has_value() != job.strip.has_value())
        lines.append(QStringLiteral("a strip was shown, or comes out, and not both"));
    else if (strip)
        lines += differences(*job.strip, *strip);
    return lines;
}

} // namespace

OptionTexts optionsOf(const test_support::RecordedDocument &document)
{
    OptionTexts texts;
    cups_option_t *list = nullptr;
    const int count = cupsParseOptions(document.optionText.constData(), 0, &list);
    for (int i = 0; i < count; ++i)
        texts[list[i].name] = list[i].value;
    cupsFreeOptions(count, list);
    texts["copies"] = document.copies;
    return texts;
}

QStringList disagreementsOnServer(WalkedServer &server, const std::vector<SentJob> &jobs)
{
    const auto documents = server.records();
    QStringList lines;
    for (const SentJob &job : jobs) {
        if (!job.isRecorded())
            continue;
        const auto found = std::ranges::find(documents, job.id, &test_support::RecordedDocument::job);
        if (found == documents.end())
            lines.append(QStringLiteral("job %1 is not recorded").arg(job.id));
        else
            lines += compare(job, *found, server);
    }
    return lines;
}

} // namespace dialogwalk
