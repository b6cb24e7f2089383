// SPDX-License-Identifier: Apache-2.0
// A driverless queue: libcups makes its PPD from the IPP attributes of the printer, and the finishing that
// the user chooses in the panel reaches the printer as IPP names it.
#include "RollPpds.h"

#include <rollcutter/rules/CutEffects.h>
#include <tests/support/PrivateCupsd.h>
#include <tests/support/Waiting.h>

#include <QProcess>

#include <algorithm>

using namespace rollcutter;
using test_support::PpdPointer;
using test_support::PrivateCupsd;

namespace {

/// A trim finishing: its number in IPP, the name that libcups gives the choice, and what it means.
struct Finishing {
    int number;
    const char *keyword;
    const char *choice;
    CutStyle style;
};

constexpr Finishing finishings[] = {
    {3, "none", "None", CutStyle::Never},
    {11, "trim", "Auto", CutStyle::Somewhere},
    {60, "trim-after-pages", "EndOfPage", CutStyle::EveryLabel},
    {61, "trim-after-documents", "EndOfDoc", CutStyle::EachDocument},
    {62, "trim-after-copies", "EndOfSet", CutStyle::EachCopy},
    {63, "trim-after-job", "EndOfJob", CutStyle::AtEnd},
};

/// A queue whose IPP attributes are those of a roll printer with a cutter.
QByteArray printerPpd()
{
    QByteArray lines = "*OpenUI *Cutter/Cutter: PickOne\n*DefaultCutter: none\n";
    for (const Finishing &each : finishings)
        lines += QByteArray("*Cutter ") + each.keyword + ": \"\"\n";
    lines += "*CloseUI: *Cutter\n";
    for (const Finishing &each : finishings)
        lines += "*cupsIPPFinishings " + QByteArray::number(each.number) + '/' + each.keyword +
                 ": \"*Cutter " + each.keyword + "\"\n";
    return test_support::PpdBuilder().raw(lines).ppd();
}

/// Prints on the queue with one option, as the dialog does.
void print(const PrivateCupsd &server, const QString &title, const QString &option)
{
    QProcess process;
    process.start(QStringLiteral(KV_PROGRAM_FOLDER "/kvprint"),
                  {QStringLiteral("-h"), server.address(), QStringLiteral("-d"), QStringLiteral("roll"),
                   QStringLiteral("-t"), title, QStringLiteral("-o"), option, QStringLiteral("--no-dialog"),
                   QStringLiteral(KV_SOURCE_DIR "/resources/documents/labels.pdf")});
    EXPECT_TRUE(process.waitForFinished(-1));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
}

} // namespace

TEST(Driverless, TheFinishingsOfAnIppPrinterAreWaysToCut)
{
    PrivateCupsd printer;
    PrivateCupsd server;
    ASSERT_TRUE(printer.isRunning() && server.isRunning());
    printer.addQueue(QStringLiteral("cutter"), printerPpd());
    server.run(QStringLiteral("lpadmin"),
               {QStringLiteral("-p"), QStringLiteral("roll"), QStringLiteral("-E"), QStringLiteral("-v"),
                QStringLiteral("ipp://%1/printers/cutter").arg(printer.address()), QStringLiteral("-m"),
                QStringLiteral("everywhere")});

    // The server asks the printer in the background.
    PpdPointer ppd;
    const QByteArray path = QFile::encodeName(server.path(QStringLiteral("etc/ppd/roll.ppd")));
    ASSERT_TRUE(test_support::waitUntil([&] {
        ppd.reset(ppdOpenFile(path.constData()));
        return ppd != nullptr;
    })) << server.log().constData();
    ppdMarkDefaults(ppd.get());
    const auto groups = CutGroup::groupsOf(PrinterOptions(ppd.get()));
    ASSERT_EQ(groups.size(), 1U);
    ASSERT_EQ(groups[0].settings().size(), std::size(finishings));
    for (const Finishing &each : finishings) {
        const auto setting = groups[0].find(each.style, 0);
        ASSERT_TRUE(setting) << each.keyword;
        const auto &[keyword, choice] = groups[0].settings()[*setting].choices.front();
        EXPECT_EQ(choice, QString::fromLatin1(each.choice));
        print(server, QString::fromLatin1(each.keyword), keyword + u'=' + choice);
    }
    const auto documents = printer.waitForDocuments(std::size(finishings));
    ASSERT_EQ(documents.size(), std::size(finishings)) << server.log().constData();
    for (const auto &document : documents) {
        const auto *const sent = std::ranges::find_if(
            finishings, [&](const Finishing &each) { return document.title == each.keyword; });
        ASSERT_NE(sent, std::ranges::end(finishings)) << document.title.constData();
        EXPECT_EQ(document.option("Cutter"), sent->keyword) << document.optionText.constData();
    }
}
