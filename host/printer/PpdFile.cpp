// SPDX-License-Identifier: Apache-2.0
#include "PpdFile.h"

#include "PpdSource.h"

#include <QFileInfo>

#include <cups/cups.h>

#include <algorithm>

namespace host {
inline namespace printer {

namespace {

/// Copies the text of a translation to a field of libcups. A text that is too long is truncated at a
/// character boundary.
template<std::size_t Size>
void setText(char (&record)[Size], const QByteArray &utf8)
{
    qsizetype length = qMin(utf8.size(), static_cast<qsizetype>(Size) - 1);
    while (length < utf8.size() && length > 0 && (static_cast<unsigned char>(utf8[length]) & 0xC0) == 0x80)
        --length;
    qstrncpy(record, utf8.constData(), static_cast<std::size_t>(length) + 1);
}

/// Copies the translations of one language to the records of an open PPD.
class Localizer {
public:
    Localizer(ppd_file_t *ppd, const PpdTranslations &translations, const QString &language)
        : m_ppd(ppd)
        , m_translations(translations)
        , m_language(language)
    {
    }

    void localizeGroup(ppd_group_t &group) const
    {
        localize(group.text, "Translation", group.name);
        for (int i = 0; i < group.num_options; ++i)
            localizeOption(group.options[i]);
        for (int i = 0; i < group.num_subgroups; ++i)
            localizeGroup(group.subgroups[i]);
    }

private:
    void localizeOption(ppd_option_t &option) const
    {
        localize(option.text, "Translation", option.keyword);
        for (int i = 0; i < option.num_choices; ++i)
            localize(option.choices[i].text, option.keyword, option.choices[i].choice);
        if (const ppd_coption_t *const free = ppdFindCustomOption(m_ppd, option.keyword))
            localizeCustomOption(option, *free);
    }

    /// PPD 4.3: the texts of a custom option and of its parameters have their own keywords, *CustomKEYWORD
    /// and *ParamCustomKEYWORD.
    void localizeCustomOption(ppd_option_t &option, const ppd_coption_t &free) const
    {
        const QByteArray choice = customChoiceName + QByteArray(option.keyword);
        for (int i = 0; i < option.num_choices; ++i) {
            if (qstricmp(option.choices[i].choice, customChoiceName) == 0)
                localize(option.choices[i].text, choice.constData(), "True");
        }
        const QByteArray parameters = "Param" + choice;
        for (int i = 0; i < cupsArrayCount(free.params); ++i) {
            auto *const parameter = static_cast<ppd_cparam_t *>(cupsArrayIndex(free.params, i));
            localize(parameter->text, parameters.constData(), parameter->name);
        }
    }

    template<std::size_t Size>
    void localize(char (&record)[Size], const char *keyword, const char *choice) const
    {
        if (const std::optional<QByteArray> text = m_translations.text(m_language, keyword, choice))
            setText(record, *text);
    }

    ppd_file_t *m_ppd;
    const PpdTranslations &m_translations;
    const QString &m_language;
};

/// Returns all options in the order of libcups. The list is a copy: ppdFindOption() moves the position from
/// which ppdNextOption() continues. With two options of the same name it moves back to the first one, and the
/// iteration would never end.
std::vector<ppd_option_t *> allOptions(ppd_file_t *ppd)
{
    std::vector<ppd_option_t *> options;
    for (ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd))
        options.push_back(option);
    return options;
}

/// Removes the marks from all choices of the option. libcups does not do so for PickMany options.
void unmark(ppd_file_t *ppd, ppd_option_t &option)
{
    for (int i = 0; i < option.num_choices; ++i)
        option.choices[i].marked = 0;
    // The comparison function of libcups's list treats all choices of one option as equal, and the list may
    // contain a choice twice.
    while (option.num_choices > 0 && cupsArrayRemove(ppd->marked, option.choices) != 0) {
    }
}

/// Returns the choice with this name, compared byte for byte; libcups ignores case. Null if the option does
/// not have it.
ppd_choice_t *exactChoice(ppd_option_t &option, const QByteArray &name)
{
    ppd_choice_t *const end = option.choices + option.num_choices;
    ppd_choice_t *const found =
        std::find_if(option.choices, end, [&](const ppd_choice_t &each) { return name == each.choice; });
    return found == end ? nullptr : found;
}

/// Marks the intended choice if libcups has marked one whose name differs only in case.
void correctMark(ppd_file_t *ppd, ppd_option_t &option, const QByteArray &meant)
{
    ppd_choice_t *const exact = exactChoice(option, meant);
    const ppd_choice_t *const marked = ppdFindMarkedChoice(ppd, option.keyword);
    if (!exact || !marked || exact == marked || meant.compare(marked->choice, Qt::CaseInsensitive) != 0)
        return;
    unmark(ppd, option);
    exact->marked = 1;
    cupsArrayAdd(ppd->marked, exact);
}

} // namespace

PpdFile::PpdFile(QString path, PpdHandle ppd, const PpdText &text)
    : m_path(std::move(path))
    , m_ppd(std::move(ppd))
    , m_translations(text.translations())
    , m_paperSizes(text.paperSizes())
{
}

Result<PpdFile, PpdError> PpdFile::open(const QString &path)
{
    Result<PpdSource, PpdError> source = PpdSource::open(path, maxTextSize);
    if (!source)
        return source.error();
    Result<PpdHandle, PpdError> ppd = source.value().parse();
    if (!ppd)
        return ppd.error();
    return PpdFile(path, std::move(ppd).value(), source.value().text());
}

QString PpdFile::printerName() const
{
    for (const char *const name : {m_ppd->nickname, m_ppd->modelname, m_ppd->shortnickname}) {
        if (name && *name)
            return QString::fromUtf8(name);
    }
    return QFileInfo(m_path).completeBaseName();
}

QStringList PpdFile::values(const char *keyword) const
{
    QStringList values;
    for (const ppd_attr_t *each = ppdFindAttr(m_ppd.get(), keyword, nullptr); each;
         each = ppdFindNextAttr(m_ppd.get(), keyword, nullptr)) {
        if (each->value && !*each->spec)
            values.append(QString::fromUtf8(each->value));
    }
    return values;
}

void PpdFile::localize(const QString &language)
{
    const Localizer localizer(m_ppd.get(), m_translations, language);
    for (int i = 0; i < m_ppd->num_groups; ++i)
        localizer.localizeGroup(m_ppd->groups[i]);
}

void PpdFile::markDefaults()
{
    const std::vector<ppd_option_t *> options = allOptions(m_ppd.get());
    for (ppd_option_t *const option : options) {
        if (option->ui == PPD_UI_PICKMANY)
            unmark(m_ppd.get(), *option);
    }
    ppdMarkDefaults(m_ppd.get());
    for (ppd_option_t *const option : options) {
        if (option->ui != PPD_UI_PICKMANY)
            correctMark(m_ppd.get(), *option, option->defchoice);
    }
}

void PpdFile::mark(const QString &keyword, const QString &choice)
{
    const QByteArray name = keyword.toUtf8();
    const QByteArray value = choice.toUtf8();
    ppd_option_t *const option = ppdFindOption(m_ppd.get(), name.constData());
    if (!option || option->ui != PPD_UI_PICKMANY) {
        ppdMarkOption(m_ppd.get(), name.constData(), value.constData());
        if (option)
            correctMark(m_ppd.get(), *option, value);
        return;
    }
    unmark(m_ppd.get(), *option);
    for (const QByteArray &each : value.split(','))
        ppdMarkOption(m_ppd.get(), name.constData(), each.constData());
}

void PpdFile::markJobOptions(const std::vector<std::pair<QByteArray, QByteArray>> &options)
{
    cups_option_t *list = nullptr;
    int count = 0;
    for (const auto &[name, value] : options)
        count = cupsAddOption(name.constData(), value.constData(), count, &list);
    cupsMarkOptions(m_ppd.get(), count, list);
    cupsFreeOptions(count, list);
}

std::optional<QString> PpdFile::markedChoice(const QString &keyword) const
{
    const ppd_choice_t *const choice = ppdFindMarkedChoice(m_ppd.get(), keyword.toUtf8().constData());
    if (!choice)
        return std::nullopt;
    return QString::fromUtf8(choice->choice);
}

std::optional<QString> PpdFile::defaultChoice(const QString &keyword) const
{
    const ppd_option_t *const option = ppdFindOption(m_ppd.get(), keyword.toUtf8().constData());
    if (!option)
        return std::nullopt;
    return QString::fromUtf8(option->defchoice);
}

bool PpdFile::hasOption(const QString &keyword) const
{
    return ppdFindOption(m_ppd.get(), keyword.toUtf8().constData()) != nullptr;
}

std::optional<int> PpdFile::choiceIndex(const QString &keyword, const QString &choice) const
{
    const ppd_option_t *const option = ppdFindOption(m_ppd.get(), keyword.toUtf8().constData());
    const QByteArray wanted = choice.toUtf8();
    for (int i = 0; option && i < option->num_choices; ++i) {
        if (wanted == option->choices[i].choice)
            return i;
    }
    return std::nullopt;
}

QString PpdFile::optionText(const QString &keyword) const
{
    const ppd_option_t *const option = ppdFindOption(m_ppd.get(), keyword.toUtf8().constData());
    return option && option->text[0] ? QString::fromUtf8(option->text) : keyword;
}

QString PpdFile::choiceText(const QString &keyword, const QString &choice) const
{
    ppd_option_t *const option = ppdFindOption(m_ppd.get(), keyword.toUtf8().constData());
    const QByteArray name = choice.toUtf8();
    const ppd_choice_t *found = option ? exactChoice(*option, name) : nullptr;
    if (option && !found)
        found = ppdFindChoice(option, name.constData());
    return found && found->text[0] ? QString::fromUtf8(found->text) : choice;
}

} // namespace printer
} // namespace host
