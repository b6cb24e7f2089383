// SPDX-License-Identifier: Apache-2.0
#include "Renderer.h"

#include "Composer.h"
#include "PngEncoder.h"

#include <QPainter>
#include <QSaveFile>
#include <QSvgRenderer>

namespace pictures {

namespace {

struct Variant {
    const char *suffix;
    Theme theme;
    int pixelsPerPoint;
};

constexpr Variant variants[] = {
    {"", Theme::Light, 1},
    {"@2x", Theme::Light, 2},
    {"-dark", Theme::Dark, 1},
    {"-dark@2x", Theme::Dark, 2},
};

Problems prefixed(const PictureSpec &spec, Problems problems)
{
    for (QString &problem : problems)
        problem.prepend(spec.name + QStringLiteral(": "));
    return problems;
}

Problems cannotWrite(const QSaveFile &file)
{
    return {QStringLiteral("%1 cannot be written: %2").arg(file.fileName(), file.errorString())};
}

Problems writeBytes(const QByteArray &bytes, const QString &path)
{
    QSaveFile file(path);
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return written ? Problems() : cannotWrite(file);
}

} // namespace

std::variant<QString, Problems> composedSvg(const PictureSpec &spec, Theme theme)
{
    const Drawing drawing = compose(spec, theme);
    if (!drawing.problems().isEmpty())
        return prefixed(spec, drawing.problems());
    return drawing.svg();
}

std::variant<QImage, Problems> rendered(const PictureSpec &spec, Theme theme, int pixelsPerPoint)
{
    std::variant<QString, Problems> svg = composedSvg(spec, theme);
    if (Problems *problems = std::get_if<Problems>(&svg))
        return std::move(*problems);
    QSvgRenderer renderer(std::get<QString>(svg).toUtf8());
    if (!renderer.isValid())
        return prefixed(spec, {QStringLiteral("The composed parts are not valid SVG.")});
    QImage image(naturalSize * pixelsPerPoint, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(image.rect()));
    return image;
}

Problems writeVariants(const PictureSpec &spec, const QString &folder)
{
    Problems problems;
    for (const Variant &variant : variants) {
        std::variant<QImage, Problems> image = rendered(spec, variant.theme, variant.pixelsPerPoint);
        if (const Problems *failed = std::get_if<Problems>(&image)) {
            problems += *failed;
            continue;
        }
        const QString file = spec.name + QLatin1String(variant.suffix) + QStringLiteral(".png");
        problems += writePng(std::get<QImage>(image), folder + u'/' + file);
    }
    return problems;
}

Problems writeSvgs(const PictureSpec &spec, const QString &folder)
{
    Problems problems;
    for (const Variant &variant : variants) {
        if (variant.pixelsPerPoint != 1)
            continue;
        const std::variant<QString, Problems> svg = composedSvg(spec, variant.theme);
        if (const Problems *failed = std::get_if<Problems>(&svg)) {
            problems += *failed;
            continue;
        }
        problems +=
            writeBytes(std::get<QString>(svg).toUtf8(),
                       folder + u'/' + spec.name + QLatin1String(variant.suffix) + QStringLiteral(".svg"));
    }
    return problems;
}

Problems writePng(const QImage &image, const QString &path)
{
    const QByteArray png = encodedPng(image);
    if (png.isEmpty())
        return {QStringLiteral("%1 cannot be written: the image cannot be encoded.").arg(path)};
    return writeBytes(png, path);
}

} // namespace pictures
