// SPDX-License-Identifier: Apache-2.0
#include "KvprintTest.h"

#include <host/base/Length.h>

#include <algorithm>

using test_support::PpdBuilder;
using test_support::RecordedDocument;

namespace {

constexpr double pointsPerMm = host::Points(host::Millimetres(1.0)).number();
/// "-o NAME=VALUE" reads quotes, blanks, commas and braces as syntax; a backslash keeps them.
QString optionWord(const char *name, const QByteArray &value)
{
    QByteArray word = QByteArray(name) + '=';
    for (const char character : value) {
        if (QByteArrayView("\\'\",{").contains(character))
            word += '\\';
        word += character;
    }
    return QString::fromUtf8(word);
}

/// All ways of naming a paper.
std::vector<QStringList> waysToName(const QByteArray &paper)
{
    return {{QStringLiteral("--paper"), QString::fromUtf8(paper)},
            {QStringLiteral("-o"), optionWord("PageSize", paper)},
            {QStringLiteral("-o"), optionWord("media", paper)}};
}

/// Every character that a keyword of a PPD may hold: printable ASCII except the blank, ":" and "/". An odd
/// one stands at the beginning, in the middle and at the end of a name.
QByteArrayList everyCharacter()
{
    QByteArrayList names;
    QByteArray plain;
    for (char character = '!'; character <= '~'; ++character) {
        const QByteArray one(1, character);
        if (character == ':' || character == '/')
            continue;
        const bool isPlain = isalnum(static_cast<unsigned char>(character)) != 0;
        // Braces must pair, or the server's filters would take in what follows.
        if (isPlain)
            plain += character;
        else if (character == '{')
            names.append("{1}2{3}");
        else
            names.append(one + '1' + one + '2' + one);
    }
    names.append(plain.left(31));
    names.append(plain.mid(31));
    return names;
}

} // namespace

class KvprintPapers : public KvprintTest {
protected:
    /// Prints on each paper in each way; the filter must get exactly the name, and no other word for a paper.
    void expectExactly(const QByteArrayList &papers, const QStringList &moreWords = {})
    {
        std::vector<QStringList> lists;
        QByteArrayList expected;
        for (const QByteArray &paper : papers) {
            for (const QStringList &way : waysToName(paper)) {
                lists.push_back(
                    QStringList{QStringLiteral("--no-dialog"), QStringLiteral("-d"), QStringLiteral("tape")} +
                    way + moreWords + QStringList{picture()});
                expected.append(paper);
            }
        }
        const std::vector<Outcome> outcomes = kvprint.runAll(lists);
        std::size_t printed = 0;
        for (std::size_t i = 0; i < outcomes.size(); ++i) {
            printed += outcomes[i].status == 0 ? 1 : 0;
            EXPECT_EQ(outcomes[i].status, 0) << qPrintable(lists[i].join(u' ')) << "\n" << outcomes[i];
            EXPECT_EQ(outcomes[i].error, QByteArray()) << qPrintable(lists[i].join(u' '));
        }
        const auto jobs = recorded(printed);
        for (std::size_t i = 0; i < outcomes.size(); ++i) {
            const RecordedDocument job = jobs.value(outcomes[i].jobId());
            EXPECT_EQ(job.option("PageSize"), expected[static_cast<qsizetype>(i)])
                << qPrintable(lists[i].join(u' ')) << "\n"
                << job.optionText.toStdString();
            EXPECT_TRUE(job.option("media").isNull()) << job.optionText.toStdString();
            EXPECT_TRUE(job.option("PageRegion").isNull()) << job.optionText.toStdString();
        }
    }
};

TEST_F(KvprintPapers, ArriveByTheirExactNames)
{
    PpdBuilder ppd;
    const auto paper = [&](const char *name, double widthMm, double heightMm) {
        ppd.paper(name, widthMm * pointsPerMm, heightMm * pointsPerMm);
    };
    ppd.allOptions();
    paper("Twin24", 24, 60);
    paper("Twin24-again", 24, 60);
    paper("52x75", 52, 75);
    paper("A8", 52, 74);
    paper("52x74.01", 52, 74.01);
    paper("36x100", 36, 100);
    paper("100x36", 100, 36);
    paper("100x36.Transverse", 100, 36);
    paper("true", 20, 40);
    paper("FALSE", 20, 40);
    paper("none", 20, 40);
    paper("tape", 18, 60);
    paper("TAPE", 24, 80);
    paper("Tape", 18, 90);
    paper("w72h100", 72 / pointsPerMm, 100 / pointsPerMm);
    cupsd.addQueue(QStringLiteral("tape"), ppd.ppd());
    expectExactly({"Twin24", "Twin24-again", "52x75", "A8", "52x74.01", "36x100", "100x36",
                   "100x36.Transverse", "true", "FALSE", "none", "tape", "TAPE", "Tape", "w72h100"});
}

TEST_F(KvprintPapers, MayHoldEveryCharacterOfAKeyword)
{
    PpdBuilder ppd;
    double length = 100.0;
    const QByteArrayList names = everyCharacter();
    for (const QByteArray &name : names)
        ppd.paper(name, 68.0, length += 10.0);
    cupsd.addQueue(QStringLiteral("tape"), ppd.ppd());
    expectExactly(names);
}

