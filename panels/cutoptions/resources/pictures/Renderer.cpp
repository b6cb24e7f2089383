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

Errors prefixed(const PictureSpec &spec, Errors errors)
{
    for (QString &error : errors)
        error.prepend(spec.name + QStringLiteral(": "));
    return errors;
}

Errors cannotWrite(const QSaveFile &file)
{
    return {QStringLiteral("%1 cannot be written: %2").arg(file.fileName(), file.errorString())};
}

Errors writeBytes(const QByteArray &bytes, const QString &path)
{
    QSaveFile file(path);
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return written ? Errors() : cannotWrite(file);
}

} // namespace

std::variant<QString, Errors> composedSvg(const PictureSpec &spec, Theme theme)
{
    const Drawing drawing = compose(spec, theme);
    if (!drawing.errors().isEmpty())
        return prefixed(spec, drawing.errors());
    return drawing.svg();
}

std::variant<QImage, Errors> rendered(const PictureSpec &spec, Theme theme, int pixelsPerPoint)
{
    std::variant<QString, Errors> svg = composedSvg(spec, theme);
    if (Errors *errors = std::get_if<Errors>(&svg))
        return std::move(*errors);
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

Errors writeVariants(const PictureSpec &spec, const QString &folder)
{
    Errors errors;
    for (const Variant &variant : variants) {
        std::variant<QImage, Errors> image = rendered(spec, variant.theme, variant.pixelsPerPoint);
        if (const Errors *failed = std::get_if<Errors>(&image)) {
            errors += *failed;
            continue;
        }
        const QString file = spec.name + QLatin1String(variant.suffix) + QStringLiteral(".png");
        errors += writePng(std::get<QImage>(image), folder + u'/' + file);
    }
    return errors;
}

Errors writeSvgs(const PictureSpec &spec, const QString &folder)
{
    Errors errors;
    for (const Variant &variant : variants) {
        if (variant.pixelsPerPoint != 1)
            continue;
        const std::variant<QString, Errors> svg = composedSvg(spec, variant.theme);
        if (const Errors *failed = std::get_if<Errors>(&svg)) {
            errors += *failed;
            continue;
        }
        errors +=
            writeBytes(std::get<QString>(svg).toUtf8(),
                       folder + u'/' + spec.name + QLatin1String(variant.suffix) + QStringLiteral(".svg"));
    }
    return errors;
}

Errors writePng(const QImage &image, const QString &path)
{
    const QByteArray png = encodedPng(image);
    if (png.isEmpty())
        return {QStringLiteral("%1 cannot be written: the image cannot be encoded.").arg(path)};
    return writeBytes(png, path);
}

} // namespace pictures
