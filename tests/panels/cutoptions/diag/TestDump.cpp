// SPDX-License-Identifier: Apache-2.0
#include <diag/Dump.h>
#include <platform/Log.h>
#include <platform/PropertyList.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <memory>

#include <unistd.h>

namespace {

struct PpdClose {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using PpdPointer = std::unique_ptr<ppd_file_t, PpdClose>;

constexpr char ppdText[] = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "LABEL.PPD"
*Product: "(Label)"
*PSVersion: "(3010.000) 0"
*Manufacturer: "Label"
*ModelName: "Label"
*ShortNickName: "Label"
*NickName: "Label"
*OpenUI *KvHalfCut/Half Cut: PickOne
*OrderDependency: 12.5 DocumentSetup *KvHalfCut
*DefaultKvHalfCut: ON
*KvHalfCut OFF/Off: ""
*KvHalfCut ON/On: ""
*CloseUI: *KvHalfCut
)ppd";

class Dump : public testing::Test {
protected:
    Dump()
    {
        platform::setLogSink([this](const QString &line) { lines.append(line); });
        QTemporaryFile file;
        EXPECT_TRUE(file.open());
        file.write(ppdText);
        file.flush();
        ppd.reset(ppdOpenFile(file.fileName().toLocal8Bit().constData()));
    }
    ~Dump() override { platform::setLogSink({}); }

    ppd_option_t *option() const { return ppdFindOption(ppd.get(), "KvHalfCut"); }

    QStringList lines;
    PpdPointer ppd;
};

/// The property list after plistutil has turned it into its binary form and back.
std::optional<QVariant> throughPlistutil(const QString &path)
{
    const QTemporaryDir folder;
    QString from = path;
    for (const char *format : {"bin", "xml"}) {
        const QString to = folder.filePath(QString::fromLatin1(format));
        if (QProcess::execute("plistutil", {"-i", from, "-o", to, "-f", format}) != 0)
            return std::nullopt;
        from = to;
    }
    QFile file(from);
    return file.open(QIODevice::ReadOnly) ? platform::fromXmlPropertyList(file.readAll()) : std::nullopt;
}

QString dumpFile(const QString &name)
{
    return QStringLiteral("/KvPDE_%1.plist").arg(name);
}

} // namespace

TEST_F(Dump, OptionLineByLine)
{
    ASSERT_TRUE(ppd);
    _PDELog_ppd_option_t(ppd.get(), "KvHalfCut");
    EXPECT_EQ(lines, QStringList({
                         "+-+-+-+-+-+-+-+-+-+- start is KvHalfCut",
                         "***** conflicted | ",
                         "***** keyword | KvHalfCut",
                         "***** defchoice | ON",
                         "***** text | Half Cut",
                         "***** ui == 1",
                         "***** section == 1",
                         "***** order == 12.500000",
                         "***** num_choices == 2",
                         "***** choices->marked | ",
                         "***** choices->choice | OFF",
                         "***** choices->text | Off",
                         "+-+-+-+-+-+-+-+-+-+- end is KvHalfCut",
                     }));
}

TEST_F(Dump, FlagsThatAreOnShowWhatFollowsThem)
{
    ASSERT_TRUE(ppd);
    option()->conflicted = 1;
    option()->choices[0].marked = 1;
    _PDELog_ppd_option_t(ppd.get(), "KvHalfCut");
    ASSERT_EQ(lines.size(), 13);
    EXPECT_EQ(lines[1], QStringLiteral("***** conflicted | \u0001KvHalfCut"));
    EXPECT_EQ(lines[9], QStringLiteral("***** choices->marked | \u0001OFF"));
}

TEST_F(Dump, FlagTextEndsWithTheRecordAtTheLatest)
{
    ASSERT_TRUE(ppd);
    ppd_choice_t &choice = option()->choices[0];
    choice.marked = 1;
    std::fill(std::begin(choice.choice), std::end(choice.choice), 'c');
    std::fill(std::begin(choice.text), std::end(choice.text), 't');
    choice.text[sizeof choice.text - 1] = '\0';
    _PDELog_ppd_option_t(ppd.get(), "KvHalfCut");
    EXPECT_EQ(lines[9], QStringLiteral("***** choices->marked | \u0001") +
                            QString(sizeof choice.choice, u'c') + QString(sizeof choice.text - 1, u't'));
}

