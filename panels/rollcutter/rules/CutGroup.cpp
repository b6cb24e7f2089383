// SPDX-License-Identifier: Apache-2.0
#include "CutGroup.h"

#include <QRegularExpression>

#include <algorithm>

namespace rollcutter {

namespace {

/// A choice of one of the options with its meaning.
struct NamedStyle {
    const char *keyword;
    const char *choice;
    CutStyle style;
};

constexpr const char *cutMedia = "CutMedia";

/// More labels between two cuts are not offered, whatever number the printer accepts.
constexpr int maxInterval = 999;

/// The names of the choices. Those of the print modes are defined by CUPS's label drivers. Of those of
/// CutMedia, libcups writes None, Auto, EndOfPage, EndOfDoc, EndOfSet and EndOfJob for a driverless printer;
/// those with "trim" are the keywords of the IPP attribute "finishings".
constexpr NamedStyle namedStyles[] = {
    {"inPrintMode", "Standard", CutStyle::Never},
    {"inPrintMode", "Tear", CutStyle::Tear},
    {"zePrintMode", "Saved", CutStyle::PrinterSetting},
    {"zePrintMode", "Tear", CutStyle::Tear},
    {"zePrintMode", "Peel", CutStyle::Peel},
    {"zePrintMode", "Rewind", CutStyle::Rewind},
    {"zePrintMode", "Applicator", CutStyle::Applicator},
    {"zePrintMode", "Cutter", CutStyle::EveryLabel},
    {cutMedia, "None", CutStyle::Never},
    {cutMedia, "False", CutStyle::Never},
    {cutMedia, "Off", CutStyle::Never},
    {cutMedia, "Never", CutStyle::Never},
    {cutMedia, "True", CutStyle::EveryLabel},
    {cutMedia, "Always", CutStyle::EveryLabel},
    {cutMedia, "EndOfPage", CutStyle::EveryLabel},
    {cutMedia, "EveryPage", CutStyle::EveryLabel},
    {cutMedia, "EveryLabel", CutStyle::EveryLabel},
    {cutMedia, "EndOfSet", CutStyle::EachCopy},
    {cutMedia, "EndOfCopy", CutStyle::EachCopy},
    {cutMedia, "EndOfFile", CutStyle::EachDocument},
    {cutMedia, "EndOfDoc", CutStyle::EachDocument},
    {cutMedia, "EndOfDocument", CutStyle::EachDocument},
    {cutMedia, "EndOfJob", CutStyle::AtEnd},
    {cutMedia, "Auto", CutStyle::Somewhere},
    {cutMedia, "trim", CutStyle::Somewhere},
    {cutMedia, "trim-after-pages", CutStyle::EveryLabel},
    {cutMedia, "trim-after-copies", CutStyle::EachCopy},
    {cutMedia, "trim-after-documents", CutStyle::EachDocument},
    {cutMedia, "trim-after-job", CutStyle::AtEnd},
};

/// The option whose choices are the ways to cut, and for one of them the option with the number of labels
/// between two cuts.
struct CutFamily {
    const char *keyword;
    const char *intervalMode;
    const char *intervalKeyword;
};

constexpr CutFamily cutFamilies[] = {
    {"inPrintMode", "Cut", "inCutInterval"},
    {"zePrintMode", nullptr, nullptr},
    {cutMedia, nullptr, nullptr},
};

/// The styles of the values of CutMedia in the PostScript language and in CUPS's raster header.
constexpr CutStyle cutMediaStyles[] = {CutStyle::Never, CutStyle::EachDocument, CutStyle::AtEnd,
                                       CutStyle::EachCopy, CutStyle::EveryLabel};

std::optional<CutStyle> styleFromCode(const QByteArray &code)
{
    static const QRegularExpression value(QStringLiteral("/CutMedia\\s+([0-4])(?![0-9])"));
    const QRegularExpressionMatch match = value.match(QString::fromLatin1(code));
    if (!match.hasMatch())
        return std::nullopt;
    return cutMediaStyles[match.capturedView(1).toInt()];
}

std::optional<CutStyle> styleFromName(const QString &keyword, const QString &choice)
{
    const auto *const found = std::ranges::find_if(namedStyles, [&](const NamedStyle &named) {
        return keyword == QLatin1String(named.keyword) &&
               choice.compare(QLatin1String(named.choice), Qt::CaseInsensitive) == 0;
    });
    return found == std::ranges::end(namedStyles) ? std::nullopt : std::optional(found->style);
}

/// The number of labels in a name such as "5", "Every5" or "Custom.5"; absent without exactly one number.
std::optional<int> numberIn(const QString &name)
{
    static const QRegularExpression form(QStringLiteral("^[^0-9-]*([0-9]{1,4})[^0-9]*$"));
    const QRegularExpressionMatch match = form.match(name);
    return match.hasMatch() ? std::optional(match.capturedView(1).toInt()) : std::nullopt;
}

/// A cut after this number of labels. The interval 0 is none.
CutSetting everyFew(int labels, PDEChoices choices)
{
    if (labels == 0)
        return {CutStyle::Never, 0, std::move(choices)};
    return {labels == 1 ? CutStyle::EveryLabel : CutStyle::EveryFew, labels, std::move(choices)};
}

bool isChosen(const PrinterOptions &options, const CutSetting &setting)
{
    return std::ranges::all_of(
        setting.choices, [&](const auto &choice) { return options.current(choice.first) == choice.second; });
}

} // namespace

std::vector<CutGroup> CutGroup::groupsOf(const PrinterOptions &options)
{
    std::vector<CutGroup> groups;
    for (const CutFamily &family : cutFamilies) {
        const QString keyword = QString::fromLatin1(family.keyword);
        if (options.has(keyword))
            groups.push_back(CutGroup(options, keyword));
    }
    return groups;
}

CutGroup::CutGroup(const PrinterOptions &options, const QString &keyword)
    : m_keyword(keyword)
    , m_title(options.text(keyword))
    , m_keywords{keyword}
{
    const auto *const family = std::ranges::find_if(
        cutFamilies, [&](const CutFamily &each) { return keyword == QLatin1String(each.keyword); });
    for (const OptionChoice &choice : options.choices(keyword)) {
        const PDEChoices chosen{{keyword, choice.name}};
        const bool hasIntervals = family->intervalMode && choice.name == QLatin1String(family->intervalMode);
        const QString intervalKeyword = QString::fromLatin1(hasIntervals ? family->intervalKeyword : "");
        if (hasIntervals && options.isSent(intervalKeyword))
            addIntervals(options, chosen, intervalKeyword);
        else if (hasIntervals)
            m_settings.push_back({CutStyle::Somewhere, 0, chosen});
        else
            add(choice);
    }
}

void CutGroup::add(const OptionChoice &choice)
{
    PDEChoices chosen{{m_keyword, choice.name}};
    std::optional<CutStyle> style =
        m_keyword == QLatin1String(cutMedia) ? styleFromCode(choice.code) : std::nullopt;
    if (!style)
        style = styleFromName(m_keyword, choice.name);
    if (style)
        m_settings.push_back({*style, 0, std::move(chosen)});
    else if (const auto labels = numberIn(choice.name))
        m_settings.push_back(everyFew(*labels, std::move(chosen)));
    else
        m_settings.push_back({CutStyle::Other, 0, std::move(chosen), choice.text});
}

void CutGroup::addIntervals(const PrinterOptions &options, const PDEChoices &mode,
                            const QString &intervalKeyword)
{
    m_keywords.append(intervalKeyword);
    const auto with = [&](const QString &interval) {
        PDEChoices choices = mode;
        choices.emplace_back(intervalKeyword, interval);
        return choices;
    };
    for (const OptionChoice &choice : options.choices(intervalKeyword)) {
        const std::optional<int> labels = numberIn(choice.name);
        // Without an interval, the driver sends none, and the printer uses its own.
        if (!labels || *labels == 0)
            m_settings.push_back({CutStyle::Somewhere, 0, with(choice.name)});
        else
            m_settings.push_back(everyFew(*labels, with(choice.name)));
    }
    const auto range = options.customRange(intervalKeyword);
    if (!range)
        return;
    for (int labels = std::max(1, range->first); labels <= std::min(range->second, maxInterval); ++labels)
        m_settings.push_back(everyFew(labels, with(QStringLiteral("Custom.%1").arg(labels))));
}

std::vector<int> CutGroup::intervals() const
{
    std::vector<int> found;
    for (const CutSetting &setting : m_settings) {
        if (setting.style == CutStyle::EveryFew)
            found.push_back(setting.labels);
    }
    std::ranges::sort(found);
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

std::optional<std::size_t> CutGroup::current(const PrinterOptions &options) const
{
    for (std::size_t index = 0; index < m_settings.size(); ++index) {
        if (isChosen(options, m_settings[index]))
            return index;
    }
    return std::nullopt;
}

std::optional<std::size_t> CutGroup::find(CutStyle style, int labels) const
{
    for (std::size_t index = 0; index < m_settings.size(); ++index) {
        const CutSetting &setting = m_settings[index];
        if (setting.style == style && (style != CutStyle::EveryFew || setting.labels == labels))
            return index;
    }
    return std::nullopt;
}

} // namespace rollcutter
