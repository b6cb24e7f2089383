// SPDX-License-Identifier: Apache-2.0
#include "PanelInspection.h"

#include <options/OptionPDE.h>
#include <platform/OutputFile.h>
#include <ppd/TapeInfo.h>
#include <textentry/FormatterTrial.h>

#include <QImageWriter>
#include <QPixmap>

QJsonObject PanelInspection::panelState(PDEPanel *panel) const
{
    const auto *const cutOptions = dynamic_cast<OptionPDE13_v400_ *>(panel);
    return cutOptions ? cutOptions->inspection() : QJsonObject();
}

bool PanelInspection::savePreview(PDEPanel *panel, const QString &path, QString *error) const
{
    auto *const cutOptions = dynamic_cast<OptionPDE13_v400_ *>(panel);
    OptionView13_v400_ *const preview = cutOptions ? cutOptions->preview() : nullptr;
    if (!preview) {
        *error = QStringLiteral("the panel has no preview");
        return false;
    }
    QImage picture(preview->size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    preview->render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());
    platform::OutputFile file(path);
    if (!file.write([&](QIODevice *device) { return QImageWriter(device, "png").write(picture); }) ||
        !file.commit()) {
        *error = QStringLiteral("%1: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

QJsonObject PanelInspection::tapeInfo(PMPrintSettings settings, PMPageFormat format, ppd_file_t *ppd) const
{
    TapeInfo info;
    const OSStatus status = GetTapeInfo(nullptr, settings, format, ppd, &info);
    return {{"status", status},
            {"length", info.length},
            {"kind", info.kind},
            {"name", info.paperName ? QJsonValue(*info.paperName) : QJsonValue()}};
}

QJsonObject PanelInspection::tryFormatter(const QJsonObject &request) const
{
    return textentry::tryFormatter(request);
}
