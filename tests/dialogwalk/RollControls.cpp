// SPDX-License-Identifier: Apache-2.0
#include "RollControls.h"

#include "Gestures.h"
#include "Hands.h"

#include <QComboBox>
#include <QRadioButton>
#include <QSpinBox>

namespace dialogwalk {

namespace {

QByteArray optionLines(const QByteArray &keyword, const QByteArrayList &choices)
{
    QByteArray lines = "*OpenUI *" + keyword + '/' + keyword + ": PickOne\n*OrderDependency: 20 AnySetup *" +
                       keyword + "\n*Default" + keyword + ": " + choices.first() + '\n';
    for (const QByteArray &choice : choices)
        lines += "*" + keyword + ' ' + choice + '/' + choice + ": \"\"\n";
    return lines + "*CloseUI: *" + keyword + '\n';
}

/// A radio button and the choices that it stands for on the two kinds of printer.
struct RollButton {
    const char *text;
    const char *finishing;
    const char *mode;
    const char *interval;
};

constexpr RollButton rollButtons[] = {
    {"Cut after every label", "EndOfPage", "Cut", "1"},
    {"Cut after every", nullptr, "Cut", nullptr},
    {"Cut after each copy", "EndOfSet", nullptr, nullptr},
    {"Cut after each document", "EndOfDoc", nullptr, nullptr},
    {"Cut at the end", "EndOfJob", nullptr, nullptr},
    {"Let me tear", nullptr, "Tear", nullptr},
    {"Do not cut", "None", "Standard", nullptr},
    {"Cut where the printer decides", "Auto", "Cut", "None"},
};

bool has(const QByteArray &ppd, const char *keyword)
{
    return ppd.contains("*OpenUI *" + QByteArray(keyword) + '/');
}

template<typename Control>
std::vector<Control *> enabled(const QWidget &window)
{
    std::vector<Control *> found;
    for (Control *const each : window.findChildren<Control *>()) {
        if (each->isVisible() && each->isEnabled())
            found.push_back(each);
    }
    return found;
}

} // namespace

QString RollControls::tab()
{
    return QStringLiteral("Roll and Cutter");
}

QByteArray RollControls::finishingLines()
{
    return optionLines("CutMedia", {"None", "Auto", "EndOfPage", "EndOfDoc", "EndOfSet", "EndOfJob"}) +
           optionLines("media-tracking", {"Gap", "Mark", "Continuous"});
}

QByteArray RollControls::printModeLines()
{
    return optionLines("inPrintMode", {"Standard", "Tear", "Cut"}) +
           optionLines("inTearInterval", {"None", "1", "2"}) +
           optionLines("inCutInterval", {"None", "1", "2", "3", "5"}) +
           optionLines("print-speed", {"1", "2"});
}

OptionTexts RollControls::press(QRadioButton *button) const
{
    Hands::click(button);
    const QByteArray ppd = m_dialog.server().ppd(m_dialog.destination());
    OptionTexts chosen;
    for (const RollButton &each : rollButtons) {
        if (button->text() != QLatin1String(each.text))
            continue;
        if (has(ppd, "CutMedia"))
            chosen["CutMedia"] = each.finishing;
        else
            chosen["inPrintMode"] = each.mode;
        if (each.interval && has(ppd, "inCutInterval"))
            chosen["inCutInterval"] = each.interval;
        if (!each.interval && button->text() == QStringLiteral("Cut after every"))
            chosen["inCutInterval"] = QByteArray::number(
                m_dialog.window().findChild<QSpinBox *>(QStringLiteral("interval"))->value());
    }
    return chosen;
}

std::optional<OptionTexts> RollControls::step(QSpinBox *interval, bool isUp) const
{
    const QList<int> numbers{2, 3, 5};
    const qsizetype next = numbers.indexOf(interval->value()) + (isUp ? 1 : -1);
    Gestures::pressIn(interval, isUp ? Qt::Key_Up : Qt::Key_Down);
    return next < 0 || next >= numbers.size()
               ? std::nullopt
               : std::optional(OptionTexts{{"inCutInterval", QByteArray::number(numbers[next])}});
}

std::optional<OptionTexts> RollControls::pick(QComboBox *list, int row) const
{
    if (!Gestures::pickRow(list, row))
        return std::nullopt;
    return OptionTexts{{list->objectName().toLatin1(), list->itemText(row).toLatin1()}};
}

std::optional<OptionTexts> RollControls::operate(std::uint32_t number) const
{
    const dialog::PrintDialog &window = m_dialog.window();
    const std::uint32_t place = number / 4;
    std::vector<QComboBox *> lists = enabled<QComboBox>(window);
    std::erase_if(lists, [](const QComboBox *list) { return list->objectName().isEmpty(); });
    auto *const interval = window.findChild<QSpinBox *>(QStringLiteral("interval"));
    const std::vector<QRadioButton *> buttons = enabled<QRadioButton>(window);
    if (number % 4 == 0 && !lists.empty()) {
        QComboBox *const list = lists[place % lists.size()];
        return pick(list, static_cast<int>(place / 8 % static_cast<std::uint32_t>(list->count())));
    }
    if (number % 4 == 1 && interval && interval->isEnabled())
        return step(interval, place % 2 == 0);
    if (buttons.empty())
        return std::nullopt;
    return press(buttons[place % buttons.size()]);
}

QStringList RollControls::summaryWords(const QByteArray &ppd, const OptionTexts &options)
{
    QStringList words;
    const auto addWord = [&](const QByteArray &choice) {
        words.append(choice == "None" || choice == "Standard" ? QStringLiteral("Do")
                     : choice == "Tear"                       ? QStringLiteral("Let")
                                                              : QStringLiteral("Cut"));
    };
    if (has(ppd, "inPrintMode"))
        addWord(options.value("inPrintMode"));
    if (has(ppd, "CutMedia"))
        addWord(options.value("CutMedia"));
    if (has(ppd, "inTearInterval") && options.value("inPrintMode") == "Tear")
        words.append(QString::fromLatin1(options.value("inTearInterval")));
    for (const char *const keyword : {"media-tracking", "print-speed"}) {
        if (has(ppd, keyword))
            words.append(QString::fromLatin1(options.value(keyword)));
    }
    return words;
}

} // namespace dialogwalk
