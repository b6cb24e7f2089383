// SPDX-License-Identifier: Apache-2.0
// What CUPS's own drivers send to the printer: the cutter commands in the output of the real filter chain are
// the cuts that the panel reports for the strip.
#include "RollPpds.h"

#include <rollcutter/rules/CutEffects.h>

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace rollcutter;

namespace {

/// The sample document has this many labels.
constexpr std::size_t labelCount = 6;

/// Runs all filters of a job with the options up to rastertolabel. Returns what the printer receives.
QByteArray printed(const QString &ppd, const PDEChoices &choices, int copies)
{
    QStringList arguments{QStringLiteral("-e"),
                          QStringLiteral("-m"),
                          QStringLiteral("printer/roll"),
                          QStringLiteral("-p"),
                          ppd,
                          QStringLiteral("-n"),
                          QString::number(copies)};
    for (const auto &[keyword, choice] : choices)
        arguments += {QStringLiteral("-o"), keyword + u'=' + choice};
    arguments.append(QStringLiteral(KV_SOURCE_DIR "/resources/documents/labels.pdf"));
    QProcess process;
    process.start(QStringLiteral(KV_CUPSFILTER), arguments);
    EXPECT_TRUE(process.waitForFinished(-1));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    return process.readAllStandardOutput();
}

int countOf(const QByteArray &text, const char *pattern)
{
    const QRegularExpression expression{QLatin1String(pattern)};
    int count = 0;
    for (auto match = expression.globalMatch(QString::fromLatin1(text)); match.hasNext(); ++count)
        match.next();
    return count;
}

/// What a printer that obeys the commands does after each label: "c" for a cut, "-" for none; "?" if it
/// follows its own settings.
std::string obeyed(const QByteArray &commands, int copies)
{
    const std::size_t count = labelCount * static_cast<std::size_t>(copies);
    const QString text = QString::fromLatin1(commands);
    // One language names the mode for each label, and cuts after it in cutter mode.
    if (commands.contains("^XA")) {
        EXPECT_EQ(countOf(commands, "\\^CN1"), 0);
        if (!commands.contains("^MM"))
            return std::string(count, '?');
        EXPECT_EQ(countOf(commands, "\\^MM"), static_cast<int>(labelCount));
        return std::string(count, commands.contains("^MMC") ? 'c' : '-');
    }
    // The other one names mode and interval once for each page.
    static const QRegularExpression mode(QStringLiteral("\x1b!p([012])M(?:\x1b!n([0-9]+)C)?"));
    const QRegularExpressionMatch match = mode.match(text);
    EXPECT_TRUE(match.hasMatch());
    if (match.captured(1) != QStringLiteral("2"))
        return std::string(count, '-');
    const std::size_t interval = match.captured(2).toUInt();
    std::string cuts(count, interval == 0 ? '?' : '-');
    for (std::size_t label = interval; interval != 0 && label <= count; label += interval)
        cuts[label - 1] = 'c';
    return cuts;
}

/// The same as the panel reports it for the strip.
std::string reported(const QString &path, const PDEChoices &choices, int copies)
{
    const test_support::PpdPointer ppd(ppdOpenFile(path.toUtf8().constData()));
    EXPECT_TRUE(ppd);
    ppdMarkDefaults(ppd.get());
    const PrinterOptions options(ppd.get(), choices);
    const std::vector<PDELabel> labels(labelCount * static_cast<std::size_t>(copies));
    const PDEStripEffects effects = cutEffects(CutGroup::groupsOf(options), options, labels);
    if (effects.cutting != PDECutting::Known)
        return std::string(labels.size(), '?');
    std::string cuts;
    for (const PDELabelEnd &end : effects.ends)
        cuts += end.fullCut ? 'c' : '-';
    return cuts;
}

void expectAgreement(const QString &ppd, const PDEChoices &choices)
{
    for (const int copies : {1, 2}) {
        const QByteArray commands = printed(ppd, choices, copies);
        EXPECT_EQ(reported(ppd, choices, copies), obeyed(commands, copies))
            << choices.front().second.toStdString() << ' ' << choices.back().second.toStdString();
    }
}

PDEChoices choice(const char *keyword, const char *name)
{
    return {{QString::fromLatin1(keyword), QString::fromLatin1(name)}};
}

} // namespace

TEST(FilterChain, EachModeOfTheFirstDriver)
{
    const QString ppd = roll_ppds::cupsDriver("zebra.ppd");
    for (const char *const mode : {"Saved", "Tear", "Peel", "Rewind", "Applicator", "Cutter"})
        expectAgreement(ppd, choice("zePrintMode", mode));
}

TEST(FilterChain, EachModeOfTheSecondDriver)
{
    const QString ppd = roll_ppds::cupsDriver("intelbar.ppd");
    for (const char *const mode : {"Standard", "Tear", "Cut"})
        expectAgreement(ppd, choice("inPrintMode", mode));
    // This driver does not send the interval.
    PDEChoices everyThree = choice("inPrintMode", "Cut");
    everyThree.emplace_back(QStringLiteral("inCutInterval"), QStringLiteral("3"));
    expectAgreement(ppd, everyThree);
}

TEST(FilterChain, TheIntervalsOfADriverThatSendsThem)
{
    const QTemporaryDir folder;
    const QString ppd = folder.filePath(QStringLiteral("intervals.ppd"));
    QFile file(ppd);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(roll_ppds::intervalDriver());
    file.close();
    for (const char *const interval : {"None", "1", "2", "5", "10", "Custom.7"}) {
        PDEChoices choices = choice("inPrintMode", "Cut");
        choices.emplace_back(QStringLiteral("inCutInterval"), QString::fromLatin1(interval));
        expectAgreement(ppd, choices);
    }
}
