// SPDX-License-Identifier: Apache-2.0

#include <QDir>
#include <QFile>

#include <host/base/Length.h>
#include <host/printer/PpdOptions.h>
#include <tests/samples/SamplePpd.h>

#include <gtest/gtest.h>

#include <cups/file.h>
#include <sys/stat.h>

using host::PpdErrorKind;
using host::PpdFile;

namespace {

void writeGzip(const QString &path, const QByteArray &content)
{
    cups_file_t *const file = cupsFileOpen(path.toLocal8Bit().constData(), "w9");
    ASSERT_NE(file, nullptr);
    cupsFileWrite(file, content.constData(), static_cast<std::size_t>(content.size()));
    cupsFileClose(file);
}

/// The tape PPD up to and including the first appearance of the text.
QByteArray cutAfter(const QByteArray &text)
{
    const QByteArray whole = tapePpd();
    return whole.left(whole.indexOf(text) + text.size());
}

struct BadPpd {
    const char *name;
    QByteArray content;
    PpdErrorKind kind;
    const char *reason;
};

} // namespace

TEST(PpdFile, RefusesWithTheReasonAndTheLine)
{
    const BadPpd rows[] = {
        {"empty", "", PpdErrorKind::NotAPpd, "it is empty"},
        {"picture", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\"", 17), PpdErrorKind::NotAPpd, "line 1: "},
        {"text", "Dear printer,\nplease print.\n", PpdErrorKind::NotAPpd,
         "line 1: Missing asterisk in column 1"},
        {"other statements", "*Recipe: \"tea\"\n", PpdErrorKind::NotAPpd,
         "line 1: Missing PPD-Adobe-4.x header"},
        {"a stray line", "*PPD-Adobe: \"4.3\"\n*NickName: \"x\"\nstray\n", PpdErrorKind::NotAPpd,
         "line 3: Missing asterisk"},
        {"cut in a value", cutAfter("*NickName: \"Kvel"), PpdErrorKind::Truncated,
         "in the middle of a value"},
    };
    const Sandbox sandbox;
    for (const BadPpd &row : rows) {
        const QString path = sandbox.write(QString::fromUtf8(row.name), row.content);
        const auto ppd = PpdFile::open(path);
        ASSERT_FALSE(ppd) << row.name;
        EXPECT_EQ(ppd.error().kind, row.kind) << row.name << ": " << ppd.error().message.toStdString();
        EXPECT_TRUE(ppd.error().message.contains(path)) << ppd.error().message.toStdString();
        EXPECT_TRUE(ppd.error().message.contains(QLatin1String(row.reason)))
            << row.name << ": " << ppd.error().message.toStdString();
    }
}

// In the PPDs of some printers the last *CloseUI is missing; the server prints with them.
TEST(PpdFile, OpensWithoutTheEndOfTheLastOption)
{
    const std::pair<QByteArray, int> rows[] = {
        {cutAfter("*KvHalfCut OFF/Off: \"\"\n*KvHalfCut ON/On: \"\"\n"), 2},
        {cutAfter("*KvHalfCut OFF/Off: \"\""), 1},
        {cutAfter("*OpenUI *KvHalfCut/Half Cut: PickOne\n"), 0},
        {tapePpd() + "*JCLOpenUI *KvHold/Hold: PickOne\n*DefaultKvHold: On\n*KvHold On/On: \"\"\n", 2},
    };
    const Sandbox sandbox;
    for (const auto &[content, choices] : rows) {
        auto ppd = PpdFile::open(sandbox.write(QStringLiteral("open.ppd"), content));
        ASSERT_TRUE(ppd) << ppd.error().message.toStdString();
        ppd.value().markDefaults();
        EXPECT_EQ(ppd.value().papers().size(), 4U);
        const auto option = host::PpdOptions(ppd.value()).option("KvHalfCut");
        ASSERT_TRUE(option);
        EXPECT_EQ(option->choices.size(), choices);
    }
}

TEST(PpdFile, RefusesWhatIsNoReadableFile)
{
    const Sandbox sandbox;
    const auto missing = PpdFile::open(sandbox.path(QStringLiteral("absent.ppd")));
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().kind, PpdErrorKind::Missing);

    const auto folder = PpdFile::open(sandbox.path(QStringLiteral(".")));
    ASSERT_FALSE(folder);
    EXPECT_EQ(folder.error().kind, PpdErrorKind::NotAFile);

    const QString pipe = sandbox.path(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    const auto fromPipe = PpdFile::open(pipe);
    ASSERT_FALSE(fromPipe);
    EXPECT_EQ(fromPipe.error().kind, PpdErrorKind::NotAFile);

    // A path through a file, since the administrator may read whatever permissions say.
    sandbox.write(QStringLiteral("plain"), "x");
    const auto through = PpdFile::open(sandbox.path(QStringLiteral("plain/under.ppd")));
    ASSERT_FALSE(through);
    EXPECT_EQ(through.error().kind, PpdErrorKind::Missing);
}

