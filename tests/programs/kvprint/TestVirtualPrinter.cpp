// SPDX-License-Identifier: Apache-2.0
// The program itself, as it is run from a shell without a display.

#include <tests/samples/SamplePdf.h>
#include <tests/samples/SamplePpd.h>
#include <tests/support/Waiting.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

struct FilesOutcome {
    int status;
    QString out;
    QString error;
};

class KvprintVirtualPrinter : public testing::Test {
protected:
    void SetUp() override
    {
        ppd = sandbox.write(QStringLiteral("tape.ppd"), tapePpd());
        document =
            writePdf(sandbox, QStringLiteral("labels.pdf"), {{QSizeF(170, 68), {}}, {QSizeF(170, 68), {}}});
        output = sandbox.path(QStringLiteral("out"));
    }

    FilesOutcome run(const QStringList &arguments) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *const variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QLatin1String(variable));
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(KV_BINARY_DIR "/bin/kvprint"), arguments);
        EXPECT_TRUE(process.waitForFinished(test_support::failureMilliseconds))
            << process.errorString().toStdString();
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    FilesOutcome print(const QStringList &more = {}) const
    {
        return run(QStringList{QStringLiteral("--ppd"), ppd, QStringLiteral("--output"), output, document} +
                   more);
    }

    QStringList written() const { return QDir(output).entryList(QDir::Files, QDir::Name); }

    Sandbox sandbox;
    QString ppd;
    QString document;
    QString output;
};

const QStringList allFiles{QStringLiteral("dialog.png"), QStringLiteral("job.json"),
                           QStringLiteral("strip.pdf")};

} // namespace

TEST_F(KvprintVirtualPrinter, PrintsAtOnceWithoutADisplay)
{
    const FilesOutcome outcome = print();
    EXPECT_EQ(outcome.status, 0) << outcome.error.toStdString();
    EXPECT_EQ(outcome.error, QString());
    EXPECT_EQ(written(), allFiles);
    EXPECT_TRUE(outcome.out.endsWith(u'\n' + QDir(output).absolutePath() + u'\n'))
        << outcome.out.toStdString();
    EXPECT_TRUE(outcome.out.contains(QStringLiteral("  Half Cut: Yes\n"))) << outcome.out.toStdString();
    EXPECT_TRUE(outcome.out.contains(QStringLiteral("  Pieces: 2\n"))) << outcome.out.toStdString();
}

TEST_F(KvprintVirtualPrinter, TakesThePaperByItsExactName)
{
    EXPECT_EQ(print({QStringLiteral("--paper"), QStringLiteral("DC52x75R")}).status, 0);
    QFile job(output + QStringLiteral("/job.json"));
    ASSERT_TRUE(job.open(QIODevice::ReadOnly));
    EXPECT_TRUE(job.readAll().contains("\"name\": \"DC52x75R\""));
}

TEST_F(KvprintVirtualPrinter, OnlyTellsWhatWouldBePrinted)
{
    const FilesOutcome outcome =
        run({QStringLiteral("--dry-run"), QStringLiteral("--json"), QStringLiteral("--ppd"), ppd, document});
    EXPECT_EQ(outcome.status, 0) << outcome.error.toStdString();
    EXPECT_TRUE(QJsonDocument::fromJson(outcome.out.toUtf8()).isArray()) << outcome.out.toStdString();
    EXPECT_EQ(written(), QStringList());
    EXPECT_FALSE(outcome.out.contains(QStringLiteral("strip.pdf")));
}

TEST_F(KvprintVirtualPrinter, AConflictIsAnErrorUnlessForced)
{
    ppd = QStringLiteral(KV_SOURCE_DIR "/resources/ppd/kvelland-dz500.ppd");
    const QStringList conflict{QStringLiteral("-o"), QStringLiteral("MediaType=Film PrintPriority=Speed")};
    const FilesOutcome outcome = print(conflict);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, QString());
    for (const char *part : {"Film", "Speed", " conflict.", "To resolve the conflict"})
        EXPECT_TRUE(outcome.error.contains(QLatin1String(part))) << part << outcome.error.toStdString();
    EXPECT_EQ(written(), QStringList());
    EXPECT_EQ(print(conflict + QStringList{QStringLiteral("--force")}).status, 0);
    EXPECT_EQ(written(), allFiles);
}

