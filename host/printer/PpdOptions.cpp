// SPDX-License-Identifier: Apache-2.0
#include "PpdOptions.h"

#include "PpdNumber.h"

#include <host/base/Length.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <tuple>

namespace host {
inline namespace printer {

namespace {

struct PpdOptionsText {
    Q_DECLARE_TR_FUNCTIONS(host::printer::PpdOptions)
};

/// Returns the text, or the name if the PPD does not have a text.
QString textOr(const char *text, const char *name)
{
    return QString::fromUtf8(text[0] ? text : name);
}

void addKeywords(const ppd_group_t &group, std::vector<QByteArray> &keywords)
{
    for (int i = 0; i < group.num_options; ++i)
        keywords.emplace_back(group.options[i].keyword);
    for (int i = 0; i < group.num_subgroups; ++i)
        addKeywords(group.subgroups[i], keywords);
}

QString groupText(const ppd_group_t &group)
{
    // libcups puts options without a group into groups with these English names.
    if (qstrcmp(group.name, "General") == 0 && qstrcmp(group.text, "General") == 0)
        return PpdOptionsText::tr("General");
    if (qstrcmp(group.name, "JCL") == 0 && qstrcmp(group.text, "JCL") == 0)
        return PpdOptionsText::tr("Printer control");
    return textOr(group.text, group.name);
}

/// Returns the number as the PPD states it: 0.1, not 0.1 rounded to float.
double exactly(float number)
{
    constexpr int floatDigits = 7;
    return QByteArray::number(double{number}, 'g', floatDigits).toDouble();
}

/// Limits the number to the range of an input field: PPDs may contain "nan" and "inf".
double inFieldRange(double number)
{
    constexpr double most = std::numeric_limits<int>::max();
    return std::isnan(number) ? 0 : std::clamp(number, -most, most);
}

void readNumber(PpdParameter &parameter, double minimum, double maximum, double current)
{
    // Some PPDs state the maximum first.
    std::tie(parameter.minimum, parameter.maximum) =
        std::minmax({inFieldRange(minimum), inFieldRange(maximum)});
    // The initial value of libcups is 0, even if 0 is outside of the limits.
    parameter.number = std::clamp(inFieldRange(current), parameter.minimum, parameter.maximum);
}

void readCharacters(PpdParameter &parameter, int minimum, int maximum, const char *current)
{
    std::tie(parameter.minimum, parameter.maximum) = std::minmax({qMax(0, minimum), qMax(0, maximum)});
    parameter.characters = QString::fromUtf8(current);
}

/// Reads kind, limits and value. Returns false for a type that libcups does not know.
bool readValue(PpdParameter &parameter, const ppd_cparam_t &source)
{
    const ppd_cplimit_t &least = source.minimum;
    const ppd_cplimit_t &most = source.maximum;
    switch (source.type) {
    case PPD_CUSTOM_INT:
        parameter.kind = PpdParameterKind::Integer;
        readNumber(parameter, least.custom_int, most.custom_int, source.current.custom_int);
        return true;
    case PPD_CUSTOM_CURVE:
    case PPD_CUSTOM_INVCURVE:
    case PPD_CUSTOM_REAL:
        parameter.kind = PpdParameterKind::Real;
        readNumber(parameter, exactly(least.custom_real), exactly(most.custom_real),
                   exactly(source.current.custom_real));
        return true;
    case PPD_CUSTOM_POINTS:
        parameter.kind = PpdParameterKind::Points;
        readNumber(parameter, exactly(least.custom_points), exactly(most.custom_points),
                   exactly(source.current.custom_points));
        return true;
    case PPD_CUSTOM_PASSCODE:
        parameter.kind = PpdParameterKind::Passcode;
        readCharacters(parameter, least.custom_passcode, most.custom_passcode,
                       source.current.custom_passcode);
        return true;
    case PPD_CUSTOM_PASSWORD:
        parameter.kind = PpdParameterKind::Password;
        readCharacters(parameter, least.custom_password, most.custom_password,
                       source.current.custom_password);
        return true;
    case PPD_CUSTOM_STRING:
        parameter.kind = PpdParameterKind::Text;
        readCharacters(parameter, least.custom_string, most.custom_string, source.current.custom_string);
        return true;
    case PPD_CUSTOM_UNKNOWN:
        break;
    }
    return false;
}

QByteArray plainValue(const PpdParameter &parameter)
{
    if (parameter.kind == PpdParameterKind::Points)
        return ppdLength(Points(parameter.number));
    return parameter.isNumber() ? ppdNumber(parameter.number) : parameter.characters.toUtf8();
}

/// Parses a constraint of the form "*Option Choice *Option *Option Choice ...".
PpdConstraint constraintFrom(const QByteArray &text)
{
    PpdConstraint constraint;
    QByteArrayList words = text.simplified().split(' ');
    while (!words.isEmpty()) {
        const QByteArray word = words.takeFirst();
        if (!word.startsWith('*'))
            continue;
        const bool hasChoice = !words.isEmpty() && !words.first().startsWith('*');
        constraint.push_back({word.mid(1), hasChoice ? words.takeFirst() : QByteArray()});
    }
    return constraint;
}

bool needsQuotes(const QByteArray &value)
{
    constexpr std::string_view special = " \t\\'\",{}";
    return value.isEmpty() || std::any_of(value.begin(), value.end(), [&](char character) {
               return special.find(character) != std::string_view::npos;
           });
}

QByteArray quoted(const QByteArray &value)
{
    QByteArray text = "\"";
    for (const char character : value) {
        if (character == '\\' || character == '"')
            text += '\\';
        text += character;
    }
    return text + '"';
}

} // namespace

bool PpdParameter::isComplete() const
{
    const auto count = static_cast<double>(characters.size());
    return isNumber() || (count >= minimum && count <= maximum);
}

PpdOptions::PpdOptions(const PpdFile &ppd)
    : m_ppd(ppd)
{
}

std::vector<PpdGroup> PpdOptions::groups() const
{
    std::vector<PpdGroup> groups;
    for (int i = 0; i < m_ppd.handle()->num_groups; ++i) {
        const ppd_group_t &source = m_ppd.handle()->groups[i];
        PpdGroup group{source.name, groupText(source), qstricmp(source.name, "InstallableOptions") == 0, {}};
        addKeywords(source, group.keywords);
        if (!group.keywords.empty())
            groups.push_back(std::move(group));
    }
    return groups;
}

std::optional<PpdOption> PpdOptions::option(const QByteArray &keyword) const
{
    const ppd_option_t *const source = ppdFindOption(m_ppd.handle(), keyword.constData());
    if (!source)
        return std::nullopt;
    PpdOption option{source->keyword, textOr(source->text, source->keyword), PpdOptionKind::PickOne, {}, {}};
    option.defaultChoice = source->defchoice;
    if (source->ui == PPD_UI_BOOLEAN)
        option.kind = PpdOptionKind::Boolean;
    else if (source->ui == PPD_UI_PICKMANY)
        option.kind = PpdOptionKind::PickMany;
    const bool hasParameters = !parameters(keyword).empty();
    option.choices.reserve(static_cast<std::size_t>(source->num_choices));
    for (int i = 0; i < source->num_choices; ++i) {
        const ppd_choice_t &choice = source->choices[i];
        const QString text = textOr(choice.text, choice.choice);
        if (hasParameters && qstricmp(choice.choice, customChoiceName) == 0)
            option.customText = text;
        else
            option.choices.push_back({choice.choice, text});
    }
    return option;
}

bool PpdOptions::canBeChanged(const QByteArray &keyword) const
{
    const ppd_option_t *const option = ppdFindOption(m_ppd.handle(), keyword.constData());
    // A PickMany option with a single choice can be on or off, and a custom option has many values.
    return option &&
           (option->num_choices > 1 || (option->num_choices == 1 && option->ui == PPD_UI_PICKMANY) ||
            !parameters(keyword).empty());
}

std::vector<PpdParameter> PpdOptions::parameters(const QByteArray &keyword) const
{
    const ppd_coption_t *const option = ppdFindCustomOption(m_ppd.handle(), keyword.constData());
    std::vector<PpdParameter> parameters;
    for (int i = 0; option && i < cupsArrayCount(option->params); ++i) {
        const auto *const source = static_cast<const ppd_cparam_t *>(cupsArrayIndex(option->params, i));
        PpdParameter parameter{source->name, textOr(source->text, source->name)};
        if (readValue(parameter, *source))
            parameters.push_back(std::move(parameter));
    }
    return parameters;
}

std::optional<QByteArray> PpdOptions::defaultChoice(const QByteArray &keyword) const
{
    const ppd_option_t *const option = ppdFindOption(m_ppd.handle(), keyword.constData());
    if (!option)
        return std::nullopt;
    return option->defchoice;
}

std::vector<QByteArray> PpdOptions::markedChoices(const QByteArray &keyword) const
{
    const ppd_option_t *const option = ppdFindOption(m_ppd.handle(), keyword.constData());
    std::vector<QByteArray> marked;
    for (int i = 0; option && i < option->num_choices; ++i) {
        if (option->choices[i].marked)
            marked.emplace_back(option->choices[i].choice);
    }
    return marked;
}

std::vector<PpdConstraint> PpdOptions::constraints() const
{
    ppd_file_t *const ppd = m_ppd.handle();
    std::vector<PpdConstraint> constraints;
    for (int i = 0; i < ppd->num_consts; ++i) {
        const ppd_const_t &pair = ppd->consts[i];
        constraints.push_back({{pair.option1, pair.choice1}, {pair.option2, pair.choice2}});
    }
    for (const ppd_attr_t *each = ppdFindAttr(ppd, "cupsUIConstraints", nullptr); each;
         each = ppdFindNextAttr(ppd, "cupsUIConstraints", nullptr)) {
        if (each->value)
            constraints.push_back(constraintFrom(each->value));
    }
    return constraints;
}

QByteArray customChoiceValue(const std::vector<PpdParameter> &parameters)
{
    if (parameters.size() == 1) {
        const QByteArray value = plainValue(parameters.front());
        if (!needsQuotes(value))
            return "Custom." + value;
    }
    QByteArrayList values;
    for (const PpdParameter &parameter : parameters) {
        const QByteArray value = plainValue(parameter);
        values.append(parameter.name + '=' + (needsQuotes(value) ? quoted(value) : value));
    }
    return '{' + values.join(' ') + '}';
}

} // namespace printer
} // namespace host
