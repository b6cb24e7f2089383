// SPDX-License-Identifier: Apache-2.0
#include "SamplePpd.h"

namespace {

struct Paper {
    const char *name;
    const char *text;
    const char *size;
    const char *area;
};

constexpr Paper papers[] = {
    {"W24H60", "Tape 24 mm x 60 mm", "68.031 170.079", "5.669 2.835 62.362 164.409"},
    {"W12H60", "Tape 12 mm x 60 mm", "34.016 170.079", nullptr},
    {"DC52x75", "Labels 52 mm x 75 mm", "147.402 212.598", "0 0 147.402 212.598"},
    {"DC52x75R", "Removable 52 mm x 75 mm", "147.402 212.598", "0 0 147.402 212.598"},
};

QByteArray paperOption(const char *keyword)
{
    const QByteArray name(keyword);
    QByteArray text = "*OpenUI *" + name + "/Media Size: PickOne\n*Default" + name + ": W24H60\n";
    for (const Paper &paper : papers)
        text += "*" + name + " " + paper.name + "/" + paper.text + ": \"\"\n";
    return text + "*CloseUI: *" + name + "\n";
}

QByteArray switchOption(const char *keyword, const char *title, const char *usual)
{
    const QByteArray name(keyword);
    return "*OpenUI *" + name + "/" + title + ": PickOne\n*Default" + name + ": " + usual + "\n*" + name +
           " OFF/Off: \"\"\n*" + name + " ON/On: \"\"\n*CloseUI: *" + name + "\n";
}

QByteArray countOption()
{
    QByteArray text = "*OpenUI *KvCutLabel/Cut every: PickOne\n*DefaultKvCutLabel: 1\n";
    for (int count = 1; count <= 9; ++count)
        text += "*KvCutLabel " + QByteArray::number(count) + "/" + QByteArray::number(count) + ": \"\"\n";
    return text + "*CloseUI: *KvCutLabel\n";
}

} // namespace

QByteArray tapePpd()
{
    QByteArray text = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
                      "*LanguageVersion: English\n*LanguageEncoding: UTF-8\n*cupsLanguages: \"en de\"\n"
                      "*PCFileName: \"TAPE.PPD\"\n*Manufacturer: \"Kvelland\"\n*Product: \"(Tape)\"\n"
                      "*ModelName: \"Tape\"\n*ShortNickName: \"Tape\"\n*NickName: \"Kvelland Tape 9\"\n"
                      "*PSVersion: \"(3010.000) 0\"\n*LanguageLevel: \"3\"\n*ColorDevice: False\n"
                      "*DefaultColorSpace: Gray\n*VariablePaperSize: True\n*TTRasterizer: Type42\n"
                      "*% an odd \" in a comment changes nothing\n";
    text += paperOption("PageSize") + paperOption("PageRegion");
    text += "*DefaultImageableArea: W24H60\n*DefaultPaperDimension: W24H60\n";
    for (const Paper &paper : papers) {
        text += QByteArray("*PaperDimension ") + paper.name + ": \"" + paper.size + "\"\n";
        if (paper.area)
            text += QByteArray("*ImageableArea ") + paper.name + ": \"" + paper.area + "\"\n";
    }
    text += "*MaxMediaWidth: \"70\"\n*MaxMediaHeight: \"2835\"\n*HWMargins: 6 3 6 6\n"
            "*CustomPageSize True: \"pop pop pop\"\n*ParamCustomPageSize Width: 1 points 17 70\n"
            "*ParamCustomPageSize Height: 2 points 28 2835\n*ParamCustomPageSize WidthOffset: 3 points 0 0\n"
            "*ParamCustomPageSize HeightOffset: 4 points 0 0\n*ParamCustomPageSize Orientation: 5 int 0 0\n";
    text += countOption() + switchOption("KvAutoTapeCut", "Auto Cut", "ON") +
            switchOption("KvCutAtEnd", "Cut at End", "ON") + switchOption("KvMirror", "Mirror", "OFF") +
            switchOption("KvHalfCut", "Half Cut", "ON") + switchOption("KvChainPrint", "Chain", "OFF") +
            switchOption("KvSpecialTape", "Special", "OFF") +
            switchOption("KvRemoveBlkSpace", "Remove Blank", "OFF") +
            switchOption("KvCutMark", "Cut Mark", "OFF");
    text += "*de.Translation KvHalfCut/Halbschnitt: \"\"\n*de.KvHalfCut ON/Ein: \"\"\n"
            "*de.PageSize W24H60/Band 24 mm x 60 mm: \"\"\n*de.Translation PageSize/Papier: \"\"\n";
    return text;
}

QByteArray tapePpdWithMorePapers(int count)
{
    QByteArray ppd = tapePpd();
    QByteArray choices;
    for (int i = 0; i < count; ++i) {
        const QByteArray name = "Extra" + QByteArray::number(i);
        choices += "*PageSize " + name + ": \"\"\n";
        ppd += "*PaperDimension " + name + ": \"" + QByteArray::number(100 + i) + " 200\"\n";
    }
    return ppd.replace("*CloseUI: *PageSize\n", choices + "*CloseUI: *PageSize\n");
}

QByteArray damagedPpdText()
{
    return "*PPD-Adobe: \"4.3\"\n" + QByteArray(50LL * 1024 * 1024, '%');
}

host::PpdFile openTapePpd(const Sandbox &sandbox)
{
    auto ppd = host::PpdFile::open(sandbox.write(QStringLiteral("tape.ppd"), tapePpd()));
    if (!ppd)
        qFatal("%s", qPrintable(ppd.error().message));
    ppd.value().markDefaults();
    return std::move(ppd).value();
}