TEST_F(KvprintVirtualPrinter, BadInputIsNamedAndNothingIsWritten)
{
    const QString empty = sandbox.write(QStringLiteral("empty.pdf"), "");
    const QString text = sandbox.write(QStringLiteral("text.pdf"), "not a PDF");
    const QByteArray truncated = tapePpd().left(tapePpd().indexOf("Kvelland Tape 9"));
    const QString cut = sandbox.write(QStringLiteral("cut.ppd"), truncated);
    const QString blocked = sandbox.write(QStringLiteral("blocked"), "x");
    struct Row {
        QStringList arguments;
        int status;
        QStringList named;
    };
    const QString link = sandbox.path(QStringLiteral("link.png"));
    ASSERT_TRUE(QFile::link(text, link));
    const QString ppdOption = QStringLiteral("--ppd");
    const QString outputOption = QStringLiteral("--output");
    const Row rows[] = {
        {{ppdOption, QStringLiteral("/nowhere.ppd"), document}, 1, {QStringLiteral("/nowhere.ppd")}},
        {{ppdOption, cut, document}, 1, {cut, QStringLiteral("line ")}},
        {{ppdOption, document, document}, 1, {document, QStringLiteral("line 1")}},
        {{ppdOption, ppd, QStringLiteral("/nowhere.pdf")}, 1, {QStringLiteral("/nowhere.pdf")}},
        {{ppdOption, ppd, empty}, 1, {empty, QStringLiteral("empty")}},
        {{ppdOption, ppd, text}, 1, {text, QStringLiteral("not a PDF")}},
        {{ppdOption, ppd, QStringLiteral("--paper"), QStringLiteral("A4"), document},
         1,
         {QStringLiteral("\"A4\""), ppd, QStringLiteral("DC52x75R")}},
        {{ppdOption, ppd, document, outputOption, blocked}, 1, {blocked}},
        {{ppdOption, ppd, document, QStringLiteral("--screenshot"), blocked + QStringLiteral("/x.png")},
         1,
         {blocked}},
        {{ppdOption, ppd, document, QStringLiteral("--screenshot"), link},
         1,
         {link, QStringLiteral("symbolic link")}},
        {{document}, 2, {ppdOption}},
    };
    for (const Row &row : rows) {
        QStringList arguments = row.arguments;
        if (!arguments.contains(outputOption))
            arguments += {outputOption, output};
        const FilesOutcome outcome = run(arguments);
        const std::string shown = arguments.join(u' ').toStdString() + ": " + outcome.error.toStdString();
        EXPECT_EQ(outcome.status, row.status) << shown;
        EXPECT_TRUE(outcome.error.startsWith(QStringLiteral("kvprint: "))) << shown;
        for (const QString &name : row.named)
            EXPECT_TRUE(outcome.error.contains(name)) << name.toStdString() << " in " << shown;
        EXPECT_FALSE(QFileInfo::exists(output)) << shown;
        EXPECT_EQ(outcome.out, QString()) << shown;
    }
}

TEST_F(KvprintVirtualPrinter, GoesOnWithoutAPanelButSaysSo)
{
    const std::pair<const char *, const char *> rows[] = {
        {"/nowhere", "no such folder"},
        {KV_BINARY_DIR "/tests/bundles/other_version", "version 9"},
        {KV_BINARY_DIR "/tests/bundles/other_interface", "contains no panels"},
        {KV_BINARY_DIR "/tests/bundles/refusing", "does not work on this system"},
        {KV_BINARY_DIR "/tests/bundles/needs_files", "Resources/Layout.ui"},
    };
    for (const auto &[folderOfBundle, reason] : rows) {
        const FilesOutcome outcome = print({QStringLiteral("--bundle"), QLatin1String(folderOfBundle)});
        EXPECT_EQ(outcome.status, 3) << folderOfBundle << ": " << outcome.error.toStdString();
        EXPECT_TRUE(outcome.error.contains(QLatin1String(reason))) << outcome.error.toStdString();
        EXPECT_EQ(written(), allFiles);
        QDir(output).removeRecursively();
    }
}

TEST_F(KvprintVirtualPrinter, APrinterWithoutCutOptionsNeedsNoPanel)
{
    QByteArray text = tapePpd();
    text.truncate(text.indexOf("*OpenUI *KvCutLabel"));
    ppd = sandbox.write(QStringLiteral("plain.ppd"), text);
    const FilesOutcome outcome = print();
    EXPECT_EQ(outcome.status, 0) << outcome.error.toStdString();
    EXPECT_FALSE(outcome.out.contains(QStringLiteral("Cut Options"))) << outcome.out.toStdString();
    // Whether and where it cuts is not known, so no figure is given for it.
    EXPECT_FALSE(outcome.out.contains(QStringLiteral("Pieces"))) << outcome.out.toStdString();
    EXPECT_TRUE(outcome.out.contains(QStringLiteral("does not say whether it cuts the labels")));
}

TEST_F(KvprintVirtualPrinter, WritesAmongTheUsersDataWhenNoFolderIsNamed)
{
    const FilesOutcome outcome = run({QStringLiteral("--ppd"), ppd, document});
    EXPECT_EQ(outcome.status, 0) << outcome.error.toStdString();
    const QString folder = outcome.out.trimmed().section(u'\n', -1);
    EXPECT_TRUE(folder.startsWith(qEnvironmentVariable("XDG_DATA_HOME"))) << folder.toStdString();
    EXPECT_EQ(QDir(folder).entryList(QDir::Files, QDir::Name), allFiles);
}

TEST_F(KvprintVirtualPrinter, SavesAPictureOfTheDialogWhenAsked)
{
    const QString picture = sandbox.path(QStringLiteral("shot.png"));
    EXPECT_EQ(print({QStringLiteral("--screenshot"), picture}).status, 0);
    EXPECT_GT(QImage(picture).width(), 400);
}

TEST_F(KvprintVirtualPrinter, HelpAndVersionNeedNoPrinter)
{
    EXPECT_EQ(run({QStringLiteral("--help")}).status, 0);
    const FilesOutcome version = run({QStringLiteral("--version")});
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.out.startsWith(QStringLiteral("kvprint ")));
}
