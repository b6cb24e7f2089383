// SPDX-License-Identifier: Apache-2.0
#include "PpdPaperSizes.h"

#include <QList>
#include <QtNumeric>

#include <algorithm>

namespace host {
inline namespace printer {

namespace {

/// Parses the numbers of a value such as "68.03 170.08", with the precision of libcups (float), so that a
/// size is the same wherever it is read. Text after the last number is ignored.
QList<double> numbers(std::string_view value)
{
    const QByteArray words(value.data(), static_cast<qsizetype>(value.size()));
    QList<double> numbers;
    for (const QByteArray &word : words.simplified().split(' ')) {
        bool isNumber = false;
        const float number = word.toFloat(&isNumber);
        // libcups reads a number that exceeds the range of float as infinity.
        if (!isNumber && !qIsInf(number))
            break;
        numbers.append(double{number});
    }
    return numbers;
}

} // namespace

void PpdPaperSizes::addStatement(std::string_view statement, std::string_view value)
{
    if (!statement.starts_with("*PaperDimension") && !statement.starts_with("*ImageableArea"))
        return;
    const QByteArray whole(statement.data(), static_cast<qsizetype>(statement.size()));
    const QByteArrayList words = whole.mid(0, whole.indexOf('/')).simplified().split(' ');
    if (words.size() != 2)
        return;
    const QList<double> measures = numbers(value);
    if (words.first() == "*PaperDimension" && measures.size() >= 2)
        m_sizes.insert(words.last(), QSizeF(measures[0], measures[1]));
    else if (words.first() == "*ImageableArea" && measures.size() >= 4)
        m_areas.insert(words.last(), {measures[0], measures[1], measures[2], measures[3]});
}

bool PpdPaperSizes::isUsable(const QSizeF &size)
{
    const Points shortSide(qMin(size.width(), size.height()));
    const Points longSide(qMax(size.width(), size.height()));
    // Every comparison with NaN is false, so NaN is not usable.
    return size.width() > 0.0 && size.height() > 0.0 && shortSide <= Points(maxShortSide) &&
           longSide <= Points(maxLongSide);
}

std::optional<QSizeF> PpdPaperSizes::size(const QByteArray &paper) const
{
    const auto found = m_sizes.constFind(paper);
    return found == m_sizes.constEnd() || !isUsable(*found) ? std::nullopt : std::optional(*found);
}

std::optional<QSizeF> PpdPaperSizes::unusableSize(const QByteArray &paper) const
{
    const auto found = m_sizes.constFind(paper);
    return found == m_sizes.constEnd() || isUsable(*found) ? std::nullopt : std::optional(*found);
}

std::optional<QMarginsF> PpdPaperSizes::margins(const QByteArray &paper) const
{
    const auto found = m_areas.constFind(paper);
    const std::optional<QSizeF> whole = size(paper);
    if (found == m_areas.constEnd() || !whole)
        return std::nullopt;
    const double edges[] = {found->left, found->bottom, found->right, found->top};
    const bool areFinite = std::ranges::all_of(edges, [](double edge) { return qIsFinite(edge); });
    if (!areFinite || found->right <= found->left || found->top <= found->bottom)
        return std::nullopt;
    return QMarginsF(found->left, whole->height() - found->top, whole->width() - found->right, found->bottom);
}

} // namespace printer
} // namespace host
