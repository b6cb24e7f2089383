// SPDX-License-Identifier: Apache-2.0
#include "StripOracle.h"

#include <tests/samples/SamplePdf.h>

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace dialogwalk {

namespace {

constexpr double millimetresPerPoint = 1.0 / mm;
/// Blank is measured on a drawing of 8 pixels a millimetre with soft edges.
constexpr double uncertainty = 0.4;

bool isOn(const OptionTexts &options, const char *keyword)
{
    return options.value(keyword).toLower() == "on";
}

int numberOf(const OptionTexts &options, const char *name)
{
    return std::max(1, options.value(name).toInt());
}

/// The pages that "1-2,4" names, counted from 0.
std::vector<int> chosenPages(const QByteArray &ranges, int count)
{
    std::vector<bool> chosen(static_cast<std::size_t>(count), ranges.isEmpty());
    for (const QByteArray &range : ranges.isEmpty() ? QList<QByteArray>() : ranges.split(',')) {
        const QList<QByteArray> ends = range.split('-');
        const int first = ends.first().toInt();
        const int last = ends.last().isEmpty() ? count : std::min(count, ends.last().toInt());
        for (int page = first; page <= last; ++page)
            chosen[static_cast<std::size_t>(page) - 1] = true;
    }
    std::vector<int> pages;
    for (int page = 0; page < count; ++page) {
        if (chosen[static_cast<std::size_t>(page)])
            pages.push_back(page);
    }
    return pages;
}

bool isCollated(const OptionTexts &options)
{
    return options.value("collate").toLower() == "true";
}

std::vector<int> pagesInOrder(const OptionTexts &options, int count)
{
    std::vector<int> pages = chosenPages(options.value("page-ranges"), count);
    if (options.value("outputorder") == "reverse")
        std::ranges::reverse(pages);
    const auto copies = static_cast<std::size_t>(numberOf(options, "copies"));
    std::vector<int> order;
    if (isCollated(options)) {
        for (std::size_t copy = 0; copy < copies; ++copy)
            order.insert(order.end(), pages.begin(), pages.end());
        return order;
    }
    for (const int page : pages)
        order.insert(order.end(), copies, page);
    return order;
}

/// The stretch of the label that is left when its blank ends are taken off.
double lengthWithoutBlank(const PageFacts &page, const PaperFacts &paper)
{
    if (!page.ink)
        return paper.length;
    // A page that stands while the paper lies, or the other way round, is turned: its left edge comes first.
    const bool isTurned = (page.size.width() - page.size.height()) * (paper.width - paper.length) < 0.0;
    const double along = isTurned ? page.size.width() : page.size.height();
    const double across = isTurned ? page.size.height() : page.size.width();
    const bool fits = along <= paper.length + 0.5 && across <= paper.width + 0.5;
    // A page that is too large is shrunk to what the printer can print, and lies in its middle.
    const double end = paper.length - paper.endMargin;
    const double room = end - paper.leadingMargin;
    const double width = paper.width - paper.leftMargin - paper.rightMargin;
    const double scale = fits ? 1.0 : std::min({1.0, room / along, width / across});
    const double start =
        fits ? (paper.length - along) / 2.0 : paper.leadingMargin + (room - along * scale) / 2.0;
    const double first = isTurned ? page.ink->left() : page.ink->top();
    const double last = isTurned ? page.ink->right() : page.ink->bottom();
    return std::min(end, start + last * scale) - std::max(paper.leadingMargin, start + first * scale);
}

void addEnd(ExpectedLabel &label, std::size_t number, std::size_t count, const OptionTexts &options)
{
    const bool isLast = number == count;
    const bool isChained = isOn(options, "KvChainPrint");
    const bool isTurn = number % static_cast<std::size_t>(numberOf(options, "KvCutLabel")) == 0;
    if (isOn(options, "KvAutoTapeCut") && (isTurn || isLast))
        label.fullCut = true;
    if (isOn(options, "KvCutAtEnd") && isLast)
        label.fullCut = true;
    if (isLast && isChained) {
        label.fullCut = false;
        label.held = true;
    }
    label.halfCut = isOn(options, "KvHalfCut") && !isLast && !label.fullCut;
    label.cutMark = isOn(options, "KvCutMark") && !label.fullCut;
}

/// How a roll printer cuts: after every so many labels of the job; "every" is 0 for no cut. Absent where its
/// own settings decide.
struct RollCuts {
    std::size_t every = 0;
    bool afterCopies = false;
    bool atEnd = false;
};

bool isPrintersInterval(const OptionTexts &options)
{
    return options.value("inPrintMode") == "Cut" && options.value("inCutInterval").toUInt() == 0;
}

std::optional<RollCuts> rollCuts(const OptionTexts &options)
{
    const QByteArray finishing = options.value("CutMedia");
    const QByteArray mode = options.value("inPrintMode");
    if (finishing == "Auto" || isPrintersInterval(options))
        return std::nullopt;
    if (finishing == "EndOfPage")
        return RollCuts{1};
    RollCuts cuts{mode == "Cut" ? options.value("inCutInterval").toUInt() : 0U};
    cuts.afterCopies = finishing == "EndOfSet";
    cuts.atEnd = finishing == "EndOfJob" || finishing == "EndOfDoc";
    return cuts;
}

void addRollCut(ExpectedLabel &label, std::size_t number, std::size_t count, std::size_t perCopy,
                const RollCuts &cuts)
{
    const bool isCut = (cuts.every != 0 && number % cuts.every == 0) || (cuts.atEnd && number == count) ||
                       (cuts.afterCopies && number % perCopy == 0);
    if (!isCut)
        return;
    label.fullCut = true;
    label.halfCut = false;
    label.held = false;
}

bool any(const std::vector<ExpectedLabel> &labels, bool ExpectedLabel::*what)
{
    return std::ranges::any_of(labels, [what](const ExpectedLabel &label) { return label.*what; });
}

/// What the options without cuts say, if no label is cut.
QString sentenceWithoutCuts(const OptionTexts &options)
{
    if (isOn(options, "KvSpecialTape"))
        return QStringLiteral("Special tape: the printer cuts nothing.");
    if (options.value("inPrintMode") == "Tear")
        return QStringLiteral("The labels are torn off by hand.");
    return QStringLiteral("No full cut: the labels come out as one strip.");
}

QString unknownSentence(const OptionTexts &options)
{
    return options.value("CutMedia") == "Auto" || isPrintersInterval(options)
               ? QStringLiteral("Cutting is not known: the printer decides where it cuts.")
               : QStringLiteral("Cutting is not known: the printer's description does not say whether it "
                                "cuts the labels.");
}

/// Whether the labels are cut after every so many: what follows the last one does not matter.
bool isCutEvery(const std::vector<ExpectedLabel> &labels, std::size_t every)
{
    for (std::size_t number = 1; number < labels.size(); ++number) {
        if (labels[number - 1].fullCut != (number % every == 0))
            return false;
    }
    return true;
}

QString cutSentence(const ExpectedStrip &strip, const OptionTexts &options)
{
    if (!strip.areCutsKnown)
        return unknownSentence(options);
    QStringList places;
    for (std::size_t number = 1; number <= strip.labels.size(); ++number) {
        if (strip.labels[number - 1].fullCut)
            places.append(QString::number(number));
    }
    if (places.isEmpty())
        return sentenceWithoutCuts(options);
    const std::size_t count = strip.labels.size();
    if (count > 1 && places == QStringList{QString::number(count)})
        return QStringLiteral("Full cut after the last label.");
    if (isCutEvery(strip.labels, 1))
        return QStringLiteral("Full cut after every label.");
    for (std::size_t every = 2; every < count; ++every) {
        if (isCutEvery(strip.labels, every))
            return QStringLiteral("Full cut after every %1 labels.").arg(every);
    }
    if (places.size() > 8)
        places = places.first(8) + QStringList{QStringLiteral("\u2026")};
    const QString last = places.takeLast();
    const QString comma = places.size() > 1 ? QStringLiteral(",") : QString();
    return QStringLiteral("Full cuts after the labels %1%2 and %3.")
        .arg(places.join(QStringLiteral(", ")), comma, last);
}

QStringList sentencesOf(const ExpectedStrip &strip, const OptionTexts &options)
{
    QStringList sentences{cutSentence(strip, options)};
    const std::pair<bool, const char *> others[] = {
        {any(strip.labels, &ExpectedLabel::halfCut), "Half cut between the labels of a piece."},
        {any(strip.labels, &ExpectedLabel::cutMark), "Cut marks are printed where there is no full cut."},
        {any(strip.labels, &ExpectedLabel::held),
         "The end stays in the printer; the next job continues there without a margin."},
        {isOn(options, "KvRemoveBlkSpace"), "Blank tape before and after each label is removed."},
        {isOn(options, "KvMirror"), "The labels are mirrored."},
    };
    for (const auto &[holds, sentence] : others) {
        if (holds)
            sentences.append(QLatin1String(sentence));
    }
    return sentences;
}

} // namespace

PrinterFacts PrinterFacts::of(const QByteArray &ppd)
{
    PrinterFacts facts;
    const QString text = QString::fromLatin1(ppd);
    static const QRegularExpression keyword(QStringLiteral("^\\*OpenUI \\*(Kv\\w+)"),
                                            QRegularExpression::MultilineOption);
    for (auto each = keyword.globalMatch(text); each.hasNext();)
        facts.cutKeywords.append(each.next().captured(1));
    facts.hasRollCutter = text.contains(QStringLiteral("*OpenUI *CutMedia")) ||
                          text.contains(QStringLiteral("*OpenUI *inPrintMode"));
    static const QRegularExpression size(
        QStringLiteral("^\\*PaperDimension ([^/:]+)[^:]*: *\"([\\d.]+) ([\\d.]+)\""),
        QRegularExpression::MultilineOption);
    for (auto each = size.globalMatch(text); each.hasNext();) {
        const QRegularExpressionMatch match = each.next();
        facts.papers[match.captured(1).toLatin1()] = {match.captured(2).toDouble() * millimetresPerPoint,
                                                      match.captured(3).toDouble() * millimetresPerPoint,
                                                      0.0};
    }
    static const QRegularExpression area(
        QStringLiteral("^\\*ImageableArea ([^/:]+)[^:]*: *\"([\\d.]+) ([\\d.]+) ([\\d.]+) ([\\d.]+)\""),
        QRegularExpression::MultilineOption);
    for (auto each = area.globalMatch(text); each.hasNext();) {
        const QRegularExpressionMatch match = each.next();
        PaperFacts &paper = facts.papers[match.captured(1).toLatin1()];
        const auto side = [&](int number) { return match.captured(number).toDouble() * millimetresPerPoint; };
        paper.leftMargin = side(2);
        paper.endMargin = side(3);
        paper.rightMargin = paper.width - side(4);
        paper.leadingMargin = paper.length - side(5);
    }
    return facts;
}

QString ExpectedLabel::text() const
{
    QString text = QStringLiteral("%1 %2 ").arg(page + 1).arg(length, 0, 'f', 1);
    const std::pair<bool, char> ends[] = {{fullCut, 'F'}, {halfCut, 'H'}, {cutMark, 'M'}, {held, 'E'}};
    for (const auto &[happens, letter] : ends) {
        if (happens)
            text += QLatin1Char(letter);
    }
    return text.trimmed();
}

int ExpectedStrip::pieces() const
{
    if (labels.empty())
        return 0;
    // A full cut after the last label ends the last piece and begins none.
    return 1 + static_cast<int>(std::count_if(labels.begin(), labels.end() - 1,
                                              [](const ExpectedLabel &label) { return label.fullCut; }));
}

QString ExpectedStrip::text() const
{
    QStringList texts;
    for (const ExpectedLabel &label : labels)
        texts.append(label.text());
    return QStringLiteral("[%1] %2 pieces, %3 mm. %4")
        .arg(texts.join(QStringLiteral(", ")))
        .arg(pieces())
        .arg(tape, 0, 'f', 1)
        .arg(sentences.join(u' '));
}

std::optional<ExpectedStrip> expectedStrip(const OptionTexts &options, const PrinterFacts &printer,
                                           const std::vector<PageFacts> &pages)
{
    const auto paper = printer.papers.constFind(options.value("PageSize"));
    if (paper == printer.papers.constEnd())
        return std::nullopt;
    ExpectedStrip strip;
    const std::optional<RollCuts> cuts = rollCuts(options);
    strip.areCutsKnown = cuts && (!printer.cutKeywords.isEmpty() || printer.hasRollCutter);
    strip.tape = paper->leadingMargin;
    const std::vector<int> order = pagesInOrder(options, static_cast<int>(pages.size()));
    // Without collating, the copies of a page follow each other: only the end of the job ends a copy.
    const auto copies = static_cast<std::size_t>(numberOf(options, "copies"));
    const std::size_t perCopy = isCollated(options) && copies > 0 ? order.size() / copies : order.size();
    for (const int page : order) {
        const PageFacts &facts = pages[static_cast<std::size_t>(page)];
        ExpectedLabel label{page, paper->length};
        if (isOn(options, "KvRemoveBlkSpace"))
            label.length = lengthWithoutBlank(facts, *paper);
        const std::size_t number = strip.labels.size() + 1;
        if (strip.areCutsKnown && !isOn(options, "KvSpecialTape"))
            addEnd(label, number, order.size(), options);
        if (strip.areCutsKnown)
            addRollCut(label, number, order.size(), perCopy, *cuts);
        strip.tape += label.length;
        strip.labels.push_back(label);
    }
    strip.sentences = sentencesOf(strip, options);
    return strip;
}

QStringList differences(const ExpectedStrip &one, const ExpectedStrip &other)
{
    const auto isSame = [](const ExpectedLabel &mine, const ExpectedLabel &its) {
        return mine.page == its.page && mine.fullCut == its.fullCut && mine.halfCut == its.halfCut &&
               mine.cutMark == its.cutMark && mine.held == its.held &&
               std::abs(mine.length - its.length) < uncertainty;
    };
    const bool areSame =
        std::equal(one.labels.begin(), one.labels.end(), other.labels.begin(), other.labels.end(), isSame) &&
        one.pieces() == other.pieces() && one.sentences == other.sentences &&
        std::abs(one.tape - other.tape) < 0.1 + uncertainty * static_cast<double>(one.labels.size());
    return areSame ? QStringList() : QStringList{one.text(), other.text()};
}

} // namespace dialogwalk
