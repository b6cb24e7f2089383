// SPDX-License-Identifier: Apache-2.0
#include "KvprintTest.h"

#include <tests/support/Waiting.h>

#include <cups/cups.h>

#include <QFile>
#include <QImage>

#include <random>

using test_support::RecordedDocument;

KvprintTest::KvprintTest()
    : kvprint(cupsd.address())
{
    // Every test has a home of its own, so that no lpoptions and no cache are shared.
    kvprint.environment.insert(QStringLiteral("HOME"), folder.filePath(QStringLiteral("home")));
    kvprint.environment.insert(QStringLiteral("XDG_CACHE_HOME"), folder.filePath(QStringLiteral("cache")));
    kvprint.environment.insert(QStringLiteral("XDG_STATE_HOME"), folder.filePath(QStringLiteral("state")));
    QDir(folder.path()).mkpath(QStringLiteral("home/.cups"));
}

QByteArray KvprintTest::samplePpd(const QString &name)
{
    QFile ppd(QStringLiteral(KV_SOURCE_DIR "/resources/ppd/%1.ppd").arg(name));
    EXPECT_TRUE(ppd.open(QIODevice::ReadOnly)) << qPrintable(ppd.fileName());
    return ppd.readAll();
}

void KvprintTest::addSampleQueue(const QString &name, const QString &ppd)
{
    cupsd.addQueue(name, samplePpd(ppd));
}

QString KvprintTest::file(const QString &name, const QByteArray &content) const
{
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(file.fileName());
    EXPECT_EQ(file.write(content), content.size());
    return file.fileName();
}

QString KvprintTest::picture(const QString &name) const
{
    const QString path = folder.filePath(name);
    if (QFile::exists(path))
        return path;
    QImage image(40, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setPixel(1, 1, 0);
    EXPECT_TRUE(image.save(path)) << qPrintable(path);
    return path;
}

QString KvprintTest::largePicture() const
{
    QImage noise(300, 600, QImage::Format_RGB32);
    std::minstd_rand random(1); // NOLINT: the same picture every time
    for (int y = 0; y < noise.height(); ++y) {
        for (int x = 0; x < noise.width(); ++x)
            noise.setPixel(x, y, static_cast<uint>(random()));
    }
    const QString path = folder.filePath(QStringLiteral("noise.png"));
    EXPECT_TRUE(noise.save(path));
    return path;
}

Outcome KvprintTest::print(const QStringList &words) const
{
    return kvprint.run(QStringList{QStringLiteral("--no-dialog")} + words + QStringList{picture()});
}

RecordedDocument KvprintTest::printed(const QStringList &words)
{
    const std::size_t before = cupsd.documents().size();
    const Outcome outcome = print(words);
    EXPECT_EQ(outcome.status, 0) << outcome;
    EXPECT_GT(outcome.jobId(), 0) << outcome;
    return recorded(before + 1).value(outcome.jobId());
}

void KvprintTest::expectError(const QStringList &words, const QStringList &messageParts,
                              const QByteArray &input)
{
    SCOPED_TRACE(qPrintable(words.join(u' ')));
    // Only which jobs there are: earlier ones may just be coming to their end.
    const QList<int> before = jobStates().keys();
    const Outcome outcome = kvprint.run(QStringList{QStringLiteral("--no-dialog")} + words, input);
    EXPECT_EQ(outcome.status, 1) << outcome;
    EXPECT_EQ(outcome.out, QByteArray()) << outcome;
    EXPECT_TRUE(outcome.error.startsWith("kvprint: ")) << outcome;
    for (const QString &part : messageParts)
        EXPECT_TRUE(outcome.error.contains(part.toUtf8())) << qPrintable(part) << "\n" << outcome;
    EXPECT_EQ(jobStates().keys(), before) << outcome;
}

QMap<int, RecordedDocument> KvprintTest::recorded(std::size_t count) const
{
    QMap<int, RecordedDocument> byJob;
    for (const RecordedDocument &document : const_cast<KvprintTest *>(this)->cupsd.waitForDocuments(count))
        byJob.insert(document.job, document);
    return byJob;
}

QMap<int, int> KvprintTest::jobStates() const
{
    QMap<int, int> states;
    http_t *const http =
        httpConnect2("127.0.0.1", cupsd.port(), nullptr, AF_UNSPEC, HTTP_ENCRYPTION_IF_REQUESTED, 1,
                     test_support::failureMilliseconds, nullptr);
    cups_job_t *jobs = nullptr;
    const int count = http ? cupsGetJobs2(http, &jobs, nullptr, 0, CUPS_WHICHJOBS_ALL) : -1;
    // Two answers of a server that is gone would be equal, and without a job.
    EXPECT_GE(count, 0) << "the server tells nothing of its jobs";
    for (int i = 0; i < count; ++i)
        states.insert(jobs[i].id, jobs[i].state);
    cupsFreeJobs(qMax(count, 0), jobs);
    httpClose(http);
    return states;
}

QMap<QByteArray, QByteArray> KvprintTest::attributes(int operation, const char *addressName,
                                                     const QByteArray &address) const
{
    QMap<QByteArray, QByteArray> all;
    http_t *const http =
        httpConnect2("127.0.0.1", cupsd.port(), nullptr, AF_UNSPEC, HTTP_ENCRYPTION_IF_REQUESTED, 1,
                     test_support::failureMilliseconds, nullptr);
    ipp_t *const request = ippNewRequest(static_cast<ipp_op_t>(operation));
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, addressName, nullptr, address.constData());
    ipp_t *const answer = cupsDoRequest(http, request, "/");
    for (ipp_attribute_t *each = ippFirstAttribute(answer); each; each = ippNextAttribute(answer)) {
        char text[8192] = {};
        ippAttributeString(each, text, sizeof text);
        if (ippGetGroupTag(each) != IPP_TAG_OPERATION && ippGetName(each))
            all.insert(ippGetName(each), text);
    }
    ippDelete(answer);
    httpClose(http);
    EXPECT_FALSE(all.isEmpty()) << "the server tells nothing of " << address.toStdString();
    return all;
}

QMap<QByteArray, QByteArray> KvprintTest::jobAttributes(int jobId) const
{
    return attributes(IPP_OP_GET_JOB_ATTRIBUTES, "job-uri",
                      "ipp://localhost/jobs/" + QByteArray::number(jobId));
}

QMap<QByteArray, QByteArray> KvprintTest::queueAttributes(const QString &queue) const
{
    return attributes(IPP_OP_GET_PRINTER_ATTRIBUTES, "printer-uri",
                      "ipp://localhost/printers/" + queue.toUtf8());
}