TEST_F(Dump, WhatIsMissingIsToldInOneLine)
{
    ASSERT_TRUE(ppd);
    _PDELog_ppd_option_t(nullptr, "KvHalfCut");
    _PDELog_ppd_option_t(nullptr, nullptr);
    _PDELog_ppd_option_t(ppd.get(), nullptr);
    _PDELog_ppd_option_t(ppd.get(), "KvMirror");
    EXPECT_EQ(lines, QStringList({"PPD file is not loaded!!", "PPD file is not loaded!!",
                                  "ppdOptionName is NULL!!", "the PPD has no option KvMirror"}));
}

TEST_F(Dump, OptionWithoutChoicesShowsNone)
{
    ASSERT_TRUE(ppd);
    const int count = std::exchange(option()->num_choices, 0);
    _PDELog_ppd_option_t(ppd.get(), "KvHalfCut");
    option()->num_choices = count;
    ASSERT_EQ(lines.size(), 13);
    EXPECT_EQ(lines[8], QStringLiteral("***** num_choices == 0"));
    EXPECT_EQ(lines.mid(9, 3),
              QStringList({"***** choices->marked | (null)", "***** choices->choice | (null)",
                           "***** choices->text | (null)"}));
}

TEST(SettingsDump, WritesThePropertyListToTheRootFolder)
{
    platform::PrintSettings settings;
    settings.setValue(QStringLiteral("KvHalfCut"), QStringLiteral("ON & <off> é"));
    settings.setValue(QStringLiteral("copies"), 3);
    settings.setValue(QStringLiteral("ticket"), QByteArray("\0\1\2", 3));
    settings.setValue(QStringLiteral("collate"), true);
    const QString name = QStringLiteral("kvtest%1").arg(::getpid());
    const QString path = dumpFile(name);
    _PDELog_PMPrintSettings_WriteToFile(&settings, name);
    if (::access("/", W_OK) != 0) {
        EXPECT_FALSE(QFile::exists(path)) << "nothing is written where the process may not write";
        return;
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    const QByteArray xml = file.readAll();
    const std::optional<QVariant> readByOthers = throughPlistutil(path);
    // A second dump replaces the first, and leaves no temporary file behind.
    settings.remove(QStringLiteral("ticket"));
    _PDELog_PMPrintSettings_WriteToFile(&settings, name);
    file.close();
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray second = file.readAll();
    EXPECT_EQ(QDir(QStringLiteral("/"))
                  .entryList({QStringLiteral("KvPDE_%1*").arg(name)}, QDir::AllEntries | QDir::Hidden),
              QStringList(QFileInfo(path).fileName()));
    EXPECT_TRUE(file.remove());

    const std::optional<QVariant> read = platform::fromXmlPropertyList(xml);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->toMap().keys(), QStringList({"KvHalfCut", "collate", "copies", "ticket"}));
    EXPECT_EQ(read->toMap().value("KvHalfCut"), QStringLiteral("ON & <off> é"));
    EXPECT_EQ(read->toMap().value("copies"), 3);
    ASSERT_TRUE(readByOthers);
    EXPECT_EQ(*readByOthers, *read);
    const std::optional<QVariant> readAgain = platform::fromXmlPropertyList(second);
    ASSERT_TRUE(readAgain);
    EXPECT_EQ(readAgain->toMap().keys(), QStringList({"KvHalfCut", "collate", "copies"}));
}

TEST(SettingsDump, NullsWriteNothing)
{
    platform::PrintSettings settings;
    const QString name = QStringLiteral("kvtest%1").arg(::getpid());
    _PDELog_PMPrintSettings_WriteToFile(nullptr, name);
    EXPECT_FALSE(QFile::exists(dumpFile(name)));
    _PDELog_PMPrintSettings_WriteToFile(&settings, std::nullopt);
    EXPECT_FALSE(QFile::exists(dumpFile(QString())));
    EXPECT_FALSE(QFile::exists(dumpFile(QStringLiteral("(null)"))));
}

TEST(SettingsDump, FolderThatIsNotThereWritesNothing)
{
    platform::PrintSettings settings;
    _PDELog_PMPrintSettings_WriteToFile(&settings, QStringLiteral("no/such/folder"));
    EXPECT_FALSE(QFile::exists(QStringLiteral("/KvPDE_no")));
}
