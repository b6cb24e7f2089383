// SPDX-License-Identifier: Apache-2.0

#include <host/base/Length.h>
#include <host/printer/PpdOptions.h>
#include <tests/samples/OptionsPpd.h>

#include <gtest/gtest.h>

using host::PpdOptionKind;
using host::PpdOptions;
using host::PpdParameter;
using host::PpdParameterKind;

namespace {

PpdParameter named(const std::vector<PpdParameter> &parameters, const char *name)
{
    for (const PpdParameter &parameter : parameters) {
        if (parameter.name == name)
            return parameter;
    }
    ADD_FAILURE() << "no parameter " << name;
    return {};
}

QByteArrayList markedIn(const host::PpdFile &ppd, const char *keyword)
{
    const std::vector<QByteArray> marked = PpdOptions(ppd).markedChoices(keyword);
    return {marked.begin(), marked.end()};
}

class PpdOptionsTest : public testing::Test {
protected:
    Sandbox sandbox;
    host::PpdFile ppd = openPpd(sandbox, optionsPpd());
};

} // namespace

TEST_F(PpdOptionsTest, ReadsGroupsOptionsAndKinds)
{
    const PpdOptions options(ppd);
    QStringList texts;
    for (const host::PpdGroup &group : options.groups())
        texts.append(group.text + (group.isInstallable ? QStringLiteral(" (installed)") : QString()));
    EXPECT_EQ(texts, (QStringList{"General", "Print & Quality", "Finishing", "Installed (installed)"}));

    EXPECT_EQ(options.option("Turbo")->kind, PpdOptionKind::Boolean);
    EXPECT_EQ(options.option("Marks")->kind, PpdOptionKind::PickMany);
    const auto darkness = options.option("Darkness");
    EXPECT_EQ(darkness->kind, PpdOptionKind::PickOne);
    EXPECT_EQ(darkness->choices.size(), 3U);
    EXPECT_EQ(darkness->customText, QStringLiteral("Own darkness"));
    EXPECT_FALSE(options.option("Twins")->customText);
    EXPECT_FALSE(options.option("Nothing"));
}

TEST_F(PpdOptionsTest, KnowsWhatLeavesNothingToChoose)
{
    const std::pair<const char *, bool> rows[] = {
        {"Darkness", true}, {"Fixed", false}, {"Extras", true}, {"Stamp", true}, {"Nothing", false},
    };
    for (const auto &[keyword, changeable] : rows)
        EXPECT_EQ(PpdOptions(ppd).canBeChanged(keyword), changeable) << keyword;
}

TEST_F(PpdOptionsTest, ReadsParametersWithTheirLimits)
{
    const auto parameters = PpdOptions(ppd).parameters("Offset");
    struct Row {
        const char *name;
        PpdParameterKind kind;
        double minimum;
        double maximum;
    };
    const Row rows[] = {
        {"Left", PpdParameterKind::Points, 10, 144}, {"Gain", PpdParameterKind::Real, -1.5, 2.5},
        {"Key", PpdParameterKind::Passcode, 4, 6},   {"Secret", PpdParameterKind::Password, 0, 8},
        {"Bend", PpdParameterKind::Real, 0.1, 4},    {"Back", PpdParameterKind::Real, 0.1, 4},
    };
    ASSERT_EQ(parameters.size(), std::size(rows));
    for (const Row &row : rows) {
        const PpdParameter parameter = named(parameters, row.name);
        EXPECT_EQ(parameter.kind, row.kind) << row.name;
        EXPECT_EQ(parameter.minimum, row.minimum) << row.name;
        EXPECT_EQ(parameter.maximum, row.maximum) << row.name;
        EXPECT_TRUE(!parameter.isNumber() ||
                    (parameter.number >= row.minimum && parameter.number <= row.maximum))
            << row.name;
    }
    EXPECT_FALSE(named(parameters, "Key").isComplete());
    EXPECT_TRUE(named(parameters, "Secret").isComplete());
}

TEST_F(PpdOptionsTest, LimitsThatAreReversedOrNoNumbersArePutRight)
{
    QByteArray text = optionsPpd();
    text.replace("1 points 10 144", "1 points 144 10").replace("2 real -1.5 2.5", "2 real nan 1e30");
    text.replace("3 passcode 4 6", "3 passcode 6 -1");
    const auto parameters = PpdOptions(openPpd(sandbox, text)).parameters("Offset");
    const PpdParameter left = named(parameters, "Left");
    EXPECT_EQ(left.minimum, 10);
    EXPECT_EQ(left.maximum, 144);
    const PpdParameter gain = named(parameters, "Gain");
    EXPECT_EQ(gain.minimum, 0);
    EXPECT_EQ(gain.maximum, std::numeric_limits<int>::max());
    EXPECT_EQ(gain.number, 0);
    const PpdParameter key = named(parameters, "Key");
    EXPECT_EQ(key.minimum, 0);
    EXPECT_EQ(key.maximum, 6);
}

