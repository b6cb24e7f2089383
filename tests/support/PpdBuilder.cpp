// SPDX-License-Identifier: Apache-2.0
#include "PpdBuilder.h"

#include <QSaveFile>
#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <algorithm>

namespace test_support {

namespace {

struct UsualText {
    const char *keyword;
    const char *text;
};

constexpr std::array<UsualText, 9> usualTexts = {{
    {"KvCutLabel", "Cut Every"},
    {"KvCutAtEnd", "Cut at End"},
    {"KvMirror", "Mirror Printing"},
    {"KvAutoTapeCut", "Auto Cut"},
    {"KvHalfCut", "Half Cut"},
    {"KvChainPrint", "Chain Printing"},
    {"KvSpecialTape", "Special Tape"},
    {"KvRemoveBlkSpace", "Remove Blank Space"},
    {"KvCutMark", "Cut Mark"},
}};

QByteArray usualText(const QByteArray &keyword)
{
    for (const UsualText &usual : usualTexts) {
        if (keyword == usual.keyword)
            return usual.text;
    }
    return keyword;
}

std::vector<PpdChoiceLine> countChoices(int first, int last)
{
    std::vector<PpdChoiceLine> choices;
    for (int count = first; count <= last; ++count)
        choices.push_back({QByteArray::number(count), {}});
    return choices;
}

PpdOptionLines usualOption(const QByteArray &keyword)
{
    if (keyword == "KvCutLabel")
        return {keyword, usualText(keyword), countChoices(1, 99), "1"};
    return {keyword, usualText(keyword), {{"OFF", "Off"}, {"ON", "On"}}, "OFF"};
}

QByteArray attributeLine(const QByteArray &keyword, const QByteArray &value)
{
    return '*' + keyword + ": \"" + value + "\"\n";
}

QByteArray optionBlock(const PpdOptionLines &option)
{
    QByteArray block = "*OpenUI *" + option.keyword + '/' + option.text + ": " + option.uiType + '\n';
    if (option.defaultChoice)
        block += "*Default" + option.keyword + ": " + *option.defaultChoice + '\n';
    for (const PpdChoiceLine &choice : option.choices) {
        const QByteArray &text = choice.text.isEmpty() ? choice.keyword : choice.text;
        block += '*' + option.keyword + ' ' + choice.keyword + '/' + text + ": \"\"\n";
    }
    return block + "*CloseUI: *" + option.keyword + '\n';
}

QByteArray points(double value)
{
    return QByteArray::number(value, 'f', 2);
}

struct PaperOption {
    const char *keyword;
    const char *text;
};

constexpr std::array<PaperOption, 2> paperOptions = {
    {{"PageSize", "Paper"}, {"PageRegion", "Paper for Hand Feed"}}};

QByteArray paperBlocks(const std::vector<PpdBuilder::Paper> &papers, const QByteArray &standard)
{
    QByteArray blocks;
    for (const PaperOption &option : paperOptions) {
        PpdOptionLines lines{option.keyword, option.text, {}, standard};
        for (const PpdBuilder::Paper &paper : papers)
            lines.choices.push_back({paper.name, {}});
        blocks += optionBlock(lines);
    }
    blocks += "*DefaultImageableArea: " + standard + "\n*DefaultPaperDimension: " + standard + '\n';
    for (const PpdBuilder::Paper &paper : papers) {
        const QByteArray size = points(paper.width) + ' ' + points(paper.height);
        blocks += "*ImageableArea " + paper.name + ": \"0 0 " + size + "\"\n";
        blocks += "*PaperDimension " + paper.name + ": \"" + size + "\"\n";
    }
    return blocks;
}

QByteArray head(const QByteArray &encoding)
{
    return "*PPD-Adobe: \"4.3\"\n"
           "*FormatVersion: \"4.3\"\n"
           "*FileVersion: \"1.0\"\n"
           "*LanguageVersion: English\n"
           "*LanguageEncoding: " +
           encoding +
           "\n"
           "*PCFileName: \"KVTEST.PPD\"\n"
           "*Manufacturer: \"Kvelland\"\n"
           "*Product: \"(Kvelland Test Printer)\"\n"
           "*PSVersion: \"(3010.000) 0\"\n"
           "*ModelName: \"Kvelland Test Printer\"\n"
           "*ShortNickName: \"Kvelland Test Printer\"\n"
           "*NickName: \"Kvelland Test Printer\"\n"
           "*LanguageLevel: \"3\"\n"
           "*ColorDevice: False\n"
           "*DefaultColorSpace: Gray\n"
           "*FileSystem: False\n"
           "*Throughput: \"1\"\n"
           "*LandscapeOrientation: Plus90\n"
           "*TTRasterizer: Type42\n"
           "*cupsFilter: \"application/vnd.cups-pdf 0 -\"\n";
}

} // namespace

const std::vector<PpdBuilder::Paper> &PpdBuilder::usualPapers()
{
    static const std::vector<Paper> papers = {
        {"24mm", 68.03, 170.08},    {"36mm", 102.05, 283.46},   {"62mm", 175.75, 175.75},
        {"DC29x90", 82.20, 255.12}, {"AV20x50", 56.69, 141.73}, {"FL21x45", 59.53, 127.56},
        {"HS11mm", 31.18, 170.08},
    };
    return papers;
}

PpdBuilder::PpdBuilder()
    : m_papers(usualPapers())
{
}

PpdBuilder &PpdBuilder::tape()
{
    m_paperLabels = false;
    return *this;
}

PpdBuilder &PpdBuilder::paperLabels()
{
    m_paperLabels = true;
    return *this;
}

PpdBuilder &PpdBuilder::autoCutObjHidden(const QByteArray &value)
{
    m_autoCutObjHidden = value;
    return *this;
}

PpdBuilder &PpdBuilder::option(const QByteArray &keyword)
{
    return option(usualOption(keyword));
}

PpdBuilder &PpdBuilder::options(std::initializer_list<QByteArray> keywords)
{
    for (const QByteArray &keyword : keywords)
        option(keyword);
    return *this;
}

PpdBuilder &PpdBuilder::options(unsigned mask)
{
    for (std::size_t index = 0; index < panelKeywords.size(); ++index) {
        if (mask & (1U << index))
            option(QByteArray(panelKeywords[index]));
    }
    return *this;
}

PpdBuilder &PpdBuilder::option(const PpdOptionLines &option)
{
    lines(option.keyword) = option;
    return *this;
}

PpdOptionLines &PpdBuilder::lines(const QByteArray &keyword)
{
    const auto found = std::find_if(m_options.begin(), m_options.end(),
                                    [&](const PpdOptionLines &option) { return option.keyword == keyword; });
    return found != m_options.end() ? *found : m_options.emplace_back(usualOption(keyword));
}

PpdBuilder &PpdBuilder::text(const QByteArray &keyword, const QByteArray &text)
{
    lines(keyword).text = text;
    return *this;
}

PpdBuilder &PpdBuilder::emptyText(const QByteArray &keyword)
{
    m_encoding = "WindowsANSI";
    return text(keyword, "\x81");
}

PpdBuilder &PpdBuilder::choices(const QByteArray &keyword, std::vector<PpdChoiceLine> choices)
{
    lines(keyword).choices = std::move(choices);
    return *this;
}

PpdBuilder &PpdBuilder::defaultChoice(const QByteArray &keyword, const QByteArray &choice)
{
    lines(keyword).defaultChoice = choice;
    return *this;
}

PpdBuilder &PpdBuilder::noDefault(const QByteArray &keyword)
{
    lines(keyword).defaultChoice.reset();
    return *this;
}

PpdBuilder &PpdBuilder::counts(int first, int last)
{
    return choices("KvCutLabel", countChoices(first, last))
        .defaultChoice("KvCutLabel", QByteArray::number(first));
}

PpdBuilder &PpdBuilder::foreignOptions(int count, int choices)
{
    for (int number = 1; number <= count; ++number) {
        PpdOptionLines foreign{"Foreign" + QByteArray::number(number), {}, {}, "Choice1"};
        foreign.text = foreign.keyword;
        for (int choice = 1; choice <= choices; ++choice)
            foreign.choices.push_back({"Choice" + QByteArray::number(choice), {}});
        option(foreign);
    }
    return *this;
}

PpdBuilder &PpdBuilder::noPapers()
{
    m_papers.clear();
    m_defaultPaper.reset();
    return *this;
}

PpdBuilder &PpdBuilder::paper(const QByteArray &name, double width, double height)
{
    m_papers.push_back({name, width, height});
    return *this;
}

PpdBuilder &PpdBuilder::defaultPaper(const QByteArray &name)
{
    m_defaultPaper = name;
    return *this;
}

PpdBuilder &PpdBuilder::attribute(const QByteArray &keyword, const QByteArray &value)
{
    m_attributes += attributeLine(keyword, value);
    return *this;
}

PpdBuilder &PpdBuilder::constraint(const QByteArray &option, const QByteArray &choice,
                                   const QByteArray &otherOption, const QByteArray &otherChoice)
{
    const auto side = [](const QByteArray &keyword, const QByteArray &value) {
        return " *" + keyword + (value.isEmpty() ? QByteArray() : ' ' + value);
    };
    const QByteArray one = side(option, choice);
    const QByteArray other = side(otherOption, otherChoice);
    m_constraints += "*UIConstraints:" + one + other + "\n*UIConstraints:" + other + one + '\n';
    return *this;
}

PpdBuilder &PpdBuilder::languageEncoding(const QByteArray &encoding)
{
    m_encoding = encoding;
    return *this;
}

PpdBuilder &PpdBuilder::raw(const QByteArray &lines)
{
    m_raw += lines;
    return *this;
}

QByteArray PpdBuilder::ppd() const
{
    QByteArray bytes = head(m_encoding);
    if (m_paperLabels)
        bytes += attributeLine("KvTapeType", "DZ");
    if (m_autoCutObjHidden)
        bytes += attributeLine("KvAutoCutObjHidden", *m_autoCutObjHidden);
    bytes += m_attributes + m_constraints;
    if (!m_papers.empty())
        bytes += paperBlocks(m_papers, m_defaultPaper.value_or(m_papers.front().name));
    for (const PpdOptionLines &option : m_options)
        bytes += optionBlock(option);
    return bytes + m_raw + "*DefaultFont: Courier\n*Font Courier: Standard \"(1.05)\" Standard ROM\n";
}

bool PpdBuilder::writeTo(const QString &path) const
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(ppd()) >= 0 && file.commit();
}

PpdPointer PpdBuilder::open() const
{
    QTemporaryFile file;
    if (!file.open() || file.write(ppd()) < 0 || !file.flush()) {
        ADD_FAILURE() << "cannot write a PPD: " << qPrintable(file.errorString());
        return nullptr;
    }
    PpdPointer opened(ppdOpenFile(qPrintable(file.fileName())));
    if (!opened) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        ADD_FAILURE() << "libcups refuses the PPD: " << ppdErrorString(status) << " in line " << line;
    }
    return opened;
}

PpdPointer PpdBuilder::openMarked() const
{
    PpdPointer opened = open();
    if (opened)
        ppdMarkDefaults(opened.get());
    return opened;
}

} // namespace test_support
