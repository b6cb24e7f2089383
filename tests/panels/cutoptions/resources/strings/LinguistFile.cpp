// SPDX-License-Identifier: Apache-2.0
#include "LinguistFile.h"

#include <QFile>
#include <QXmlStreamReader>

namespace {

void readMessage(QXmlStreamReader &xml, LinguistFile &file)
{
    QString source;
    while (xml.readNextStartElement()) {
        if (xml.name() == QStringLiteral("source")) {
            source = xml.readElementText();
            if (file.translations.contains(source))
                file.repeated.append(source);
        } else if (xml.name() == QStringLiteral("translation")) {
            if (xml.attributes().hasAttribute(QStringLiteral("type")))
                file.unfinished.append(source);
            file.translations[source] = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
}

void readContext(QXmlStreamReader &xml, LinguistFile &file)
{
    while (xml.readNextStartElement()) {
        if (xml.name() == QStringLiteral("name"))
            file.contexts.append(xml.readElementText());
        else if (xml.name() == QStringLiteral("message"))
            readMessage(xml, file);
        else
            xml.skipCurrentElement();
    }
}

} // namespace

LinguistFile LinguistFile::read(const QString &path)
{
    LinguistFile file;
    QFile bytes(path);
    if (!bytes.open(QIODevice::ReadOnly)) {
        file.error = path + QStringLiteral(": ") + bytes.errorString();
        return file;
    }
    QXmlStreamReader xml(&bytes);
    if (xml.readNextStartElement())
        file.language = xml.attributes().value(QStringLiteral("language")).toString();
    while (xml.readNextStartElement())
        readContext(xml, file);
    if (xml.hasError())
        file.error = path + QStringLiteral(": ") + xml.errorString();
    return file;
}