TEST(PpdFile, RefusesHugeFilesPlainAndPacked)
{
    const Sandbox sandbox;
    QFile plain(sandbox.path(QStringLiteral("huge.ppd")));
    ASSERT_TRUE(plain.open(QIODevice::WriteOnly) && plain.resize(50LL * 1024 * 1024));
    const auto fromPlain = PpdFile::open(plain.fileName());
    ASSERT_FALSE(fromPlain);
    EXPECT_EQ(fromPlain.error().kind, PpdErrorKind::TooLarge);
    EXPECT_TRUE(fromPlain.error().message.contains(QStringLiteral("larger than 16 MB")));

    const QString packed = sandbox.path(QStringLiteral("huge.ppd.gz"));
    writeGzip(packed, tapePpd() + QByteArray(50LL * 1024 * 1024, '\n'));
    EXPECT_LT(QFile(packed).size(), 100'000);
    const auto fromPacked = PpdFile::open(packed);
    ASSERT_FALSE(fromPacked);
    EXPECT_EQ(fromPacked.error().kind, PpdErrorKind::TooLarge);
}

TEST(PpdFile, OpensGzipAndNoticesWhenItsEndIsMissing)
{
    const Sandbox sandbox;
    const QString path = sandbox.path(QStringLiteral("tape.ppd.gz"));
    writeGzip(path, tapePpd());
    EXPECT_TRUE(PpdFile::open(path));

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    for (const qsizetype length : {whole.size() / 2, whole.size() - 8, whole.size() - 1}) {
        const auto cut = PpdFile::open(sandbox.write(QStringLiteral("cut.ppd.gz"), whole.left(length)));
        ASSERT_FALSE(cut) << length << " of " << whole.size();
        EXPECT_EQ(cut.error().kind, PpdErrorKind::Truncated) << cut.error().message.toStdString();
    }
}

TEST(PpdFile, OpensEveryKindOfLineEnd)
{
    const Sandbox sandbox;
    for (const char *const end : {"\n", "\r\n", "\r"}) {
        const auto ppd =
            PpdFile::open(sandbox.write(QStringLiteral("tape.ppd"), tapePpd().replace("\n", end)));
        ASSERT_TRUE(ppd) << ppd.error().message.toStdString();
        EXPECT_EQ(ppd.value().papers().size(), 4U);
    }
}

TEST(PpdFile, GivesPapersExactlyAsThePpdHasThem)
{
    const Sandbox sandbox;
    const PpdFile ppd = openTapePpd(sandbox);
    const std::vector<host::PpdPaper> papers = ppd.papers();
    ASSERT_EQ(papers.size(), 4U);
    EXPECT_EQ(papers[0].name, "W24H60");
    EXPECT_EQ(papers[0].text, QStringLiteral("Tape 24 mm x 60 mm"));
    EXPECT_NEAR(papers[0].size.width(), 68.031, 1e-4);
    EXPECT_NEAR(papers[0].size.height(), 170.079, 1e-4);
    ASSERT_TRUE(papers[0].margins);
    EXPECT_NEAR(papers[0].margins->top(), 170.079 - 164.409, 1e-4);
    EXPECT_NEAR(papers[0].margins->bottom(), 2.835, 1e-4);
    EXPECT_FALSE(papers[1].margins);
    // Two papers of equal size stay two.
    EXPECT_EQ(papers[2].size, papers[3].size);
    EXPECT_NE(papers[2].name, papers[3].name);
    EXPECT_TRUE(ppd.paper("DC52x75R"));
    EXPECT_FALSE(ppd.paper("dc52x75r")) << "names are compared byte for byte";
    EXPECT_FALSE(ppd.paper("A4"));
    EXPECT_FALSE(ppd.paper("Custom"));
    EXPECT_EQ(ppd.markedPaper()->name, "W24H60");
}

// To libcups such papers are one, of the last one's size.
TEST(PpdFile, KeepsPapersApartWhoseNamesDifferInTheCaseOfLettersOnly)
{
    const QByteArray head = "*PPD-Adobe: \"4.3\"\n*LanguageEncoding: UTF-8\n*LanguageVersion: English\n"
                            "*NickName: \"Kvelland Tape\"\n";
    const QByteArray choices = "*OpenUI *PageSize/Size: PickOne\n*DefaultPageSize: TAPE\n"
                               "*PageSize tape/Small: \"\"\n*PageSize TAPE/Large: \"\"\n"
                               "*PageSize Tape/Long: \"\"\n*PageSize Sizeless/None: \"\"\n"
                               "*PageSize plain: \"\"\n*CloseUI: *PageSize\n";
    const QByteArray sizes = "*PaperDimension tape/Small: \"34 100\"\n*PaperDimension TAPE: \"68.5 200\"\n"
                             "*PaperDimension  Tape/Long:  \"34 800\"\n*PaperDimension plain: \"20 30\"\n"
                             "*PaperDimension Choiceless: \"50 60\"\n"
                             "*ImageableArea TAPE/Large: \"1 2 67.5 197\"\n";
    const Sandbox sandbox;
    auto opened = PpdFile::open(sandbox.write(QStringLiteral("twins.ppd"), head + choices + sizes));
    ASSERT_TRUE(opened) << opened.error().message.toStdString();
    PpdFile ppd = std::move(opened).value();
    const std::tuple<const char *, const char *, QSizeF> rows[] = {
        {"tape", "Small", QSizeF(34.0, 100.0)},
        {"TAPE", "Large", QSizeF(68.5, 200.0)},
        {"Tape", "Long", QSizeF(34.0, 800.0)},
        {"plain", "plain", QSizeF(20.0, 30.0)},
    };
    const std::vector<host::PpdPaper> papers = ppd.papers();
    ASSERT_EQ(papers.size(), std::size(rows));
    ppd.markDefaults();
    EXPECT_EQ(ppd.markedPaper()->name, "TAPE");
    for (std::size_t i = 0; i < papers.size(); ++i) {
        const auto &[name, text, size] = rows[i];
        EXPECT_EQ(papers[i].name, name);
        EXPECT_EQ(papers[i].text, QString::fromUtf8(text));
        EXPECT_EQ(papers[i].size, size);
        ASSERT_TRUE(ppd.paper(name)) << name;
        EXPECT_EQ(ppd.paper(name)->size, size);
        EXPECT_EQ(ppd.paper(name)->text, QString::fromUtf8(text));
        ppd.mark(QStringLiteral("PageSize"), QString::fromUtf8(name));
        EXPECT_EQ(ppd.markedPaper()->name, name);
    }
    ASSERT_TRUE(papers[1].margins);
    EXPECT_EQ(*papers[1].margins, QMarginsF(1.0, 3.0, 1.0, 2.0));
    for (const char *const absent : {"Sizeless", "Choiceless", "TaPe", "PLAIN"})
        EXPECT_FALSE(ppd.paper(absent)) << absent;
}

TEST(PpdFile, TakesFreeSizesWithinItsLimits)
{
    const Sandbox sandbox;
    const PpdFile ppd = openTapePpd(sandbox);
    ASSERT_TRUE(ppd.customLimits());
    EXPECT_NEAR(ppd.customLimits()->largest.height(), 2835.0, 1e-3);
    const auto fits = ppd.paper("Custom.24x100mm");
    ASSERT_TRUE(fits);
    EXPECT_EQ(fits->name, "Custom.24x100mm");
    EXPECT_NEAR(fits->size.height(), host::Points(host::Millimetres(100.0)).number(), 0.01);
    EXPECT_FALSE(ppd.paper("Custom.24x1100mm"));
    EXPECT_FALSE(ppd.paper("Custom.30x100mm"));
    EXPECT_FALSE(ppd.paper("Custom.24x5mm"));
    EXPECT_FALSE(ppd.paper("Custom.rubbish"));
}

TEST(PpdFile, TakesFreeSizesOnlyAsTheServersFiltersReadThem)
{
    const std::pair<const char *, std::optional<QSizeF>> rows[] = {
        {"Custom.24x60mm", QSizeF(68.031, 170.079)},
        {"Custom.2.4x6cm", QSizeF(68.031, 170.079)},
        {"Custom..024x.06m", QSizeF(68.031, 170.079)},
        {"Custom.0.5x2in", QSizeF(36.0, 144.0)},
        {"Custom.0.05x0.1ft", QSizeF(43.2, 86.4)},
        {"Custom.68x170", QSizeF(68.0, 170.0)},
        {"Custom.68x170pt", QSizeF(68.0, 170.0)},
        {"Custom.24x60nm", {}},
        {"Custom.24x60furlong", {}},
        {"Custom.24x60mmJUNK", {}},
        {"Custom.24x60mm,foo", {}},
        {"Custom.24x60mmx3", {}},
        {"Custom.24x60x3mm", {}},
        {"Custom.24mmx60mm", {}},
        {"Custom. 24x60mm", {}},
        {"Custom.24x 60mm", {}},
        {"Custom.24x60 mm", {}},
        {"Custom.24x60mm ", {}},
        {"Custom.24X60mm", {}},
        {"Custom.2.4e1x60mm", {}},
        {"Custom.24x0x60mm", {}},
        {"Custom.-24x-60mm", {}},
        {"Custom.24,5x60mm", {}},
        {"Custom.nanxnan", {}},
        {"Custom.24x", {}},
        {"Custom.x60mm", {}},
        {"Custom.", {}},
        {"custom.24x60mm", {}},
    };
    const Sandbox sandbox;
    const PpdFile ppd = openTapePpd(sandbox);
    for (const auto &[name, size] : rows) {
        const auto paper = ppd.paper(name);
        ASSERT_EQ(paper.has_value(), size.has_value()) << name;
        if (!paper)
            continue;
        EXPECT_NEAR(paper->size.width(), size->width(), 0.01) << name;
        EXPECT_NEAR(paper->size.height(), size->height(), 0.01) << name;
    }
}

TEST(PpdFile, MarksAndReadsChoices)
{
    const Sandbox sandbox;
    PpdFile ppd = openTapePpd(sandbox);
    const QString halfCut = QStringLiteral("KvHalfCut");
    EXPECT_EQ(ppd.markedChoice(halfCut), QStringLiteral("ON"));
    ppd.mark(halfCut, QStringLiteral("OFF"));
    EXPECT_EQ(ppd.markedChoice(halfCut), QStringLiteral("OFF"));
    EXPECT_EQ(ppd.defaultChoice(halfCut), QStringLiteral("ON"));
    ppd.mark(halfCut, QStringLiteral("Perhaps"));
    ppd.mark(QStringLiteral("KvAbsent"), QStringLiteral("ON"));
    EXPECT_EQ(ppd.markedChoice(halfCut), QStringLiteral("OFF"));
    EXPECT_EQ(ppd.markedChoice(QStringLiteral("KvAbsent")), std::nullopt);
    EXPECT_EQ(ppd.defaultChoice(QStringLiteral("KvAbsent")), std::nullopt);
    EXPECT_FALSE(ppd.hasOption(QStringLiteral("KvAbsent")));
}

TEST(PpdFile, TurnsTextsIntoTheLanguageWhereThePpdHasThem)
{
    const Sandbox sandbox;
    PpdFile ppd = openTapePpd(sandbox);
    ppd.localize(QStringLiteral("de_AT"));
    EXPECT_EQ(ppd.optionText(QStringLiteral("KvHalfCut")), QStringLiteral("Halbschnitt"));
    EXPECT_EQ(ppd.choiceText(QStringLiteral("KvHalfCut"), QStringLiteral("ON")), QStringLiteral("Ein"));
    EXPECT_EQ(ppd.choiceText(QStringLiteral("KvHalfCut"), QStringLiteral("OFF")), QStringLiteral("Off"));
    EXPECT_EQ(ppd.papers()[0].text, QStringLiteral("Band 24 mm x 60 mm"));
    EXPECT_EQ(ppd.papers()[1].text, QStringLiteral("Tape 12 mm x 60 mm"));
    EXPECT_EQ(ppd.optionText(QStringLiteral("KvMirror")), QStringLiteral("Mirror"));
}

TEST(PpdFile, CutsLongTranslationsAtTheEndOfACharacter)
{
    const Sandbox sandbox;
    // 45 characters of two bytes: more than the 80 bytes that a record holds.
    const QByteArray text =
        tapePpd() + "*de.KvMirror ON/" + "a" + QByteArray("\xC3\xA4").repeated(45) + ": \"\"\n";
    auto ppd = PpdFile::open(sandbox.write(QStringLiteral("long.ppd"), text));
    ASSERT_TRUE(ppd) << ppd.error().message.toStdString();
    ppd.value().localize(QStringLiteral("de"));
    const QString shown = ppd.value().choiceText(QStringLiteral("KvMirror"), QStringLiteral("ON"));
    EXPECT_FALSE(shown.contains(QChar::ReplacementCharacter)) << shown.toStdString();
    EXPECT_EQ(shown.size(), 40);
}
