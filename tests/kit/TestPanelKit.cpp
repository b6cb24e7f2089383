// SPDX-License-Identifier: Apache-2.0
// The kit for writers of panels: an installation is enough to build the example, wherever it was moved to.
#include <tests/support/PpdBuilder.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace {

/// Runs the program in the folder. Returns its output, or fails the test if the exit status differs.
QString runKitProgram(const QString &folder, const QString &program, const QStringList &arguments,
                      int status = 0)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DESTDIR"));
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(-1)) << program.toStdString();
    const QString output = QString::fromUtf8(process.readAll());
    EXPECT_EQ(process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, status)
        << program.toStdString() << ' ' << arguments.join(u' ').toStdString() << '\n'
        << output.toStdString();
    return output;
}

QString sanitizerFlags()
{
    const QString sanitizers = QStringLiteral(KV_SANITIZERS);
    return sanitizers.isEmpty() ? QString() : QStringLiteral(" -fsanitize=") + sanitizers;
}

/// Installs the build tree into a folder that is moved afterwards and whose name has a blank.
class PanelKit : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        folder = std::make_unique<QTemporaryDir>();
        const QString first = folder->filePath(QStringLiteral("first"));
        runKitProgram(
            folder->path(), QStringLiteral(KV_CMAKE),
            {QStringLiteral("--install"), QStringLiteral(KV_BINARY_DIR), QStringLiteral("--prefix"), first});
        ASSERT_TRUE(QDir().rename(first, prefix()));
        ASSERT_TRUE(QDir().mkpath(example()));
        const QDir sources(QStringLiteral(KV_SOURCE_DIR "/docs/examples/panel"));
        for (const QString &name : sources.entryList(QDir::Files))
            ASSERT_TRUE(QFile::copy(sources.filePath(name), example() + u'/' + name));
    }
    static void TearDownTestSuite() { folder.reset(); }

    static QString prefix() { return folder->filePath(QStringLiteral("moved installation")); }
    static QString example() { return folder->filePath(QStringLiteral("my panel")); }
    static QString bundle() { return example() + QStringLiteral("/build/FullCut.bundle"); }

    static QStringList configureArguments(const QString &project)
    {
        return {QStringLiteral("-G"),
                QStringLiteral(KV_GENERATOR),
                QStringLiteral("-S"),
                project,
                QStringLiteral("-B"),
                project + QStringLiteral("/build"),
                QStringLiteral("-DCMAKE_PREFIX_PATH=") + prefix(),
                QStringLiteral("-DCMAKE_CXX_COMPILER=" KV_COMPILER),
                QStringLiteral("-DCMAKE_CXX_FLAGS=-Wall -Wextra -Werror " KV_COMPILER_FLAGS) +
                    sanitizerFlags()};
    }

    static std::unique_ptr<QTemporaryDir> folder;
};

std::unique_ptr<QTemporaryDir> PanelKit::folder;

} // namespace

TEST_F(PanelKit, BuildsTheExampleWhichFollowsTheProtocol)
{
    runKitProgram(example(), QStringLiteral(KV_CMAKE), configureArguments(example()));
    runKitProgram(example(), QStringLiteral(KV_CMAKE), {QStringLiteral("--build"), QStringLiteral("build")});
    const QString ppd = folder->filePath(QStringLiteral("printer.ppd"));
    ASSERT_TRUE(
        test_support::PpdBuilder()
            .option(test_support::PpdOptionLines{
                .keyword = "CutMedia",
                .text = "Cut",
                .choices = {{"None", "None"}, {"EndOfPage", "Every label"}, {"EndOfJob", "At the end"}},
                .defaultChoice = "None"})
            .writeTo(ppd));
    const QString program = prefix() + QStringLiteral("/bin/kvpanel");
    EXPECT_EQ(runKitProgram(example(), program, {QStringLiteral("--check"), bundle(), ppd}), QString());
    // The panel does not handle a printer without a cutter.
    const QString plain = folder->filePath(QStringLiteral("plain.ppd"));
    ASSERT_TRUE(test_support::PpdBuilder().writeTo(plain));
    EXPECT_TRUE(runKitProgram(example(), program, {QStringLiteral("--check"), bundle(), plain})
                    .contains(QStringLiteral("has no option")));

    // It is installed where a print dialog searches.
    const QString home = folder->filePath(QStringLiteral("home"));
    runKitProgram(example(), QStringLiteral(KV_CMAKE),
                  {QStringLiteral("--install"), QStringLiteral("build"), QStringLiteral("--prefix"), home});
    EXPECT_TRUE(QFile::exists(home + QStringLiteral("/share/kvprint/panels/FullCut.bundle/FullCut.so")));
}

