// SPDX-License-Identifier: Apache-2.0
#include "PpdFile.h"

#include "PpdNumber.h"
#include "PpdSource.h"

#include <QFileInfo>

namespace host {

namespace {

/// The entry that stands for papers of free size.
constexpr const char *customSizeName = "Custom";

/// Puts the text of a translation into a record of libcups, cut at the end of a character.
template<std::size_t Size>
void setText(char (&record)[Size], const QByteArray &utf8)
{
    qsizetype length = qMin(utf8.size(), static_cast<qsizetype>(Size) - 1);
    while (length < utf8.size() && length > 0 && (static_cast<unsigned char>(utf8[length]) & 0xC0) == 0x80)
        --length;
    qstrncpy(record, utf8.constData(), static_cast<std::size_t>(length) + 1);
}

/// Puts the translations of one language into the records of an open PPD.
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
            localizeFreeChoice(option, *free);
    }

    /// A free choice has its texts under keywords of its own.
    void localizeFreeChoice(ppd_option_t &option, const ppd_coption_t &free) const
    {
        const QByteArray choice = QByteArray("Custom") + option.keyword;
        for (int i = 0; i < option.num_choices; ++i) {
            if (qstricmp(option.choices[i].choice, customSizeName) == 0)
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

/// Takes the marks off all choices. libcups cannot itself, where an option may have several.
void unmark(ppd_file_t *ppd, ppd_option_t &option)
{
    for (int i = 0; i < option.num_choices; ++i)
        option.choices[i].marked = 0;
    // To libcups's list, the choices of one option are equal, and a choice may stand in it twice.
    while (option.num_choices > 0 && cupsArrayRemove(ppd->marked, option.choices) != 0) {
    }
}

} // namespace

PpdFile::PpdFile(QString path, PpdHandle ppd, PpdTranslations translations)
    : m_path(std::move(path))
    , m_ppd(std::move(ppd))
    , m_translations(std::move(translations))
{
}

Result<PpdFile, PpdError> PpdFile::open(const QString &path)
{
    Result<PpdSource, PpdError> source = PpdSource::open(path, largestText);
    if (!source)
        return source.error();
    Result<PpdHandle, PpdError> ppd = source.value().parse();
    if (!ppd)
        return ppd.error();
    return PpdFile(path, std::move(ppd).value(), source.value().text().translations());
}

QString PpdFile::printerName() const
{
    for (const char *const name : {m_ppd->nickname, m_ppd->modelname, m_ppd->shortnickname}) {
        if (name && *name)
            return QString::fromUtf8(name);
    }
    return QFileInfo(m_path).completeBaseName();
}

void PpdFile::localize(const QString &language)
{
    const Localizer localizer(m_ppd.get(), m_translations, language);
    for (int i = 0; i < m_ppd->num_groups; ++i)
        localizer.localizeGroup(m_ppd->groups[i]);
}

void PpdFile::markDefaults()
{
    for (ppd_option_t *option = ppdFirstOption(m_ppd.get()); option; option = ppdNextOption(m_ppd.get())) {
        if (option->ui == PPD_UI_PICKMANY)
            unmark(m_ppd.get(), *option);
    }
    ppdMarkDefaults(m_ppd.get());
}

void PpdFile::mark(const QString &keyword, const QString &choice)
{
    const QByteArray name = keyword.toUtf8();
    const QByteArray value = choice.toUtf8();
    ppd_option_t *const option = ppdFindOption(m_ppd.get(), name.constData());
    if (!option || option->ui != PPD_UI_PICKMANY) {
        ppdMarkOption(m_ppd.get(), name.constData(), value.constData());
        return;
    }
    unmark(m_ppd.get(), *option);
    for (const QByteArray &each : value.split(','))
        ppdMarkOption(m_ppd.get(), name.constData(), each.constData());
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
    const ppd_choice_t *const found = option ? ppdFindChoice(option, choice.toUtf8().constData()) : nullptr;
    return found && found->text[0] ? QString::fromUtf8(found->text) : choice;
}

PpdPaper PpdFile::paperFromSize(const ppd_size_t &size) const
{
    const QString name = QString::fromUtf8(size.name);
    PpdPaper paper{size.name, choiceText(QStringLiteral("PageSize"), name),
                   QSizeF(double{size.width}, double{size.length}), std::nullopt};
    // libcups leaves the area empty when the PPD has no ImageableArea for the paper.
    if (size.right > size.left && size.top > size.bottom) {
        paper.margins = QMarginsF(double{size.left}, double{size.length} - double{size.top},
                                  double{size.width} - double{size.right}, double{size.bottom});
    }
    return paper;
}

std::vector<PpdPaper> PpdFile::papers() const
{
    std::vector<PpdPaper> papers;
    for (int i = 0; i < m_ppd->num_sizes; ++i) {
        const ppd_size_t &size = m_ppd->sizes[i];
        if (qstrcmp(size.name, customSizeName) != 0)
            papers.push_back(paperFromSize(size));
    }
    return papers;
}

std::optional<PpdPaper> PpdFile::paper(const QByteArray &name) const
{
    // Not ppdPageSize(): it ignores upper and lower case.
    for (int i = 0; i < m_ppd->num_sizes; ++i) {
        if (name == m_ppd->sizes[i].name && name != customSizeName)
            return paperFromSize(m_ppd->sizes[i]);
    }
    return customPaper(name);
}

std::optional<PpdPaper> PpdFile::customPaper(const QByteArray &name) const
{
    const std::optional<PpdCustomLimits> limits = customLimits();
    if (!limits || !customPaperSize(name))
        return std::nullopt;
    const ppd_size_t *const size = ppdPageSize(m_ppd.get(), name.constData());
    if (!size)
        return std::nullopt;
    PpdPaper paper = paperFromSize(*size);
    // A free size given in millimetres may miss a limit by its rounding to floats.
    constexpr double tolerance = 0.01;
    const bool fits = paper.size.width() >= limits->smallest.width() - tolerance &&
                      paper.size.height() >= limits->smallest.height() - tolerance &&
                      paper.size.width() <= limits->largest.width() + tolerance &&
                      paper.size.height() <= limits->largest.height() + tolerance;
    if (!fits)
        return std::nullopt;
    paper.name = name;
    paper.text = QString::fromUtf8(name);
    return paper;
}

std::optional<PpdPaper> PpdFile::markedPaper() const
{
    const std::optional<QString> name = markedChoice(QStringLiteral("PageSize"));
    if (name != QLatin1String(customSizeName))
        return name ? paper(name->toUtf8()) : std::nullopt;
    const ppd_size_t *const size = ppdPageSize(m_ppd.get(), nullptr);
    if (!size)
        return std::nullopt;
    return paper(customPaperName(QSizeF(double{size->width}, double{size->length})));
}

std::optional<PpdCustomLimits> PpdFile::customLimits() const
{
    if (!m_ppd->variable_sizes)
        return std::nullopt;
    return PpdCustomLimits{QSizeF(double{m_ppd->custom_min[0]}, double{m_ppd->custom_min[1]}),
                           QSizeF(double{m_ppd->custom_max[0]}, double{m_ppd->custom_max[1]})};
}

} // namespace host
