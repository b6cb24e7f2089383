// SPDX-License-Identifier: Apache-2.0
// A PPD, statement by statement. Each byte chooses a statement, or a name or a value in it, from few names,
// so that statements refer to each other, choices exclude each other and names come twice.
#include "FuzzInput.h"
#include "PpdExamination.h"

#include <array>

namespace {

QByteArray number(FuzzInput &input)
{
    static constexpr std::array numbers{"0",   "-1",  "1",    "68.03", "1e30", "nan", "99999999999",
                                        "170", "680", "0.01", "",      "inf",  "x",   "2147483648"};
    return numbers.at(input.byte() % numbers.size());
}

QByteArray option(FuzzInput &input)
{
    static constexpr std::array options{
        "PageSize", "PageRegion", "KvAutoTapeCut", "KvCutLabel",
        "A",        "B",          "InputSlot",     "Longer-Than_most.Names0123456789"};
    return options.at(input.byte() % options.size());
}

QByteArray choice(FuzzInput &input)
{
    static constexpr std::array choices{"ON",  "OFF", "None",   "False", "True",
                                        "W24", "w24", "Custom", "1",     ""};
    return choices.at(input.byte() % choices.size());
}

QByteArray text(FuzzInput &input)
{
    static constexpr std::array texts{"", "/Text", "/%1 %2", "/<e4>", "/\xc3\xa4", "/\xff", "/a&b", "/<"};
    return texts.at(input.byte() % texts.size());
}

QByteArray four(FuzzInput &input)
{
    return number(input) + ' ' + number(input) + ' ' + number(input) + ' ' + number(input);
}

QByteArray statementOfOption(FuzzInput &input)
{
    static constexpr std::array kinds{"PickOne", "PickMany", "Boolean", "Other"};
    static constexpr std::array types{"int", "real", "points", "string", "password", "passcode", "curve"};
    switch (input.byte() % 8) {
    case 0:
        return "*OpenUI *" + option(input) + text(input) + ": " + kinds.at(input.byte() % kinds.size());
    case 1:
        return "*CloseUI: *" + option(input);
    case 2:
        return "*Default" + option(input) + ": " + choice(input);
    case 3:
        return "*Custom" + option(input) + " True" + text(input) + ": \"\"";
    case 4:
        return "*ParamCustom" + option(input) + ' ' + choice(input) + text(input) + ": 1 " +
               types.at(input.byte() % types.size()) + ' ' + number(input) + ' ' + number(input);
    case 5:
        return "*OpenGroup: " + choice(input) + text(input);
    case 6:
        return "*CloseGroup: " + choice(input);
    default:
        return '*' + option(input) + ' ' + choice(input) + text(input) + ": \"\"";
    }
}

QByteArray statementOfConstraint(FuzzInput &input)
{
    switch (input.byte() % 4) {
    case 0:
        return "*cupsUIConstraints " + choice(input) + ": \"*" + option(input) + ' ' + choice(input) + " *" +
               option(input) + ' ' + choice(input) + " *" + option(input) + '"';
    case 1:
        return "*cupsUIResolver " + choice(input) + ": \"*" + option(input) + ' ' + choice(input) + '"';
    case 2:
        return "*NonUIConstraints: *" + option(input) + ' ' + choice(input) + " *" + option(input);
    default:
        return "*UIConstraints: *" + option(input) + ' ' + choice(input) + " *" + option(input) + ' ' +
               choice(input);
    }
}

QByteArray statementOfPaper(FuzzInput &input)
{
    switch (input.byte() % 6) {
    case 0:
        return "*PaperDimension " + choice(input) + text(input) + ": \"" + number(input) + ' ' +
               number(input) + '"';
    case 1:
        return "*ImageableArea " + choice(input) + ": \"" + four(input) + '"';
    case 2:
        return "*VariablePaperSize: True\n*MaxMediaWidth: \"" + number(input) + "\"\n*MaxMediaHeight: \"" +
               number(input) + '"';
    case 3:
        return "*HWMargins: " + four(input);
    case 4:
        return "*de.Translation " + option(input) + text(input) + ": \"\"";
    default:
        return "*de." + option(input) + ' ' + choice(input) + text(input) + ": \"\"";
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    QByteArray ppd = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
                     "*LanguageEncoding: UTF-8\n*NickName: \"Fuzzed\"\n";
    constexpr int maxStatements = 300;
    for (int i = 0; i < maxStatements && !input.isEmpty(); ++i) {
        switch (input.byte() % 4) {
        case 0:
            ppd += statementOfConstraint(input);
            break;
        case 1:
            ppd += statementOfPaper(input);
            break;
        default:
            ppd += statementOfOption(input);
        }
        ppd += '\n';
    }
    examinePpd(ppd);
    return 0;
}
