// SPDX-License-Identifier: Apache-2.0
#include "SvgSource.h"

#include "DocumentKind.h"
#include "SvgSize.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImageReader>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

namespace host {
inline namespace documents {

namespace {

struct SvgSourceText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

/// Whether the element is drawn with what its reference (href) points to. The references of other elements,
/// such as links, are not needed to draw the SVG.
bool drawsItsReference(QStringView element)
{
    constexpr QStringView names[] = {u"image",          u"feImage",      u"use",    u"linearGradient",
                                     u"radialGradient", u"pattern",      u"tref",   u"textPath",
                                     u"filter",         u"mask",         u"marker", u"video",
                                     u"animation",      u"foreignObject"};
    return std::ranges::find(names, element) != std::end(names);
}

/// Whether the attribute means anything in an SVG: attributes with prefixes belong to drawing programs.
bool isPassed(const QXmlStreamAttribute &attribute)
{
    return attribute.prefix().isEmpty() ? attribute.name() != u"xmlns" : attribute.prefix() == u"xml";
}

/// The converter draws the root in the size that it is called with.
bool isSideOfPage(QStringView attribute)
{
    return attribute == u"width" || attribute == u"height";
}

DocumentErrorReason needsOther(QString other)
{
    constexpr qsizetype shown = 100;
    if (other.size() > shown)
        other = other.first(shown) + u'…';
    return {DocumentErrorKind::NeedsOthers,
            SvgSourceText::tr("it refers to \"%1\", but other files are not loaded").arg(other)};
}

class SvgReader {
public:
    explicit SvgReader(const QByteArray &svg)
        : m_reader(svg)
        , m_writer(&m_source.content)
        , m_hasSvgTag(svg.contains("<svg"))
    {
        // Otherwise, a prefix without a declaration is an error.
        m_reader.setNamespaceProcessing(false);
    }

    std::optional<DocumentErrorReason> read()
    {
        while (!m_reader.atEnd() && !m_error)
            pass(m_reader.readNext());
        if (m_error)
            return m_error;
        // The reader decodes the text ahead: text in another encoding than declared is an error before the
        // root.
        if (!m_rootSeen && !(m_reader.hasError() && m_hasSvgTag))
            return DocumentErrorReason{DocumentErrorKind::UnknownKind,
                                       SvgSourceText::tr("it is not a PDF, PNG, JPEG or SVG file")};
        if (m_reader.hasError())
            return DocumentErrorReason{DocumentErrorKind::Damaged, SvgSourceText::tr("line %1 of the SVG: %2")
                                                                       .arg(m_reader.lineNumber())
                                                                       .arg(m_reader.errorString())};
        return std::nullopt;
    }

    SvgSource takeSource() { return std::move(m_source); }

private:
    void pass(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::StartElement:
            passElement();
            break;
        case QXmlStreamReader::EndElement:
            --m_level;
            m_writer.writeEndElement();
            break;
        case QXmlStreamReader::Characters:
            if (m_level > 0)
                m_writer.writeCharacters(m_reader.text().toString());
            break;
        case QXmlStreamReader::DTD:
            checkDeclarations();
            break;
        case QXmlStreamReader::EntityReference:
            m_error = needsOther(u'&' + m_reader.name().toString() + u';');
            break;
        case QXmlStreamReader::ProcessingInstruction:
            if (m_reader.processingInstructionTarget() == u"xml-stylesheet")
                m_error = needsOther(m_reader.processingInstructionData().toString());
            break;
        default:
            break;
        }
    }

    /// Reports entities that are defined in other files: the SVG would be printed without them.
    void checkDeclarations()
    {
        for (const QXmlStreamEntityDeclaration &entity : m_reader.entityDeclarations()) {
            if (!entity.systemId().isEmpty())
                m_error = needsOther(entity.systemId().toString());
        }
    }

    void passElement()
    {
        const QStringView name = m_reader.name();
        if (!m_rootSeen && name != u"svg") {
            m_error = DocumentErrorReason{DocumentErrorKind::UnknownKind,
                                          SvgSourceText::tr("it is not a PDF, PNG, JPEG or SVG file")};
            return;
        }
        if (++m_level > SvgSource::maxLevels || ++m_elements > SvgSource::maxElements) {
            m_error = SvgSource::tooManyParts();
            return;
        }
        m_writer.writeStartElement(name.toString());
        const bool isRoot = !m_rootSeen;
        if (isRoot)
            readRoot();
        m_rootSeen = true;
        passAttributes(name, isRoot);
    }

    void passAttributes(QStringView element, bool isRoot)
    {
        const QXmlStreamAttributes attributes = m_reader.attributes();
        // SVG 2: "href" has precedence over the older "xlink:href".
        const bool hasNewSpelling = attributes.hasAttribute(QStringLiteral("href"));
        bool hasReference = false;
        for (const QXmlStreamAttribute &attribute : attributes) {
            const QStringView prefix = attribute.prefix();
            if (attribute.name() == u"href") {
                if (drawsItsReference(element) && !hasReference && prefix.isEmpty() == hasNewSpelling) {
                    hasReference = true;
                    passReference(element, attribute.value().trimmed().toString());
                }
            } else if (isPassed(attribute) && !(isRoot && isSideOfPage(attribute.name()))) {
                m_writer.writeAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
            }
        }
    }

    void passReference(QStringView element, const QString &reference)
    {
        const bool inside = reference.isEmpty() || reference.startsWith(u'#');
        const bool picture = element == u"image" && reference.startsWith(u"data:", Qt::CaseInsensitive);
        if (!inside && !picture)
            m_error = needsOther(reference);
        else if (picture)
            checkPicture(reference);
        if (!m_error)
            m_writer.writeAttribute(QStringLiteral("href"), reference);
    }

    /// Detects the type of a picture from its content. An embedded SVG is rejected: its references are not
    /// checked.
    void checkPicture(const QString &reference)
    {
        const QString mark = QStringLiteral("base64,");
        const qsizetype begin = reference.lastIndexOf(mark);
        const QByteArray data =
            begin < 0 ? QByteArray()
                      : QByteArray::fromBase64(QStringView(reference).mid(begin + mark.size()).toLatin1());
        const std::optional<DocumentKind> kind = documentKind(data.left(documentHeadSize));
        if (kind != DocumentKind::Png && kind != DocumentKind::Jpeg) {
            m_error =
                DocumentErrorReason{DocumentErrorKind::UnknownKind,
                                    SvgSourceText::tr("it contains a picture that is neither PNG nor JPEG")};
            return;
        }
        QBuffer buffer;
        buffer.setData(data);
        buffer.open(QIODevice::ReadOnly);
        const QSize size = QImageReader(&buffer, kind == DocumentKind::Png ? "png" : "jpeg").size();
        m_picturePixels += static_cast<qint64>(size.width()) * size.height();
        if (!size.isValid())
            m_error = DocumentErrorReason{DocumentErrorKind::Damaged,
                                          SvgSourceText::tr("it contains a damaged picture")};
        else if (m_picturePixels > SvgSource::maxPicturePixels)
            m_error =
                DocumentErrorReason{DocumentErrorKind::TooLarge,
                                    SvgSourceText::tr("its pictures have more pixels than can be printed")};
    }

    void readRoot()
    {
        const QXmlStreamAttributes attributes = m_reader.attributes();
        const std::optional<QSizeF> box = SvgSize::viewBox(attributes);
        if (box && !(box->width() > 0.0 && box->height() > 0.0)) {
            m_error = DocumentErrorReason{DocumentErrorKind::BadPage,
                                          SvgSourceText::tr("page %1 has no area").arg(1)};
            return;
        }
        m_source.size = SvgSize::natural(attributes);
    }

    SvgSource m_source;
    QXmlStreamReader m_reader;
    QXmlStreamWriter m_writer;
    std::optional<DocumentErrorReason> m_error;
    bool m_hasSvgTag;
    bool m_rootSeen = false;
    int m_level = 0;
    int m_elements = 0;
    qint64 m_picturePixels = 0;
};

} // namespace

DocumentErrorReason SvgSource::tooManyParts()
{
    return {DocumentErrorKind::TooLarge, SvgSourceText::tr("the SVG is too complex to be drawn")};
}

Result<SvgSource, DocumentErrorReason> SvgSource::read(const QByteArray &svg)
{
    SvgReader reader(svg);
    if (const auto error = reader.read())
        return *error;
    return reader.takeSource();
}

} // namespace documents
} // namespace host