TEST_F(KvprintPapers, OfFreeSizeArriveAsTheyWereNamed)
{
    addSampleQueue(QStringLiteral("tape"), QStringLiteral("kvelland-lx900"));
    expectExactly({"Custom.24x70mm", "Custom.12.5x99.99mm", "Custom.1x2in", "Custom.68x170"});
    for (const char *wrong : {"Custom.1000x70mm", "Custom.24x1mm", "Custom.24", "Custom.x", "24X60MM",
                              "Custom.24x60furlong", "Custom.24x60mmJUNK", "Custom.24x60mmx3"}) {
        for (const QStringList &way : waysToName(wrong))
            expectError(QStringList{QStringLiteral("-d"), QStringLiteral("tape")} + way +
                            QStringList{picture()},
                        {QString::fromLatin1(wrong), QStringLiteral("no paper")});
    }
}

TEST_F(KvprintPapers, OfUnusableSizeAreRefusedAndTheOthersArePrintedOn)
{
    const QByteArray plain = PpdBuilder().allOptions().paper("W24H60", 68, 170).paper("Bad", 34, 170).ppd();
    const QByteArray line = plain.mid(plain.indexOf("*PaperDimension Bad"));
    const QByteArray bad = line.left(line.indexOf('\n'));
    ASSERT_TRUE(bad.startsWith("*PaperDimension Bad"));
    const std::pair<const char *, const char *> rows[] = {{"0 170", "0 × 170"},
                                                          {"-34 170", "-34 × 170"},
                                                          {"nan 170", "nan × 170"},
                                                          {"1e30 1e30", "1e+30 × 1e+30"}};
    int number = 0;
    for (const auto &[size, told] : rows) {
        const QString queue = QStringLiteral("tape%1").arg(++number);
        cupsd.addQueue(queue,
                       QByteArray(plain).replace(bad, QByteArray("*PaperDimension Bad: \"") + size + '"'));
        for (const QStringList &way : waysToName("Bad"))
            expectError(QStringList{QStringLiteral("-d"), queue} + way + QStringList{picture()},
                        {QStringLiteral("\"Bad\""), QString::fromUtf8(told), QStringLiteral("100 m")});
        const RecordedDocument job =
            printed({QStringLiteral("-d"), queue, QStringLiteral("--paper"), QStringLiteral("W24H60")});
        EXPECT_EQ(job.option("PageSize"), "W24H60");
    }
}

TEST_F(KvprintPapers, OfUnusableSizeAreNotPrintedOnByDefault)
{
    const QByteArray ppd = PpdBuilder().allOptions().paper("Good", 68, 170).paper("Bad", 34, 170).ppd();
    const QByteArray line = ppd.mid(ppd.indexOf("*PaperDimension Bad"));
    QByteArray text = QByteArray(ppd).replace(line.left(line.indexOf('\n')), "*PaperDimension Bad: \"0 0\"");
    const QByteArray usual = text.mid(text.indexOf("*DefaultPageSize: "));
    text.replace(usual.left(usual.indexOf('\n')), "*DefaultPageSize: Bad");
    cupsd.addQueue(QStringLiteral("tape"), text);
    const QByteArray chosen = printed({QStringLiteral("-d"), QStringLiteral("tape")}).option("PageSize");
    EXPECT_FALSE(chosen.isEmpty());
    EXPECT_NE(chosen, "Bad");
    // Where there is no other paper, nothing is printed.
    QByteArray none;
    for (const QByteArray &each : text.split('\n')) {
        const bool isOther = (each.startsWith("*PaperDimension ") && !each.startsWith("*PaperDimension Bad"));
        none += isOther ? each.left(each.indexOf(':')) + ": \"0 0\"\n" : each + '\n';
    }
    cupsd.addQueue(QStringLiteral("nothing"), none);
    expectError({QStringLiteral("-d"), QStringLiteral("nothing"), picture()},
                {QStringLiteral("\"Bad\""), QStringLiteral("0 × 0"), QStringLiteral("100 m")});
}

TEST_F(KvprintPapers, EverySampleArrives)
{
    addSampleQueue(QStringLiteral("tape"), QStringLiteral("kvelland-dz500"));
    const QByteArray text = samplePpd(QStringLiteral("kvelland-dz500"));
    QByteArrayList names;
    for (const QByteArray &line : text.split('\n')) {
        if (line.startsWith("*PageSize "))
            names.append(line.mid(10, line.indexOf('/') - 10));
    }
    ASSERT_GT(names.size(), 5);
    // Round labels exclude automatic cut, which this printer does by itself.
    expectExactly(names, {QStringLiteral("-o"), QStringLiteral("KvAutoTapeCut=OFF")});
}

TEST_F(KvprintPapers, OfAnotherPrinterAreRefused)
{
    addSampleQueue(QStringLiteral("tape"), QStringLiteral("kvelland-lx900"));
    expectError({QStringLiteral("-d"), QStringLiteral("tape"), QStringLiteral("--paper"),
                 QStringLiteral("DC29x90"), picture()},
                {QStringLiteral("DC29x90"), QStringLiteral("no paper")});
    const RecordedDocument job =
        printed({QStringLiteral("-d"), QStringLiteral("tape"), QStringLiteral("--force"),
                 QStringLiteral("--paper"), QStringLiteral("DC29x90")});
    EXPECT_EQ(job.option("PageSize"), "DC29x90");
}
