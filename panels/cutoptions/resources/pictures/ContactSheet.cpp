// SPDX-License-Identifier: Apache-2.0
#include "ContactSheet.h"

#include "Drawing.h"

#include <QPainter>

namespace pictures {

namespace {

// The layout of a row for one theme, in pixels: the name at the top, below it at the left the picture in its
// natural size above its two reduced sizes, at the right the picture with two pixels per point.
constexpr int gap = 8;
constexpr int nameBase = 16; // baseline of the name
constexpr int pictureTop = 24;
constexpr QSize popUpList(138, 60);
constexpr QSize popUpButton(66, 29);
constexpr int reductionTop = pictureTop + naturalSize.height() + gap;
constexpr int twiceLeft = gap + popUpList.width() + gap + popUpButton.width() + gap;
constexpr QSize rowSize(twiceLeft + 2 * naturalSize.width() + gap,
                        pictureTop + 2 * naturalSize.height() + gap);

void drawReduced(QPainter &painter, QPoint where, const QImage &twice, QSize size)
{
    painter.drawImage(where, twice.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

Errors drawRow(QPainter &painter, const PictureSpec &spec, Theme theme)
{
    const std::variant<QImage, Errors> single = rendered(spec, theme, 1);
    const std::variant<QImage, Errors> twice = rendered(spec, theme, 2);
    for (const auto *image : {&single, &twice}) {
        if (const Errors *errors = std::get_if<Errors>(image))
            return *errors;
    }
    const QImage &dense = std::get<QImage>(twice);
    painter.fillRect(QRect(QPoint(0, 0), rowSize), windowColour(theme));
    painter.setPen(theme == Theme::Light ? Qt::black : Qt::white);
    painter.drawText(gap, nameBase, spec.name);
    painter.drawImage(gap, pictureTop, std::get<QImage>(single));
    drawReduced(painter, {gap, reductionTop}, dense, popUpList);
    drawReduced(painter, {gap + popUpList.width() + gap, reductionTop}, dense, popUpButton);
    painter.drawImage(twiceLeft, pictureTop, dense);
    return {};
}

} // namespace

std::variant<QImage, Errors> contactSheet()
{
    const std::vector<PictureSpec> &all = allPictures();
    QImage sheet(2 * rowSize.width(), rowSize.height() * static_cast<int>(all.size()),
                 QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&sheet);
    Errors errors;
    for (const PictureSpec &spec : all) {
        errors += drawRow(painter, spec, Theme::Light);
        painter.translate(rowSize.width(), 0);
        errors += drawRow(painter, spec, Theme::Dark);
        painter.translate(-rowSize.width(), rowSize.height());
    }
    painter.end();
    if (!errors.isEmpty())
        return errors;
    return sheet;
}

} // namespace pictures
