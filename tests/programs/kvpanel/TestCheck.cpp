// SPDX-License-Identifier: Apache-2.0
// kvpanel --check: finds each planted breach, and nothing in a panel that follows the protocol.
#include <tests/support/PpdBuilder.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

const QString checkedPpd = QStringLiteral(KV_SOURCE_DIR "/resources/ppd/kvelland-lx900.ppd");

struct CheckOutcome {
    int status = -1;
    QStringList lines;
    QString errors;
};

CheckOutcome runCheck(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(KV_BINARY_DIR "/bin/kvpanel"),
                  QStringList{QStringLiteral("--check")} + arguments);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(-1));
    CheckOutcome outcome;
    outcome.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    outcome.lines = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    outcome.errors = QString::fromUtf8(process.readAllStandardError());
    return outcome;
}

QString breachBundle(const QString &name)
{
    return QStringLiteral(KV_BINARY_DIR "/tests/breaches/") + name + QStringLiteral(".bundle");
}

/// A bundle with one breach, and what kvpanel prints for it, without "CALL: expected EXPECTED, but".
struct PlantedBreach {
    const char *bundle;
    const char *call;
    const char *happened;
};

void PrintTo(const PlantedBreach &breach, std::ostream *out)
{
    *out << breach.bundle;
}

const PlantedBreach plantedBreaches[] = {
    {"OtherVersion", "metadata", "the IID of the library is \"kvprint.PDEPlugInFactory/9\""},
    {"NoKeywords", "metadata", "there is none"},
    {"MissingResource", "metadata", "\"Missing.png\" cannot be read"},
    {"NoPanel", "PDEPanelsForType", "there are none"},
    {"NoName", "panelName", "it is empty"},
    {"NoKind", "panelKind", "it is empty"},
    {"NoView", "panelView", "it returns null"},
    {"ParentedView", "panelView", "its parent is a QWidget"},
    {"ForeignKeyword", "supportedPPDOptionKeys", "they do not contain \"KvHalfCut\""},
    {"UnknownKeyword", "supportedPPDOptionKeys", "it does not have \"KvUnknown\""},
    {"DeletedView", "restoreValuesAndReturnError", "it is deleted"},
    {"SavesForeign", "saveValuesAndReturnError", "it changes \"KvHalfCut\""},
    {"SavesDifferently", "saveValuesAndReturnError", "it saves KvMirror=ON, then KvMirror=OFF"},
    {"SavesUnknownChoice", "saveValuesAndReturnError", "it requests \"Perhaps\" for \"KvMirror\""},
    {"MarksDirectly", "saveValuesAndReturnError", "the mark of \"KvMirror\" in the PPD changes"},
    {"OpensWindow", "saveValuesAndReturnError", "the window \"Saved\" opens"},
    {"SummaryMissing", "summaryInfo", "there is none for \"Missing\""},
    {"SummaryUnlisted", "summaryInfo", "\"Unlisted\" is there 0 times"},
    {"Throws", "PPDOptionKeyValueDidChange", "it throws \"no such choice\""},
    {"UnknownShownChoice", "shownChoices", "it returns \"Perhaps\" for \"KvMirror\""},
    {"IgnoresUserChoices", "applyUserChoices", "it does not show KvMirror=ON"},
    {"HidesUserChoices", "applyUserChoices", "it does not receive KvMirror=ON"},
    {"WrongEnds", "stripEffects", "there are 1 for 2 labels"},
    {"StripMarks", "stripEffects", "the mark of \"KvMirror\" in the PPD changes"},
    {"StripDiffers", "stripEffects", "they differ at the second call"},
    {"EmptyReason", "reasonForDisabled", "the reason for \"KvMirror\" is empty"},
    {"HelpWithoutText", "shouldShowHelp", "it returns true"},
    {"LeavesObserver", "destruction", "an observer is left"},
};

class PlantedBreaches : public testing::TestWithParam<PlantedBreach> {};

} // namespace

TEST_P(PlantedBreaches, AreReported)
{
    const CheckOutcome outcome = runCheck({breachBundle(QString::fromLatin1(GetParam().bundle)), checkedPpd});
    EXPECT_EQ(outcome.status, 1) << outcome.errors.toStdString();
    const QString call = QString::fromLatin1(GetParam().call) + QStringLiteral(": expected ");
    const QString happened = QStringLiteral(", but ") + QString::fromLatin1(GetParam().happened);
    EXPECT_TRUE(std::ranges::any_of(outcome.lines, [&](const QString &line) {
        return line.startsWith(call) && line.contains(happened);
    })) << outcome.lines.join(u'\n').toStdString();
}

