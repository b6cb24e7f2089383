// SPDX-License-Identifier: Apache-2.0
#include <host/cups/jobs/ChoiceCheck.h>
#include <tests/support/PpdBuilder.h>

#include <QTemporaryDir>

#include <gtest/gtest.h>

using host::PpdFile;
using test_support::PpdBuilder;

namespace {

PpdFile openPpd()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("free.ppd"));
    const QByteArray options = "*OpenUI *Darkness/Darkness: PickOne\n*DefaultDarkness: Normal\n"
                               "*Darkness Normal/Normal: \"\"\n*CloseUI: *Darkness\n"
                               "*CustomDarkness True: \"\"\n*ParamCustomDarkness Level/Level: 1 int -5 5\n"
                               "*OpenUI *Offset/Offset: PickOne\n*DefaultOffset: Zero\n"
                               "*Offset Zero/None: \"\"\n*CloseUI: *Offset\n"
                               "*CustomOffset True: \"\"\n"
                               "*ParamCustomOffset Left/Left: 1 points 10 144\n"
                               "*ParamCustomOffset Gain/Gain: 2 real -1.5 2.5\n"
                               "*ParamCustomOffset Key/Key: 3 passcode 4 6\n"
                               "*ParamCustomOffset Words/Words: 4 string 2 12\n"
                               "*OpenUI *Fixed/Fixed: PickOne\n*DefaultFixed: Custom\n"
                               "*Fixed Custom/Made to measure: \"\"\n*CloseUI: *Fixed\n";
    EXPECT_TRUE(PpdBuilder().raw(options).writeTo(path));
    auto ppd = PpdFile::open(path);
    EXPECT_TRUE(ppd) << qPrintable(ppd.error().message);
    return std::move(ppd).value();
}

} // namespace

TEST(FreeChoice, IsWithinTheLimitsOfThePpd)
{
    const PpdFile ppd = openPpd();
    const struct {
        const char *option;
        const char *value;
        bool isGood;
    } rows[] = {
        {"Darkness", "Custom.5", true},
        {"Darkness", "Custom.-5", true},
        {"Darkness", "{Level=3}", true},
        {"Darkness", "Custom.6", false},
        {"Darkness", "Custom.1.5", false},
        {"Darkness", "Custom.", false},
        {"Darkness", "Custom.x", false},
        {"Darkness", "{Level=6}", false},
        {"Darkness", "{Depth=1}", false},
        {"Darkness", "{}", false},
        {"Darkness", "Custom", false},
        {"Offset", "Custom.10", true},
        {"Offset", "Custom.144pt", true},
        {"Offset", "Custom.2in", true},
        {"Offset", "Custom.50.8mm", true},
        {"Offset", "Custom.5.08cm", true},
        {"Offset", "Custom.2.01in", false},
        {"Offset", "Custom.3mm", false},
        {"Offset", "Custom.5yd", false},
        {"Offset", "{Left=10mm Gain=-1.5 Key=0123 Words=\"two words\"}", true},
        {"Offset", "{Gain=2.6}", false},
        {"Offset", "{Key=12a4}", false},
        {"Offset", "{Key=123}", false},
        {"Offset", "{Words=x}", false},
        {"Offset", "{Words=\"thirteen char\"}", false},
        {"Fixed", "Custom.1", false},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(static_cast<bool>(checkChoice(ppd, {row.option, row.value})), row.isGood)
            << row.option << '=' << row.value;
    }
}
