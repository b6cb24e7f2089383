// SPDX-License-Identifier: Apache-2.0
// Adds an option to a copy of the bundle's sources as "Adding a tenth option" in ARCHITECTURE.md says, builds
// the bundle and operates its panel. The panel must need no other change.
#include <tests/support/PpdBuilder.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

/// Text that is inserted before the only occurrence of another one.
struct Insertion {
    QString file;
    QByteArray before;
    QByteArray text;
};

const QString tableFile = QStringLiteral("panels/cutoptions/table/OptionTable.h");
const QString layoutFile = QStringLiteral("panels/cutoptions/resources/layout/OptionPDE.ui");
const QString stringsFolder = QStringLiteral("panels/cutoptions/resources/strings");

/// The option's value and row in the table, and its check box in the layout file.
QList<Insertion> insertions()
{
    return {
        {tableFile, "    /// Not an option: the number of options.\n", "    TestOption,\n"},
        {tableFile, "}};\n\n/// The row of the option.\n", R"(    {
        .kind = OptionKind::TestOption,
        .keyword = "KvTestOption",
        .item = 0x100000,
        .boxName = "mTestOptionChkBx",
        .selectionName = "mTestOption_Selection",
        .titleKey = "RS_TestOption",
        .summaryKey = "RS_STitle_TestOption",
        .panelPlace = 10,
        .summaryPlace = 10,
    },
)"},
        {layoutFile, "  <widget class=\"PopUpButton\"", R"(  <widget class="CheckBox" name="mTestOptionChkBx">
   <property name="geometry">
    <rect><x>16</x><y>278</y><width>256</width><height>20</height></rect>
   </property>
  </widget>
)"},
    };
}

/// The sources of the bundle in a temporary folder, which can be built alone.
class BundleSources {
public:
    BundleSources()
    {
        for (const char *folder : {"cmake", "protocol", "panels"})
            copyFolder(QLatin1String(folder));
        EXPECT_TRUE(
            QFile::copy(QStringLiteral(KV_SOURCE_DIR "/tests/panels/cutoptions/tenth/project/CMakeLists.txt"),
                        path(QStringLiteral("CMakeLists.txt"))));
    }

    QString path(const QString &file) const { return m_folder.filePath(file); }
    QString bundle() const { return path(QStringLiteral("build/KVLXDZOptions.bundle")); }

    void replace(const QString &file, const QByteArray &from, const QByteArray &to)
    {
        QFile source(path(file));
        ASSERT_TRUE(source.open(QIODevice::ReadWrite)) << file.toStdString();
        QByteArray contents = source.readAll();
        ASSERT_EQ(contents.count(from), 1) << file.toStdString() << ": " << from.toStdString();
        contents.replace(from, to);
        source.resize(0);
        source.seek(0);
        source.write(contents);
    }

    /// Builds the bundle. Prints the output of the build if it fails.
    bool build()
    {
        return run({QStringLiteral("-G"), QStringLiteral(KV_GENERATOR), QStringLiteral("-S"), m_folder.path(),
                    QStringLiteral("-B"), path(QStringLiteral("build")),
                    // Without optimization: compiling costs more than running.
                    QStringLiteral("-DCMAKE_BUILD_TYPE=Debug"), QStringLiteral("-DCMAKE_CXX_FLAGS_DEBUG=-O0"),
                    QStringLiteral("-DCMAKE_CXX_COMPILER=" KV_COMPILER),
                    QStringLiteral("-DCMAKE_CXX_FLAGS=" KV_COMPILER_FLAGS),
                    QStringLiteral("-DKV_EXISTING_BUILD=" KV_BINARY_DIR)}) &&
               run({QStringLiteral("--build"), path(QStringLiteral("build")), QStringLiteral("--target"),
                    QStringLiteral("KVLXDZOptions")});
    }

private:
    void copyFolder(const QString &folder)
    {
        const QDir sources(QStringLiteral(KV_SOURCE_DIR));
        QDirIterator files(sources.filePath(folder), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString copy = path(sources.relativeFilePath(files.next()));
            ASSERT_TRUE(QDir().mkpath(QFileInfo(copy).path()));
            ASSERT_TRUE(QFile::copy(files.filePath(), copy)) << copy.toStdString();
            // The copies of files that cannot be written are edited, too.
            QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
        }
    }

    static bool run(const QStringList &arguments)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(KV_CMAKE), arguments);
        const bool isDone = process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit &&
                            process.exitCode() == 0;
        if (!isDone)
            ADD_FAILURE() << process.readAll().toStdString();
        return isDone;
    }

    QTemporaryDir m_folder;
};

/// The panel of a bundle, operated by kvpanel.
class DrivenPanel {
public:
    explicit DrivenPanel(const QString &bundle)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(KV_BINARY_DIR "/bin/kvpanel"), {QStringLiteral("--bundle"), bundle});
    }
    ~DrivenPanel()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished(-1);
    }
    DrivenPanel(const DrivenPanel &) = delete;
    DrivenPanel &operator=(const DrivenPanel &) = delete;

    QJsonObject request(const QByteArray &operation, QJsonObject members = {})
    {
        members.insert(QStringLiteral("op"), QString::fromLatin1(operation));
        m_process.write(QJsonDocument(members).toJson(QJsonDocument::Compact) + '\n');
        while (!m_process.canReadLine() && m_process.waitForReadyRead(-1)) {
        }
        const QJsonObject reply = QJsonDocument::fromJson(m_process.readLine()).object();
        EXPECT_TRUE(reply["ok"].toBool())
            << operation.toStdString() << ": " << reply["error"].toString().toStdString();
        return reply;
    }

    /// Opens the panel for the printer and shows it as a dialog does.
    void show(const QString &ppd)
    {
        request("open", {{"ppd", ppd}});
        request("view");
        request("restore");
        request("willShow");
    }

    QJsonObject state() { return request("state")["state"].toObject(); }
    QJsonObject control(const char *name)
    {
        return state()["controls"].toObject()[QLatin1String(name)].toObject();
    }

