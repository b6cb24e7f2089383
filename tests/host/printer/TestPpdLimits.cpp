// SPDX-License-Identifier: Apache-2.0

#include <host/printer/PpdCounts.h>
#include <tests/samples/SamplePpd.h>

#include <gtest/gtest.h>

#include <functional>

using host::PpdCounts;
using host::PpdErrorKind;
using host::PpdFile;

namespace {

struct LimitedStatement {
    const char *keyword;
    int max;
    std::function<QByteArray(const QByteArray &number)> line;
};

const LimitedStatement limitedStatements[] = {
    {"*OpenUI", PpdCounts::maxOptions,
     [](const QByteArray &number) { return "*OpenUI *Opt" + number + "/Text: PickOne\n"; }},
    {"*JCLOpenUI", PpdCounts::maxOptions,
     [](const QByteArray &number) { return "*JCLOpenUI *JCL" + number + ": PickOne\n"; }},
    {"*OpenGroup", PpdCounts::maxOptions,
     [](const QByteArray &number) { return "*OpenGroup: G" + number + "\n*CloseGroup: G" + number + "\n"; }},
    {"*OpenSubGroup", PpdCounts::maxOptions,
     [](const QByteArray &number) { return "*OpenSubGroup: G" + number + "\n"; }},
    {"*Custom", PpdCounts::maxOptions,
     [](const QByteArray &number) { return "*CustomOpt" + number + " True: \"\"\n"; }},
    {"*ParamCustom", PpdCounts::maxOptions,
     [](const QByteArray &number) { return "*ParamCustomOpt P" + number + "/Text: 1 int 1 9\n"; }},
    {"*PaperDimension", PpdCounts::maxOptions,
     [](const QByteArray &number) { return "*PaperDimension P" + number + "/Text: \"10 10\"\n"; }},
    {"*ImageableArea", PpdCounts::maxOptions,
     [](const QByteArray &number) { return "*ImageableArea P" + number + ": \"0 0 10 10\"\n"; }},
    {"*UIConstraints", PpdCounts::maxConstraints,
     [](const QByteArray &number) { return "*UIConstraints: *A *B" + number + "\n"; }},
    {"*NonUIConstraints", PpdCounts::maxConstraints,
     [](const QByteArray &number) { return "*NonUIConstraints: *A *B" + number + "\n"; }},
    {"*cupsUIConstraints", PpdCounts::maxConstraints,
     [](const QByteArray &number) { return "*cupsUIConstraints c" + number + ": \"*A *B\"\n"; }},
    {"*Opt", PpdCounts::maxChoices, [](const QByteArray &number) { return "*Opt C" + number + ": \"\"\n"; }},
};

QByteArray ppdWith(int count, const std::function<QByteArray(const QByteArray &)> &line)
{
    QByteArray text = "*PPD-Adobe: \"4.3\"\n*NickName: \"Kvelland Large\"\n*OpenUI *Opt/Option: PickOne\n"
                      "*OpenUI *Opt/Again: PickOne\n";
    for (int i = 0; i < count; ++i)
        text += line(QByteArray::number(i));
    return text;
}

} // namespace

TEST(PpdLimits, RefusalsNameTheFileTheCountAndTheMaximum)
{
    const Sandbox sandbox;
    for (const LimitedStatement &row : limitedStatements) {
        SCOPED_TRACE(row.keyword);
        const int count = row.max * 5 / 4;
        const QString path = sandbox.write(QStringLiteral("many.ppd"), ppdWith(count, row.line));
        const auto ppd = PpdFile::open(path);
        ASSERT_FALSE(ppd);
        EXPECT_EQ(ppd.error().kind, PpdErrorKind::TooLarge);
        // The two options that every one of these PPDs begins with are counted too.
        const int all = QByteArray(row.keyword) == "*OpenUI" ? count + 2 : count;
        EXPECT_EQ(
            ppd.error().message,
            QStringLiteral("Cannot open the PPD file \"%1\": it has %2 \"%3\" statements; the maximum is %4")
                .arg(path)
                .arg(all)
                .arg(QLatin1String(row.keyword))
                .arg(row.max));
    }
}

TEST(PpdLimits, OfAllStatementsTogether)
{
    const Sandbox sandbox;
    const QString path = sandbox.write(QStringLiteral("many.ppd"),
                                       ppdWith(PpdCounts::maxStatements, [](const QByteArray &number) {
                                           return "*Attribute" + number + ": \"\"\n";
                                       }));
    const auto ppd = PpdFile::open(path);
    ASSERT_FALSE(ppd);
    EXPECT_EQ(ppd.error().kind, PpdErrorKind::TooLarge);
    EXPECT_TRUE(
        ppd.error().message.endsWith(QStringLiteral("it has 150004 statements; the maximum is 150000")))
        << ppd.error().message.toStdString();
}

TEST(PpdLimits, TheMaximumItselfIsAllowed)
{
    for (const LimitedStatement &row : limitedStatements) {
        SCOPED_TRACE(row.keyword);
        PpdCounts counts;
        const bool isChoice = QByteArray(row.keyword) == "*Opt";
        if (isChoice)
            counts.addStatement("*OpenUI *Opt/Text");
        for (int i = 0; i < row.max; ++i)
            counts.addStatement(row.line(QByteArray::number(i)).split(':').first().toStdString());
        EXPECT_FALSE(counts.excess());
        counts.addStatement(row.line("x").split(':').first().toStdString());
        ASSERT_TRUE(counts.excess());
        EXPECT_EQ(counts.excess()->keyword, row.keyword);
        EXPECT_EQ(counts.excess()->count, row.max + 1);
        EXPECT_EQ(counts.excess()->max, row.max);
    }
}

TEST(PpdLimits, CommentsAndValuesAreNotCounted)
{
    const Sandbox sandbox;
    const QByteArray text =
        tapePpd() + QByteArray("*% *OpenUI *A: PickOne\n").repeated(PpdCounts::maxStatements) +
        "*Lines: \"\n" + QByteArray("*OpenUI *A: PickOne\n").repeated(PpdCounts::maxOptions + 1) + "\"\n";
    const auto ppd = PpdFile::open(sandbox.write(QStringLiteral("comments.ppd"), text));
    EXPECT_TRUE(ppd) << ppd.error().message.toStdString();
}
