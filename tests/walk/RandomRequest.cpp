// SPDX-License-Identifier: Apache-2.0
#include "RandomRequest.h"

#include <QJsonArray>

#include <limits>

namespace walk {

namespace {

using model::Row;

QJsonValue randomPaper(Dice &dice)
{
    if (dice.percent(8))
        return {};
    static const QStringList names{"24mm", "DC01", "DC01", "AV01",  "FL01", "FL01", "FL01", "HS24",
                                   "HS24", "FLAT", "DC99", "AV",    "FL99", "HS99", "HS",   "H",
                                   "F",    "fl01", "hs24", "xFL01", "A4",   ""};
    const auto name = dice.percent(15) ? QJsonValue() : QJsonValue(dice.pick(names));
    QJsonObject paper{{"name", name}, {"height", dice.pick<double>({100.0, 175.748, 0.0, 50.5, 3000.0})}};
    if (dice.percent(10))
        paper[dice.pick<QString>({"paperStatus", "nameStatus", "heightStatus"})] = -50;
    return paper;
}

QJsonValue randomTicket(Dice &dice)
{
    const auto property = [](const QString &content) {
        return QStringLiteral(
                   "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">%1</plist>\n")
            .arg(content);
    };
    const QString entry = "<dict><key>LxPaperName2</key>%1</dict>";
    return dice.pick<QJsonValue>({
        QJsonValue(),
        property(entry.arg("<string>HS11</string>")),
        property(entry.arg("<string>HS</string>")),
        property(entry.arg("<string>FL01</string>")),
        property(entry.arg("<string></string>")),
        property(entry.arg("<integer>7</integer>")),
        property("<dict><key>Other</key><string>HS11</string></dict>"),
        property("<array><string>HS11</string></array>"),
        "HS11, and not a property list",
        "",
    });
}

QString randomKeyword(Dice &dice)
{
    if (dice.percent(94))
        return namesOf(dice.pick(model::rows)).keyword;
    return dice.pick<QString>({"kvhalfcut", "PageSize", "Unheard", ""});
}

QString randomChoice(Dice &dice, const model::PrinterDescription &printer, const QString &keyword)
{
    const auto *option = printer.option(keyword);
    if (option && !option->choices.empty() && dice.percent(85))
        return dice.pick(option->choices).keyword;
    return dice.pick<QString>({"ON", "OFF", "on", "Off", "1", "7", "99", "Unheard", "", "Custom.7"});
}

QJsonObject randomMark(Dice &dice, const char *op, const model::PrinterDescription &printer)
{
    const auto keyword = randomKeyword(dice);
    return {{"op", op}, {"keyword", keyword}, {"choice", randomChoice(dice, printer, keyword)}};
}

/// Of a force member most requests have none.
void addForce(Dice &dice, QJsonObject &request)
{
    if (dice.percent(20))
        request["force"] = dice.percent(90);
}

QJsonObject randomClick(Dice &dice, const model::Panel &panel)
{
    auto row = dice.pick(model::rows);
    for (int tries = 0; panel.view && (*panel.view)[row].hidden && tries < 4; ++tries)
        row = dice.pick(model::rows);
    QJsonObject request{{"op", "click"}, {"control", namesOf(row).box}};
    addForce(dice, request);
    return request;
}

QJsonObject randomCount(Dice &dice)
{
    QJsonObject request;
    if (dice.percent(50)) {
        request = {{"op", "type"},
                   {"text", dice.pick<QString>({"",    "0",   "1",   "5",   "7",           "9",
                                                "007", "+5",  "-3",  " 12", "\t6",         "12abc",
                                                "abc", "50",  "99",  "100", "150",         "300",
                                                "301", "1.9", "- 4", "+-4", "99999999999", "-99999999999"})}};
    } else {
        const int least = std::numeric_limits<int>::min();
        const int most = std::numeric_limits<int>::max();
        request = {{"op", "step"},
                   {"value", dice.pick<int>(
                                 {-1, 0, 1, 2, 4, 5, 6, 8, 9, 50, 98, 99, 100, 299, 300, 301, least, most})}};
    }
    addForce(dice, request);
    return request;
}

QJsonObject randomPreset(Dice &dice, const model::Panel &panel)
{
    int tag = dice.below(18);
    if (panel.view && !panel.view->presets.isEmpty() && dice.percent(85))
        tag = dice.pick(panel.view->presets);
    QJsonObject request{{"op", "choosePreset"}, {"tag", tag}};
    addForce(dice, request);
    return request;
}

QJsonObject randomPaperChange(Dice &dice)
{
    QJsonObject request{{"op", "paper"}};
    if (dice.percent(90))
        request["paper"] = randomPaper(dice);
    if (dice.percent(30))
        request["ticket"] = randomTicket(dice);
    return request;
}

QJsonObject randomKeywordChange(Dice &dice, const model::PrinterDescription &printer)
{
    auto request = randomMark(dice, "ppdChange", printer);
    if (dice.percent(5))
        request[dice.pick<QString>({"keyword", "choice"})] = QJsonValue();
    return request;
}

/// A window height: far too small, at the edge for the highest and the lowest panel, large, none.
QJsonValue randomWindowHeight(Dice &dice)
{
    return dice.pick<QJsonValue>({QJsonValue(), 0, 246, 246.5, 247, 300, 378, 379, 500});
}

QJsonObject illFormed(Dice &dice)
{
    return dice.pick<QJsonObject>({
        {{"op", "unheard"}},
        {{"op", 7}},
        {{"action", "save"}},
        {{"op", "click"}},
        {{"op", "click"}, {"control", "mCutEveryTxBx"}},
        {{"op", "click"}, {"control", 5}},
        {{"op", "click"}, {"control", "mMirrorPrintChkBx"}, {"force", "yes"}},
        {{"op", "type"}, {"text", 7}, {"force", true}},
        {{"op", "type"}, {"force", true}},
        {{"op", "step"}, {"value", 1.5}, {"force", true}},
        {{"op", "step"}, {"value", 2147483648.0}, {"force", true}},
        {{"op", "step"}, {"value", "7"}, {"force", true}},
        {{"op", "choosePreset"}, {"tag", "4"}, {"force", true}},
        {{"op", "choosePreset"}, {"force", true}},
        {{"op", "paper"}, {"paper", "A4"}},
        {{"op", "paper"}, {"paper", QJsonObject{{"name", "FL01"}}}},
        {{"op", "paper"}, {"paper", QJsonObject{{"height", 100}}}},
        {{"op", "paper"}, {"paper", QJsonObject{{"name", "FL01"}, {"height", "100"}}}},
        {{"op", "paper"}, {"paper", QJsonValue()}, {"ticket", 7}},
        {{"op", "ppdChange"}, {"keyword", "KvMirror"}},
        {{"op", "ppdChange"}, {"keyword", 7}, {"choice", "ON"}},
        {{"op", "mark"}, {"keyword", "KvMirror"}},
        {{"op", "mark"}, {"keyword", QJsonValue()}, {"choice", "ON"}},
        {{"op", "keyWindow"}},
        {{"op", "keyWindow"}, {"height", "tall"}},
        {{"op", "localized"}},
    });
}

QJsonObject randomReading(Dice &dice)
{
    if (dice.percent(70))
        return {{"op", dice.pick<QString>({"summary", "summary", "supportedKeys", "names"})}};
    if (dice.percent(30))
        return {{"op", "localized"}, {"key", dice.pick<QString>({"RS_Labels", "RS_HalfCut", "Unheard", ""})}};
    return {{"op", "tapeInfo"}, {"paper", randomPaper(dice)}, {"ticket", randomTicket(dice)}};
}

QJsonObject requestWithoutPanel(Dice &dice)
{
    if (dice.percent(30))
        return illFormed(dice);
    return {{"op",
             dice.pick<QString>({"view", "willShow", "save", "summary", "state", "close", "supportedKeys"})}};
}

/// Asked of a panel whose view is not loaded: loading it soon, after some of what may come before.
QJsonObject requestBeforeView(Dice &dice, const model::PrinterDescription &printer)
{
    if (dice.percent(60))
        return {{"op", "view"}};
    switch (dice.below(5)) {
    case 0:
        return randomPaperChange(dice);
    case 1:
        return randomKeywordChange(dice, printer);
    case 2:
        return randomMark(dice, "mark", printer);
    case 3:
        return randomReading(dice);
    default:
        return {{"op", dice.pick<QString>({"save", "shouldPrint", "willShow", "restore", "state"})}};
    }
}

} // namespace

QJsonObject randomOpen(Dice &dice, const model::PrinterDescription &printer)
{
    QJsonObject request{{"op", "open"}};
    if (dice.percent(15))
        request["markDefaults"] = false;
    if (dice.percent(60)) {
        QJsonArray marks;
        for (int count = dice.below(6); count > 0; --count) {
            const auto keyword = randomKeyword(dice);
            marks.append(QJsonArray{keyword, randomChoice(dice, printer, keyword)});
        }
        request["marks"] = marks;
    }
    if (dice.percent(80))
        request["paper"] = randomPaper(dice);
    if (dice.percent(40))
        request["ticket"] = randomTicket(dice);
    if (dice.percent(8))
        request["printSettings"] = false;
    if (dice.percent(30))
        request["deviceURI"] = dice.pick<QJsonValue>(
            {QJsonValue(), "usb://Maker/Printer", "KVLXUSB://Maker/Printer", "kvlxusb://x", "USB://x",
             "usbx://x", "ipp://printer.example/ipp/print", "usb", ""});
    if (dice.percent(40))
        request["keyWindowHeight"] = randomWindowHeight(dice);
    if (dice.percent(10))
        request["canResize"] = false;
    if (dice.percent(20))
        request["language"] = "de";
    return request;
}

QJsonObject randomRequest(Dice &dice, const model::DriverModel &driver,
                          const model::PrinterDescription &printer)
{
    if (!driver.panel())
        return dice.percent(50) ? randomOpen(dice, printer) : requestWithoutPanel(dice);
    if (dice.percent(3))
        return illFormed(dice);
    if (dice.percent(1))
        return {{"op", dice.pick<QString>({"close", "open"})}, {"paper", "an ill-formed one"}};
    const auto &panel = *driver.panel();
    if (!panel.view)
        return requestBeforeView(dice, printer);
    if (!panel.isShownBefore && dice.percent(40))
        return {{"op", "willShow"}};
    const int chance = dice.below(100);
    if (chance < 34)
        return randomClick(dice, panel);
    if (chance < 44)
        return randomCount(dice);
    if (chance < 54)
        return randomPreset(dice, panel);
    if (chance < 68)
        return randomPaperChange(dice);
    if (chance < 75)
        return randomKeywordChange(dice, printer);
    if (chance < 81)
        return randomMark(dice, "mark", printer);
    if (chance < 85)
        return randomReading(dice);
    if (chance < 87)
        return {{"op", "keyWindow"}, {"height", randomWindowHeight(dice)}};
    return {{"op", dice.pick<QString>({"save", "save", "restore", "restore", "restore", "willShow",
                                       "willShow", "shouldPrint", "trackingAreasUpdated", "view"})}};
}

} // namespace walk