INSTANTIATE_TEST_SUITE_P(Check, PlantedBreaches, testing::ValuesIn(plantedBreaches),
                         [](const auto &each) { return std::string(each.param.bundle); });

TEST(Check, FindsNothingInAPanelThatFollowsTheProtocol)
{
    const CheckOutcome outcome = runCheck({breachBundle(QStringLiteral("None")), checkedPpd});
    EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
    EXPECT_EQ(outcome.lines, QStringList());
}

TEST(Check, NamesTheFunctionThatNoLibraryHas)
{
    const CheckOutcome outcome = runCheck(
        {QStringLiteral(KV_BINARY_DIR "/tests/bundles/missing_symbol/KVLXDZOptions.bundle"), checkedPpd});
    EXPECT_EQ(outcome.status, 1) << outcome.errors.toStdString();
    EXPECT_TRUE(std::ranges::any_of(outcome.lines, [](const QString &line) {
        return line.startsWith(QStringLiteral("loading of the library: ")) &&
               line.contains(QStringLiteral("functionOfNoLibrary"));
    })) << outcome.lines.join(u'\n').toStdString();
}

TEST(Check, FindsNothingInTheCutOptionsPanel)
{
    const QDir ppds(QStringLiteral(KV_SOURCE_DIR "/resources/ppd"));
    const QStringList names = ppds.entryList({QStringLiteral("*.ppd")});
    ASSERT_FALSE(names.isEmpty());
    for (const QString &name : names) {
        const CheckOutcome outcome =
            runCheck({QStringLiteral(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle"), ppds.filePath(name)});
        EXPECT_EQ(outcome.status, 0) << name.toStdString() << outcome.errors.toStdString();
        EXPECT_EQ(outcome.lines, QStringList()) << name.toStdString();
    }
}

TEST(Check, NotesAPrinterThatIsNoneOfThePanel)
{
    const QTemporaryDir folder;
    const QString ppd = folder.filePath(QStringLiteral("printer.ppd"));
    ASSERT_TRUE(test_support::PpdBuilder().option("KvHalfCut").writeTo(ppd));
    const CheckOutcome outcome = runCheck({QStringLiteral(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle"), ppd});
    EXPECT_EQ(outcome.status, 0) << outcome.lines.join(u'\n').toStdString();
    EXPECT_FALSE(outcome.errors.contains(QStringLiteral("has no option"))) << outcome.errors.toStdString();
    ASSERT_TRUE(test_support::PpdBuilder().writeTo(ppd));
    EXPECT_TRUE(runCheck({breachBundle(QStringLiteral("None")), ppd})
                    .errors.contains(QStringLiteral("has no option")));
}

TEST(Check, CannotOpenWhatIsMissing)
{
    const QTemporaryDir folder;
    const QString bundle = breachBundle(QStringLiteral("None"));
    const QString text = folder.filePath(QStringLiteral("Text.bundle"));
    ASSERT_TRUE(QDir().mkpath(text));
    QFile library(text + QStringLiteral("/Text.so"));
    ASSERT_TRUE(library.open(QIODevice::WriteOnly));
    library.write("no library");
    library.close();
    // Each list of arguments, and what the message names.
    const std::pair<QStringList, QString> cases[] = {
        {{folder.filePath(QStringLiteral("none.bundle")), checkedPpd}, QStringLiteral("none.bundle")},
        {{folder.path(), checkedPpd}, QStringLiteral("it has no library")},
        {{text, checkedPpd}, QStringLiteral("Text.bundle")},
        {{bundle, folder.filePath(QStringLiteral("none.ppd"))}, QStringLiteral("none.ppd")},
        {{bundle, library.fileName()}, QStringLiteral("Text.so")},
        {{bundle}, QStringLiteral("needs a bundle and a PPD")},
        {{bundle, checkedPpd, checkedPpd}, QStringLiteral("needs a bundle and a PPD")},
        {{bundle, checkedPpd, QStringLiteral("--bundle"), bundle}, QStringLiteral("no other option")},
    };
    for (const auto &[arguments, message] : cases) {
        const CheckOutcome outcome = runCheck(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments.join(u' ').toStdString();
        EXPECT_EQ(outcome.lines, QStringList());
        EXPECT_TRUE(outcome.errors.contains(message)) << outcome.errors.toStdString();
    }
}
