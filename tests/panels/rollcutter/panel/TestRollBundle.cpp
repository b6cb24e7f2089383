// SPDX-License-Identifier: Apache-2.0
// The bundle as programs load it.
#include "RollPpds.h"

#include <host/panels/PanelBundle.h>
#include <rollcutter/rules/RollRules.h>

#include <QProcess>
#include <QTemporaryDir>

namespace {

const QString bundleFolder = QStringLiteral(KV_PROGRAM_FOLDER "/RollCutter.bundle");

/// Runs kvpanel --check. Returns its output and status.
std::pair<QString, int> checkBundle(const QString &ppd)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral(KV_PROGRAM_FOLDER "/kvpanel"),
                  {QStringLiteral("--check"), bundleFolder, ppd});
    EXPECT_TRUE(process.waitForFinished(-1));
    return {QString::fromUtf8(process.readAllStandardOutput()), process.exitCode()};
}

} // namespace

TEST(RollBundle, ItsMetadataListsTheOptionsOfThePanel)
{
    const auto description = host::PanelBundle::describe(bundleFolder);
    ASSERT_TRUE(description) << description.error().message.toStdString();
    EXPECT_FALSE(description.value().otherVersion);
    QStringList keywords = description.value().keywords;
    for (const rollcutter::RollRow &row : rollcutter::rollRows)
        EXPECT_EQ(keywords.removeAll(QString::fromLatin1(row.keyword)), 1) << row.keyword;
    keywords.sort();
    EXPECT_EQ(keywords, (QStringList{QStringLiteral("CutMedia"), QStringLiteral("inPrintMode"),
                                     QStringLiteral("zePrintMode")}));
}

TEST(RollBundle, FollowsThePanelProtocolForEachPrinter)
{
    QStringList ppds;
    for (const char *const name : {"zebra.ppd", "zebracpl.ppd", "zebraep2.ppd", "intelbar.ppd", "dymo.ppd"})
        ppds.append(roll_ppds::cupsDriver(name));
    const QTemporaryDir folder;
    ppds.append(folder.filePath(QStringLiteral("driverless.ppd")));
    ASSERT_TRUE(roll_ppds::driverless().writeTo(ppds.back()));
    ppds.append(folder.filePath(QStringLiteral("strange.ppd")));
    ASSERT_TRUE(roll_ppds::cutMedia({{"Slanted", ""}, {"Every3", ""}, {"Every7", ""}})
                    .option("inCutInterval")
                    .option("media-tracking")
                    .option("label-mode")
                    .option("print-darkness")
                    .option("print-speed")
                    .writeTo(ppds.back()));
    for (const QString &ppd : ppds) {
        const auto [output, status] = checkBundle(ppd);
        EXPECT_EQ(status, 0) << ppd.toStdString() << '\n' << output.toStdString();
        EXPECT_EQ(output, QString()) << ppd.toStdString();
    }
}
