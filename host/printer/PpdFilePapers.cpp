// SPDX-License-Identifier: Apache-2.0
#include "PpdFile.h"

#include "PpdNumber.h"

#include <host/base/Length.h>

#include <QSet>

namespace host {
inline namespace printer {

std::optional<PpdPaper> PpdFile::fixedPaper(const QByteArray &name, const QString &text) const
{
    const std::optional<QSizeF> size = m_paperSizes.size(name);
    if (!size || name == customChoiceName)
        return std::nullopt;
    return PpdPaper{name, text.isEmpty() ? QString::fromUtf8(name) : text, *size, m_paperSizes.margins(name)};
}

std::vector<PpdPaper> PpdFile::papers() const
{
    const ppd_option_t *const option = ppdFindOption(m_ppd.get(), "PageSize");
    std::vector<PpdPaper> papers;
    QSet<QByteArray> names;
    for (int i = 0; option && i < option->num_choices; ++i) {
        const ppd_choice_t &choice = option->choices[i];
        std::optional<PpdPaper> paper = fixedPaper(choice.choice, QString::fromUtf8(choice.text));
        if (!paper || names.contains(paper->name))
            continue;
        names.insert(paper->name);
        papers.push_back(*std::move(paper));
    }
    return papers;
}

std::optional<PpdPaper> PpdFile::paper(const QByteArray &name) const
{
    const QString pageSize = QStringLiteral("PageSize");
    const QString choice = QString::fromUtf8(name);
    if (choiceIndex(pageSize, choice)) {
        if (std::optional<PpdPaper> fixed = fixedPaper(name, choiceText(pageSize, choice)))
            return fixed;
    }
    return customPaper(name);
}

std::optional<PpdPaper> PpdFile::customPaper(const QByteArray &name) const
{
    const std::optional<PpdCustomLimits> limits = customLimits();
    const std::optional<QSizeF> named = customPaperSize(name);
    if (!limits || !named || !PpdPaperSizes::isUsable(*named))
        return std::nullopt;
    const ppd_size_t *const record = ppdPageSize(m_ppd.get(), name.constData());
    if (!record)
        return std::nullopt;
    const QSizeF size(double{record->width}, double{record->length});
    // Rounding to float may move a custom size in millimetres slightly beyond a limit.
    constexpr double tolerance = 0.01;
    const bool fits = size.width() >= limits->smallest.width() - tolerance &&
                      size.height() >= limits->smallest.height() - tolerance &&
                      size.width() <= limits->largest.width() + tolerance &&
                      size.height() <= limits->largest.height() + tolerance;
    if (!fits)
        return std::nullopt;
    PpdPaper paper{name, QString::fromUtf8(name), size, std::nullopt};
    if (record->right > record->left && record->top > record->bottom) {
        paper.margins = QMarginsF(double{record->left}, size.height() - double{record->top},
                                  size.width() - double{record->right}, double{record->bottom});
    }
    return paper;
}

std::optional<QSizeF> PpdFile::unusableSize(const QByteArray &name) const
{
    if (choiceIndex(QString::fromLatin1(paperKeyword), QString::fromUtf8(name)))
        return m_paperSizes.unusableSize(name);
    const std::optional<QSizeF> custom = customLimits() ? customPaperSize(name) : std::nullopt;
    return custom && !PpdPaperSizes::isUsable(*custom) ? custom : std::nullopt;
}

std::optional<PpdPaper> PpdFile::markedPaper() const
{
    std::optional<QString> name = markedChoice(QStringLiteral("PageSize"));
    // PageSize and PageRegion both select the paper; libcups keeps only the mark that was set last.
    if (!name)
        name = markedChoice(QStringLiteral("PageRegion"));
    if (name != QLatin1String(customChoiceName))
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
    // Many PPDs allow sizes from 0; a paper smaller than 1 point is not usable.
    constexpr double min = 1.0;
    constexpr double max = Points(PpdPaperSizes::maxLongSide).number();
    const PpdCustomLimits limits{
        {qMax(min, double{m_ppd->custom_min[0]}), qMax(min, double{m_ppd->custom_min[1]})},
        {qMin(max, double{m_ppd->custom_max[0]}), qMin(max, double{m_ppd->custom_max[1]})}};
    // NaN is never less than or equal to a number, so limits that are NaN are rejected.
    const bool hasSizes = limits.smallest.width() <= limits.largest.width() &&
                          limits.smallest.height() <= limits.largest.height();
    return hasSizes ? std::optional(limits) : std::nullopt;
}

} // namespace printer
} // namespace host
