// SPDX-License-Identifier: Apache-2.0
#include "PageLayout.h"

#include <algorithm>
#include <cmath>

namespace host {
inline namespace layout {

namespace {

/// Sizes in PDFs are rounded: a page that is this much larger than the label, half a millimetre, is not
/// shrunk.
constexpr double tolerance = 72.0 / 25.4 / 2.0;
/// The rounding of a size that the PDF and the PPD state differently.
constexpr double rounding = 0.5;

constexpr int lengthCount = 6;
constexpr int choiceCount = 4;

bool isLandscape(QSizeF size)
{
    return size.width() > size.height();
}

/// Returns the distance from the start of the room to that of a page aligned in it.
double aligned(Alignment alignment, double room, double page)
{
    switch (alignment) {
    case Alignment::Start:
        return 0.0;
    case Alignment::Center:
        break;
    case Alignment::End:
        return room - page;
    }
    return (room - page) / 2.0;
}

double scaleInto(QSizeF room, QSizeF page)
{
    return std::min(room.width() / page.width(), room.height() / page.height());
}

/// Reads a value of an enumeration, given as its number.
template<typename Value>
bool readChoice(const QString &text, Value last, Value &value)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    value = static_cast<Value>(number);
    return isNumber && number >= 0 && number <= static_cast<int>(last);
}

} // namespace

PageLayout::PageLayout(QSizeF paperSize)
    : paper(paperSize)
{
}

PageLayout::PageLayout(QSizeF paperSize, const QMarginsF &unprintable)
    : paper(paperSize)
    , margins(unprintable)
{
    if (printableArea().isEmpty())
        margins = {};
}

QRectF PageLayout::printableArea() const
{
    return QRectF(QPointF(), paper).marginsRemoved(margins);
}

int PageLayout::quarterTurns(QSizeF page) const
{
    switch (turning) {
    case Turning::Automatic:
        break;
    case Turning::Upright:
        return 0;
    case Turning::CounterClockwise:
        return 3;
    case Turning::Clockwise:
        return 1;
    case Turning::UpsideDown:
        return 2;
    }
    // A square page or a square label needs no turning.
    return (isLandscape(page) && isLandscape(paper.transposed())) ||
                   (isLandscape(page.transposed()) && isLandscape(paper))
               ? 1
               : 0;
}

double PageLayout::scaleFor(QSizeF turned) const
{
    const QSizeF printable = printableArea().size();
    switch (scaling) {
    case Scaling::ShrinkLarge:
        break;
    case Scaling::Fit:
        return scaleInto(printable, turned);
    case Scaling::Fill:
        return std::max(paper.width() / turned.width(), paper.height() / turned.height());
    case Scaling::ActualSize:
        return 1.0;
    }
    const bool isLarge =
        turned.width() > paper.width() + tolerance || turned.height() > paper.height() + tolerance;
    return isLarge ? std::min(1.0, scaleInto(printable, turned)) : 1.0;
}

PagePlacement PageLayout::place(QSizeF page) const
{
    PagePlacement placement;
    placement.quarterTurns = quarterTurns(page);
    const QSizeF turned = placement.isOnSide() ? page.transposed() : page;
    placement.scale = scaleFor(turned);
    const QSizeF size = turned * placement.scale;
    // What was fitted into the printable area stays there; other pages have the place of the whole label.
    const bool isFitted =
        scaling == Scaling::Fit || (scaling == Scaling::ShrinkLarge && placement.scale < 1.0);
    const QRectF room = isFitted ? printableArea() : QRectF(QPointF(), paper);
    placement.area = {QPointF(room.left() + aligned(across, room.width(), size.width()),
                              room.top() + aligned(along, room.height(), size.height())),
                      size};
    return placement;
}

bool PageLayout::isUnchanged(QSizeF page, const PagePlacement &placement) const
{
    return placement.quarterTurns == 0 && placement.scale == 1.0 &&
           std::abs(page.width() - paper.width()) <= rounding &&
           std::abs(page.height() - paper.height()) <= rounding;
}

QStringList PageLayout::arguments() const
{
    QStringList list;
    for (const double length :
         {paper.width(), paper.height(), margins.left(), margins.top(), margins.right(), margins.bottom()})
        list.append(QString::number(length, 'g', 17));
    for (const int choice : {static_cast<int>(scaling), static_cast<int>(turning), static_cast<int>(across),
                             static_cast<int>(along)})
        list.append(QString::number(choice));
    return list;
}

std::optional<PageLayout> PageLayout::fromArguments(const QStringList &arguments)
{
    if (arguments.size() != lengthCount + choiceCount)
        return std::nullopt;
    double lengths[lengthCount] = {};
    for (int index = 0; index < lengthCount; ++index) {
        bool isNumber = false;
        lengths[index] = arguments[index].toDouble(&isNumber);
        if (!isNumber || !std::isfinite(lengths[index]))
            return std::nullopt;
    }
    PageLayout read(QSizeF(lengths[0], lengths[1]), {lengths[2], lengths[3], lengths[4], lengths[5]});
    const bool isRead = readChoice(arguments[6], Scaling::ActualSize, read.scaling) &&
                        readChoice(arguments[7], Turning::UpsideDown, read.turning) &&
                        readChoice(arguments[8], Alignment::End, read.across) &&
                        readChoice(arguments[9], Alignment::End, read.along);
    if (!isRead || read.paper.isEmpty())
        return std::nullopt;
    return read;
}

bool operator==(const PageLayout &left, const PageLayout &right)
{
    return left.paper == right.paper && left.margins == right.margins && left.scaling == right.scaling &&
           left.turning == right.turning && left.across == right.across && left.along == right.along;
}

} // namespace layout
} // namespace host