TEST_F(PanelKit, BuildsThePanelForRollPrintersFromItsSources)
{
    // The delivered panel uses nothing of the project but what is installed.
    const QString project = folder->filePath(QStringLiteral("roll panel"));
    const QDir panels(QStringLiteral(KV_SOURCE_DIR "/panels"));
    for (const char *const room : {"rollcutter/rules", "rollcutter/panel", "rollcutter/bundle"}) {
        const QString name = QString::fromLatin1(room);
        ASSERT_TRUE(QDir().mkpath(project + u'/' + name));
        for (const QString &file :
             QDir(panels.filePath(name)).entryList({QStringLiteral("*.*")}, QDir::Files))
            ASSERT_TRUE(
                QFile::copy(panels.filePath(name) + u'/' + file, project + u'/' + name + u'/' + file));
    }
    QFile build(project + QStringLiteral("/CMakeLists.txt"));
    ASSERT_TRUE(build.open(QIODevice::WriteOnly));
    build.write(
        "cmake_minimum_required(VERSION 3.25)\nproject(RollCutter LANGUAGES CXX)\n"
        "find_package(kvprint REQUIRED)\nfile(GLOB_RECURSE sources rollcutter/*.cpp rollcutter/*.h)\n"
        "kvprint_add_panel_bundle(RollCutter SOURCES ${sources} METADATA rollcutter/bundle/bundle.json\n"
        "    RESOURCES \"${CMAKE_PREFIX_PATH}/" KV_LIBRARY_DIR
        "/kvprint/RollCutter.bundle/Resources/Localizable_en.qm\")\n"
        "target_include_directories(RollCutter PRIVATE \"${PROJECT_SOURCE_DIR}\")\n");
    build.close();
    runKitProgram(project, QStringLiteral(KV_CMAKE),
                  configureArguments(project) + QStringList{QStringLiteral("-DCMAKE_UNITY_BUILD=ON")});
    runKitProgram(project, QStringLiteral(KV_CMAKE), {QStringLiteral("--build"), QStringLiteral("build")});
    const QString ppd = folder->filePath(QStringLiteral("roll.ppd"));
    ASSERT_TRUE(test_support::PpdBuilder().options({"CutMedia", "label-mode"}).writeTo(ppd));
    EXPECT_EQ(
        runKitProgram(project, prefix() + QStringLiteral("/bin/kvpanel"),
                      {QStringLiteral("--check"), project + QStringLiteral("/build/RollCutter.bundle"), ppd}),
        QString());
}

TEST_F(PanelKit, RejectsMetadataThatNoDialogAccepts)
{
    const QString metadata = example() + QStringLiteral("/bundle.json");
    QFile file(metadata);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray original = file.readAll();
    file.close();
    // Each metadata, and what the error names.
    const std::pair<QByteArray, QString> cases[] = {
        {"{}", QStringLiteral("\"Keywords\"")},
        {R"({"Keywords": []})", QStringLiteral("\"Keywords\"")},
        {R"({"Keywords": ["CutMedia"], "Resources": ["Picture.png"]})", QStringLiteral("\"Picture.png\"")},
    };
    for (const auto &[content, message] : cases) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        file.close();
        const QString output =
            runKitProgram(example(), QStringLiteral(KV_CMAKE), configureArguments(example()), 1);
        EXPECT_TRUE(output.contains(message)) << output.toStdString();
    }
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(original);
}

TEST_F(PanelKit, HasAManualPageThatNamesEveryCall)
{
    QFile page(prefix() + QStringLiteral("/share/man/man7/kv-panel.7"));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    const QDir headers(prefix() + QStringLiteral("/include/kvprint/protocol"));
    const QRegularExpression function(QStringLiteral("virtual [^~(;]*\\b(\\w+)\\("));
    int count = 0;
    for (const QString &name : headers.entryList(QDir::Files)) {
        // For tools only.
        if (name == QStringLiteral("PDEPanelInspection.h"))
            continue;
        QFile header(headers.filePath(name));
        ASSERT_TRUE(header.open(QIODevice::ReadOnly));
        auto found = function.globalMatch(QString::fromUtf8(header.readAll()));
        for (; found.hasNext(); ++count) {
            const QRegularExpression call(QStringLiteral("\\b%1\\b").arg(found.next().captured(1)));
            EXPECT_TRUE(text.contains(call)) << name.toStdString() << ": " << call.pattern().toStdString();
        }
    }
    EXPECT_GT(count, 25);
}

TEST_F(PanelKit, IsFoundByPkgConfig)
{
    // The shell splits the flags as a Makefile does.
    const QString command =
        QStringLiteral(
            "flags=$('%1' --cflags --libs kvprint) && "
            "eval \"'%2' %3 -std=c++20 -fPIC -shared -Wno-deprecated-declarations -Wl,--no-undefined "
            "CutPanel.cpp $flags -o panel.so\"")
            .arg(QStringLiteral(KV_PKG_CONFIG), QStringLiteral(KV_COMPILER),
                 QStringLiteral(KV_COMPILER_FLAGS));
    runKitProgram(
        example(), QStringLiteral("env"),
        {QStringLiteral("PKG_CONFIG_PATH=") + prefix() + QStringLiteral("/" KV_LIBRARY_DIR "/pkgconfig"),
         QStringLiteral("sh"), QStringLiteral("-c"), command});
    EXPECT_TRUE(QFile::exists(example() + QStringLiteral("/panel.so")));
}
