// SPDX-License-Identifier: Apache-2.0
#include "LayoutFile.h"

#include <QFile>
#include <QStringList>
#include <QXmlStreamReader>

namespace model {

namespace {

QRect readRect(QXmlStreamReader &xml)
{
    QRect rect;
    while (xml.readNextStartElement()) {
        const auto side = xml.name().toString();
        const auto value = xml.readElementText().toInt();
        if (side == "x")
            rect.moveLeft(value);
        else if (side == "y")
            rect.moveTop(value);
        else if (side == "width")
            rect.setWidth(value);
        else
            rect.setHeight(value);
    }
    return rect;
}

} // namespace

const LayoutFile &LayoutFile::ofSources()
{
    static const LayoutFile layout(
        QStringLiteral(KV_SOURCE_DIR "/panels/cutoptions/resources/layout/OptionPDE.ui"));
    return layout;
}

LayoutFile::LayoutFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QXmlStreamReader xml(&file);
    QStringList widgets;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"widget")
            widgets.append(xml.attributes().value("name").toString());
        else if (xml.isEndElement() && xml.name() == u"widget")
            widgets.removeLast();
        else if (xml.isStartElement() && xml.name() == u"rect" && !widgets.isEmpty())
            m_frames[widgets.back()] = readRect(xml);
    }
}

} // namespace model