TEST_F(PpdOptionsTest, AnOptionOfTwoGroupsDoesNotKeepThePpdFromOpening)
{
    const QByteArray option = "*OpenUI *Twice/Twice: PickOne\n*DefaultTwice: B\n*Twice A/A: \"\"\n"
                              "*Twice B/B: \"\"\n*CloseUI: *Twice\n";
    const QByteArray groups = "*OpenGroup: One/One\n" + option + "*CloseGroup: One\n*OpenGroup: Two/Two\n" +
                              option + "*CloseGroup: Two\n";
    const host::PpdFile twice = openPpd(sandbox, optionsPpd() + groups);
    EXPECT_EQ(markedIn(twice, "Twice"), QByteArrayList{"B"});
}

TEST_F(PpdOptionsTest, TranslatesFreeChoicesAndTheirParameters)
{
    ppd.localize(QStringLiteral("de"));
    EXPECT_EQ(PpdOptions(ppd).option("Darkness")->customText, QStringLiteral("Eigener Wert"));
    EXPECT_EQ(PpdOptions(ppd).parameters("Darkness").front().text, QStringLiteral("Stärke (Prozent)"));
}

TEST_F(PpdOptionsTest, WritesFreeTextsAsLibcupsReadsThem)
{
    const std::pair<const char *, const char *> rows[] = {
        {"plain", "Custom.plain"},    {"a=b", "Custom.a=b"},
        {"Größe", "Custom.Größe"},    {"two words", "{Words=\"two words\"}"},
        {"it's", "{Words=\"it's\"}"}, {"a\\b\"c", "{Words=\"a\\\\b\\\"c\"}"},
        {"a,b", "{Words=\"a,b\"}"},   {"", "{Words=\"\"}"},
    };
    for (const auto &[text, value] : rows) {
        auto parameters = PpdOptions(ppd).parameters("Stamp");
        parameters.front().characters = QString::fromUtf8(text);
        EXPECT_EQ(host::customChoiceValue(parameters), QByteArray(value));
        ppd.mark(QStringLiteral("Stamp"), QStringLiteral("Off"));
        ppd.mark(QStringLiteral("Stamp"), QString::fromUtf8(value));
        EXPECT_EQ(PpdOptions(ppd).parameters("Stamp").front().characters, QString::fromUtf8(text));
        EXPECT_EQ(markedIn(ppd, "Stamp"), QByteArrayList{"Custom"});
    }
}

TEST_F(PpdOptionsTest, WritesSeveralParametersAsLibcupsReadsThem)
{
    auto parameters = PpdOptions(ppd).parameters("Offset");
    parameters[0].number = host::Points(host::Millimetres(12.35)).number();
    parameters[1].number = -0.125;
    parameters[2].characters = QStringLiteral("0123");
    parameters[3].characters = QStringLiteral("a \"b\"");
    parameters[4].number = 0.1;
    parameters[5].number = 3;
    const QByteArray value = host::customChoiceValue(parameters);
    EXPECT_EQ(value,
              QByteArray("{Left=12.35mm Gain=-0.125 Key=0123 Secret=\"a \\\"b\\\"\" Bend=0.1 Back=3}"));
    ppd.mark(QStringLiteral("Offset"), QString::fromUtf8(value));
    const auto read = PpdOptions(ppd).parameters("Offset");
    for (std::size_t i = 0; i < read.size(); ++i) {
        EXPECT_NEAR(read[i].number, parameters[i].number, 1e-4) << read[i].name.toStdString();
        EXPECT_EQ(read[i].characters, parameters[i].characters) << read[i].name.toStdString();
    }
    EXPECT_EQ(host::customChoiceValue(read), value);
}

TEST_F(PpdOptionsTest, MarksExactlyTheListedOfSeveral)
{
    const QString keyword = QStringLiteral("Marks");
    EXPECT_EQ(markedIn(ppd, "Marks"), QByteArrayList{"None"});
    ppd.mark(keyword, QStringLiteral("Crop,Text"));
    ppd.mark(keyword, QStringLiteral("Crop,Text"));
    EXPECT_EQ(markedIn(ppd, "Marks"), (QByteArrayList{"Crop", "Text"}));
    ppd.mark(keyword, QStringLiteral("Fold"));
    EXPECT_EQ(markedIn(ppd, "Marks"), QByteArrayList{"Fold"});
    EXPECT_EQ(ppd.markedChoice(keyword), QStringLiteral("Fold"));
    ppd.mark(keyword, QString());
    EXPECT_EQ(markedIn(ppd, "Marks"), QByteArrayList());
    EXPECT_EQ(ppd.markedChoice(keyword), std::nullopt);
    ppd.mark(keyword, QStringLiteral("Crop,Fold,Text"));
    ppd.markDefaults();
    EXPECT_EQ(markedIn(ppd, "Marks"), QByteArrayList{"None"});
    EXPECT_EQ(ppd.markedChoice(QStringLiteral("Darkness")), QStringLiteral("Normal"));
}