private:
    QProcess m_process;
};

const char *const boxName = "mTestOptionChkBx";

/// Builds the bundle with the tenth option once for all tests.
class TenthOption : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        sources = std::make_unique<BundleSources>();
        for (const Insertion &insertion : insertions())
            sources->replace(insertion.file, insertion.before, insertion.text + insertion.before);
        sources->replace(layoutFile, "<width>488</width><height>282</height>",
                         "<width>488</width><height>308</height>");
        sources->replace(layoutFile, "<tabstop>mOptionPopUpButton</tabstop>",
                         "<tabstop>mTestOptionChkBx</tabstop>\n  <tabstop>mOptionPopUpButton</tabstop>");
        for (const QString &catalogue :
             QDir(sources->path(stringsFolder)).entryList({QStringLiteral("*.ts")}))
            sources->replace(stringsFolder + u'/' + catalogue, "</context>", R"(    <message>
        <source>RS_TestOption</source>
        <translation>Test Option</translation>
    </message>
    <message>
        <source>RS_STitle_TestOption</source>
        <translation>Test Option</translation>
    </message>
</context>)");
        isBuilt = sources->build();
    }
    static void TearDownTestSuite() { sources.reset(); }

    void SetUp() override
    {
        ASSERT_TRUE(isBuilt);
        panel.emplace(sources->bundle());
    }

    /// Writes the PPD of a printer with the panel's nine options and this one.
    QString ppdWith(const char *keyword) const
    {
        const QString path = folder.filePath(QStringLiteral("printer.ppd"));
        EXPECT_TRUE(test_support::PpdBuilder()
                        .autoCutObjHidden()
                        .allOptions()
                        .option(keyword)
                        .text(keyword, "Tenth")
                        .writeTo(path));
        return path;
    }

    static std::unique_ptr<BundleSources> sources;
    static bool isBuilt;
    QTemporaryDir folder;
    std::optional<DrivenPanel> panel;
};

std::unique_ptr<BundleSources> TenthOption::sources;
bool TenthOption::isBuilt = false;

} // namespace

TEST_F(TenthOption, HasItsRowBelowTheOthers)
{
    panel->show(ppdWith("KvTestOption"));
    const QJsonObject box = panel->control(boxName);
    EXPECT_EQ(box["hidden"], false);
    EXPECT_EQ(box["enabled"], true);
    EXPECT_EQ(box["title"], QStringLiteral("Tenth"));
    EXPECT_EQ(box["y"].toDouble(), panel->control("mRemoveBlkSpaceChkBx")["y"].toDouble() - 26);
    EXPECT_GE(box["y"].toDouble(), 0.0);
    EXPECT_EQ(panel->request("localized", {{"key", "RS_TestOption"}})["text"], QStringLiteral("Test Option"));
    EXPECT_TRUE(panel->request("supportedKeys")["keys"].toArray().contains(
        QJsonValue(QStringLiteral("KvTestOption"))));
}

TEST_F(TenthOption, HasNoRowWithoutItsKeyword)
{
    panel->show(ppdWith("KvAnotherOption"));
    EXPECT_EQ(panel->control(boxName)["hidden"], true);
    EXPECT_EQ(panel->control("mRemoveBlkSpaceChkBx")["hidden"], false);
}

TEST_F(TenthOption, IsMarkedByAClickAndSaved)
{
    panel->show(ppdWith("KvTestOption"));
    EXPECT_EQ(panel->control(boxName)["state"], 0);
    panel->request("click", {{"control", boxName}});
    EXPECT_EQ(panel->control(boxName)["state"], 1);
    const QJsonObject now = panel->state();
    EXPECT_EQ(now["marked"].toObject()["KvTestOption"], QStringLiteral("ON"));
    EXPECT_EQ(now["selections"].toObject()["mTestOption_Selection"], QStringLiteral("ON"));
    EXPECT_EQ(panel->request("save")["result"], true);
    EXPECT_EQ(panel->state()["settings"].toObject()["KvTestOption"], QStringLiteral("ON"));
}

TEST_F(TenthOption, IsRestoredFromTheMarks)
{
    panel->show(ppdWith("KvTestOption"));
    for (const auto &[choice, state] : {std::pair{"ON", 1}, {"OFF", 0}}) {
        panel->request("mark", {{"keyword", "KvTestOption"}, {"choice", choice}});
        panel->request("restore");
        EXPECT_EQ(panel->control(boxName)["state"], state);
    }
}

TEST_F(TenthOption, StaysWhenACombinationIsChosen)
{
    panel->show(ppdWith("KvTestOption"));
    panel->request("click", {{"control", boxName}});
    for (const QJsonValue item : panel->state()["popUp"].toObject()["items"].toArray()) {
        panel->request("choosePreset", {{"tag", item.toObject()["tag"]}});
        EXPECT_EQ(panel->control(boxName)["state"], 1);
    }
}

TEST_F(TenthOption, HasTheLastLineOfTheSummary)
{
    panel->show(ppdWith("KvTestOption"));
    panel->request("click", {{"control", boxName}});
    const QJsonObject summary = panel->request("summary")["summary"].toObject();
    const QString yes = panel->request("localized", {{"key", "RS_STitle_Yes"}})["text"].toString();
    EXPECT_EQ(summary["Tenth"].toString(), yes);
    bool isLast = false;
    for (const QJsonValue value : summary)
        isLast = isLast || (value.isArray() && value.toArray().last() == QStringLiteral("Tenth"));
    EXPECT_TRUE(isLast);
}
