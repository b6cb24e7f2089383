// SPDX-License-Identifier: Apache-2.0
#include "KvprintTest.h"

#include <QFile>

#include <array>

using test_support::PpdBuilder;
using test_support::RecordedDocument;

namespace {

QString word(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

class KvprintErrors : public KvprintTest {
protected:
    KvprintErrors() { addSampleQueue(tape, QStringLiteral("kvelland-lx900")); }

    /// On the queue, with a picture after the arguments.
    void expectErrorOnTape(const QStringList &words, const QStringList &messageParts)
    {
        expectError(QStringList{QStringLiteral("-d"), tape} + words + QStringList{picture()}, messageParts);
    }
};

TEST_F(KvprintErrors, NameWhatThePrinterDoesNotHave)
{
    const struct {
        const char *option;
        QStringList messageParts;
    } rows[] = {
        {"Colour=Red", {word("Colour"), word("no option")}},
        {"Colour", {word("Colour"), word("no option")}},
        {"kvmirror=ON", {word("kvmirror"), word("no option")}},
        {"PrintDensity=Black", {word("PrintDensity"), word("Black"), word("Dark")}},
        {"PrintDensity=dark", {word("PrintDensity"), word("dark")}},
        {"PrintDensity=Custom.99", {word("PrintDensity"), word("99")}},
        {"PrintDensity=Custom.x", {word("PrintDensity"), word("Custom.x")}},
        {"KvMirror=Custom.1", {word("KvMirror"), word("Custom.1")}},
        {"KvCutLabel=100", {word("KvCutLabel"), word("100")}},
        {"KvMirror=true", {word("KvMirror"), word("true")}},
        {"BeepWhen=JobDone,Never", {word("BeepWhen"), word("Never")}},
        {"PageSize=A4", {word("A4"), word("no paper")}},
        {"media=A4", {word("A4"), word("no paper")}},
    };
    for (const auto &row : rows)
        expectErrorOnTape({QStringLiteral("-o"), word(row.option)}, row.messageParts);
    const RecordedDocument job =
        printed({QStringLiteral("--force"), QStringLiteral("-d"), tape, QStringLiteral("-o"),
                 QStringLiteral("Colour=Red PrintDensity=Black")});
    EXPECT_EQ(job.option("Colour"), "Red");
    EXPECT_EQ(job.option("PrintDensity"), "Black");
}

TEST_F(KvprintErrors, NameBothSidesOfAConflict)
{
    cupsd.addQueue(QStringLiteral("roll"), samplePpd(QStringLiteral("kvelland-dz500")));
    const QStringList words{QStringLiteral("-d"), QStringLiteral("roll"), QStringLiteral("-o"),
                            QStringLiteral("MediaType=Film PrintPriority=Speed")};
    expectError(words + QStringList{picture()},
                {word("Film"), word("Speed"), word("To resolve the conflict")});
    const RecordedDocument job = printed(words + QStringList{QStringLiteral("--force")});
    EXPECT_EQ(job.option("MediaType"), "Film");
    EXPECT_EQ(job.option("PrintPriority"), "Speed");
    // The summary shows the initial settings of the dialog with their conflicts.
    const Outcome summary = kvprint.run(words + QStringList{QStringLiteral("--summary"), picture()});
    EXPECT_EQ(summary.status, 0) << summary;
    EXPECT_TRUE(summary.error.contains("Film") && summary.error.contains("Speed")) << summary;
    EXPECT_TRUE(summary.out.contains("Mirror Printing: No")) << summary;
    // Only reported; nothing is sent.
    const Outcome dryRun =
        kvprint.run(words + QStringList{QStringLiteral("--dry-run"), QStringLiteral("--force"), picture()});
    EXPECT_EQ(dryRun.status, 0) << dryRun;
}

TEST_F(KvprintErrors, AreTheSameForAPpdFileAndForAQueue)
{
    const struct {
        const char *printer;
        const char *options;
        /// Of --summary, --dry-run and printing, and of the last two with --force.
        std::array<int, 5> statuses;
        const char *messagePart;
    } rows[] = {
        {"kvelland-dz500", "KvMirror=ON", {0, 0, 0, 0, 0}, ""},
        {"kvelland-dz500", "MediaType=Film PrintPriority=Speed", {0, 1, 1, 0, 0}, " conflict."},
        {"kvelland-dz500", "MediaType=Gold", {1, 1, 1, 0, 0}, "Gold"},
        {"kvelland-dz500", "NoSuch=ON KvMirror=SIDEWAYS", {1, 1, 1, 0, 0}, "no option \"NoSuch\""},
        {"kvelland-lx900",
         "KvSpecialTape=ON KvHalfCut=ON",
         {0, 0, 0, 0, 0},
         "\"KvHalfCut\" cannot be \"ON\""},
    };
    for (const auto &row : rows)
        cupsd.addQueue(word(row.printer), samplePpd(word(row.printer)));
    const QString force = QStringLiteral("--force");
    const QStringList tasks[] = {{QStringLiteral("--summary")},
                                 {QStringLiteral("--dry-run")},
                                 {QStringLiteral("--no-dialog")},
                                 {QStringLiteral("--dry-run"), force},
                                 {QStringLiteral("--no-dialog"), force}};
    for (const auto &row : rows) {
        for (std::size_t task = 0; task < std::size(tasks); ++task) {
            const QStringList words =
                tasks[task] + QStringList{QStringLiteral("-o"), word(row.options), picture()};
            SCOPED_TRACE(qPrintable(words.join(u' ')));
            const QString file = QStringLiteral(KV_SOURCE_DIR "/resources/ppd/%1.ppd").arg(word(row.printer));
            const std::vector<Outcome> outcomes =
                kvprint.runAll({words + QStringList{QStringLiteral("-d"), word(row.printer)},
                                words + QStringList{QStringLiteral("--ppd"), file}});
            EXPECT_EQ(outcomes[0].status, row.statuses[task]) << outcomes[0];
            EXPECT_EQ(outcomes[1].status, row.statuses[task]) << outcomes[1];
            EXPECT_EQ(outcomes[0].error, outcomes[1].error);
            EXPECT_EQ(outcomes[0].error.isEmpty(), QByteArray(row.messagePart).isEmpty()) << outcomes[0];
            EXPECT_TRUE(outcomes[0].error.contains(row.messagePart)) << outcomes[0];
            EXPECT_EQ(outcomes[0].out.isEmpty(), outcomes[1].out.isEmpty());
        }
    }
}

TEST_F(KvprintErrors, NameDocumentsThatCannotBePrinted)
{
    const QString folderOfDocuments = word(KV_SOURCE_DIR "/tests/data/documents/");
    const QString text = file(word("text.png"), "no picture\n");
    const QString empty = file(word("empty.png"), {});
    const struct {
        QString document;
        QString messagePart;
    } rows[] = {
        {word("/nowhere/label.pdf"), word("/nowhere/label.pdf")},
        {folderOfDocuments + word("empty.pdf"), word("empty.pdf")},
        {folderOfDocuments + word("encrypted.pdf"), word("encrypted.pdf")},
        {folderOfDocuments + word("notpdf.pdf"), word("notpdf.pdf")},
        {folderOfDocuments + word("zero-pages.pdf"), word("zero-pages.pdf")},
        {text, word("text.png")},
        {empty, word("empty.png")},
        {folder.path(), folder.path()},
        {word("/dev/zero"), word("/dev/zero")},
    };
    for (const auto &row : rows) {
        // A good one before it must not be printed either.
        expectError({QStringLiteral("-d"), tape, picture(), row.document}, {row.messagePart});
    }
    expectError({QStringLiteral("-d"), tape, QStringLiteral("-")}, {QStringLiteral("standard input")});
    expectError({QStringLiteral("-d"), tape, QStringLiteral("-")}, {QStringLiteral("standard input")},
                "nothing good");
    for (const char *pages : {"2", "5-", "1,3"})
        expectErrorOnTape({QStringLiteral("-P"), word(pages)}, {QStringLiteral("page")});
}

TEST_F(KvprintErrors, DoNotHoldWhatReadersPassOver)
{
    QFile whole(picture());
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    QByteArray png = whole.readAll();
    // PNG: a chunk of text with a wrong checksum behind the signature and the header.
    constexpr qsizetype headerEnd = 8 + 25;
    png.insert(headerEnd, QByteArray("\0\0\0\4tEXtabcd\0\0\0\0", 16));
    const QString svg =
        file(word("unresolved.svg"), "<svg xmlns='http://www.w3.org/2000/svg' width='9mm' height='9mm'>"
                                     "<rect width='4' height='4' fill='url(#nowhere)'/></svg>");
    for (const QString &document : {file(word("checksum.png"), png), svg}) {
        const Outcome outcome = kvprint.run({QStringLiteral("-d"), tape, document});
        EXPECT_EQ(outcome.status, 0) << outcome;
        EXPECT_EQ(outcome.error, QByteArray());
    }
}

TEST_F(KvprintErrors, NameQueuesThatCannotBePrintedOn)
{
    expectError({QStringLiteral("-d"), QStringLiteral("nowhere"), picture()},
                {QStringLiteral("\"nowhere\"")});
    cupsd.reject(tape, QStringLiteral("Blade is being changed"));
    expectErrorOnTape({}, {tape});
    cupsd.removeQueue(tape);
    expectErrorOnTape({}, {QStringLiteral("\"tape\"")});
}

TEST_F(KvprintErrors, LookAtThePpdThatTheServerHasNow)
{
    EXPECT_EQ(printed({QStringLiteral("-d"), tape, QStringLiteral("-o"), QStringLiteral("KvCutMark=ON")})
                  .option("KvCutMark"),
              "ON");
    cupsd.addQueue(tape, PpdBuilder().options({"KvMirror"}).paper("other", 100, 200).ppd());
    expectErrorOnTape({QStringLiteral("-o"), QStringLiteral("KvCutMark=ON")}, {QStringLiteral("KvCutMark")});
    expectErrorOnTape({QStringLiteral("--paper"), QStringLiteral("12x50mm")}, {QStringLiteral("12x50mm")});
    EXPECT_EQ(printed({QStringLiteral("-d"), tape, QStringLiteral("--paper"), QStringLiteral("other")})
                  .option("PageSize"),
              "other");
}

TEST_F(KvprintErrors, RefusePpdsThatSayNothing)
{
    cupsd.addQueue(QStringLiteral("bad"), PpdBuilder().allOptions().ppd());
    const QString kept = cupsd.path(QStringLiteral("etc/ppd/bad.ppd"));
    const QByteArray good = samplePpd(QStringLiteral("kvelland-lx900"));
    const QByteArray rows[] = {
        good.left(2000),
        good.left(good.size() / 2),
        good + QByteArray(50 << 20, '*'),
        good + QByteArray("*% comment\n").repeated(5 << 20),
        QByteArray(100000, '\0'),
        "*PPD-Adobe: \"4.3\"\n" + QByteArray("*OpenGroup: A/A\n").repeated(100000),
        QByteArray("\xff\xfe\x00*", 4),
    };
    for (const QByteArray &ppd : rows) {
        SCOPED_TRACE("PPD of " + std::to_string(ppd.size()) + " bytes: " + ppd.left(40).toStdString());
        QFile file(kept);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(ppd);
        file.close();
        const QList<int> before = jobStates().keys();
        const Outcome outcome = print({QStringLiteral("-d"), QStringLiteral("bad")});
        EXPECT_EQ(outcome.status, 1) << outcome;
        EXPECT_EQ(outcome.out, QByteArray());
        EXPECT_TRUE(outcome.error.startsWith("kvprint: ")) << outcome;
        EXPECT_EQ(jobStates().keys(), before);
    }
}

TEST_F(KvprintErrors, NameWhatAPpdHasTooManyOf)
{
    QByteArray ppd = samplePpd(QStringLiteral("kvelland-lx900"));
    const qsizetype own = ppd.count("*OpenUI ");
    constexpr int more = 100'000;
    for (int i = 0; i < more; ++i) {
        const QByteArray name = "Opt" + QByteArray::number(i);
        ppd += "*OpenUI *" + name + "/Option: PickOne\n*Default" + name + ": A\n*" + name + " A: \"\"\n*" +
               name + " B: \"\"\n*CloseUI: *" + name + '\n';
    }
    const QString path = file(QStringLiteral("large.ppd"), ppd);
    expectError(
        {QStringLiteral("--ppd"), path, picture()},
        {path, QStringLiteral("it has %1 \"*OpenUI\" statements; the maximum is 5000").arg(own + more)});
}

TEST_F(KvprintErrors, NameChangesOfAJobThatItsPrinterDoesNotHave)
{
    cupsd.addRawQueue(word("raw"));
    const QStringList hold{word("-H"), word("hold"), word("-d")};
    const int onTape = print(hold + QStringList{tape}).jobId();
    const int onRaw = print(hold + QStringList{word("raw")}).jobId();
    ASSERT_TRUE(onTape > 0 && onRaw > 0);
    const QMap<QByteArray, QByteArray> before = jobAttributes(onTape);
    const auto change = [&](int jobId, const QStringList &words) {
        return kvprint.run(QStringList{word("-i"), QString::number(jobId)} + words);
    };
    const struct {
        QStringList words;
        QStringList messageParts;
    } rows[] = {
        {{word("-o"), word("KvHalfCut=MAYBE"), word("-o"), word("Foo=1")},
         {word("KvHalfCut"), word("MAYBE"), word("\"Foo\"")}},
        {{word("-t"), word("Other"), word("-o"), word("Foo=1")}, {word("\"Foo\"")}},
        {{word("--paper"), word("A4")}, {word("A4"), word("no paper")}},
        {{word("-o"), word("media=A4")}, {word("A4"), word("no paper")}},
    };
    for (const auto &row : rows) {
        const Outcome outcome = change(onTape, row.words);
        EXPECT_EQ(outcome.status, 1) << outcome;
        EXPECT_EQ(outcome.out, QByteArray());
        for (const QString &part : row.messageParts)
            EXPECT_TRUE(outcome.error.contains(part.toUtf8())) << qPrintable(part) << "\n" << outcome;
    }
    for (const char *name : {"KvHalfCut", "Foo", "PageSize", "job-name"})
        EXPECT_EQ(jobAttributes(onTape).value(name), before.value(name)) << name;

    const QStringList unknown{word("-o"), word("KvHalfCut=MAYBE Foo=1")};
    EXPECT_EQ(change(onTape, unknown + QStringList{word("--force")}).status, 0);
    EXPECT_EQ(jobAttributes(onTape).value("KvHalfCut"), "MAYBE");
    EXPECT_EQ(change(onTape, {word("-o"), word("KvHalfCut=ON job-priority=7")}).status, 0);
    EXPECT_EQ(jobAttributes(onTape).value("KvHalfCut"), "ON");
    // The options of a queue without a PPD are unknown.
    EXPECT_EQ(change(onRaw, unknown).status, 0);
    EXPECT_EQ(jobAttributes(onRaw).value("Foo"), "1");

    const Outcome absent = change(4711, unknown);
    EXPECT_EQ(absent.status, 1) << absent;
    EXPECT_TRUE(absent.error.startsWith("kvprint: Job 4711 was not changed. ")) << absent;
}

TEST_F(KvprintErrors, OfTheCommandLineHaveAStatusOfTheirOwn)
{
    for (const QStringList &words :
         {QStringList{word("--what")}, QStringList{word("-n"), word("0")},
          QStringList{word("-n"), word("many")}, QStringList{word("-q"), word("101")},
          QStringList{word("-P"), word("3-1")}, QStringList{word("-d"), word("")},
          QStringList{word("-H"), word("sometime")}, QStringList{word("--json")}, QStringList{word("-o")}}) {
        const Outcome outcome = kvprint.run(words);
        EXPECT_EQ(outcome.status, 2) << qPrintable(words.join(u' ')) << "\n" << outcome;
        EXPECT_EQ(outcome.out, QByteArray());
        EXPECT_TRUE(outcome.error.startsWith("kvprint: ")) << outcome;
    }
}
