// SPDX-License-Identifier: Apache-2.0
#include <host/documents/SvgSource.h>

#include <gtest/gtest.h>

using host::DocumentErrorKind;
using host::SvgSource;

namespace {

const QByteArray prolog = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";

} // namespace

TEST(SvgSource, PassesDrawingsToTheConverter)
{
    const std::pair<QByteArray, QByteArray> rows[] = {
        {"<svg/>", "<svg/>"},
        {"<svg><g/></svg>", "<svg><g/></svg>"},
        {"<!-- a --><svg><!-- b --></svg><!-- c -->", "<svg/>"},
        {"<svg>a &amp; &lt;b&gt;</svg>", "<svg>a &amp; &lt;b&gt;</svg>"},
        {"<svg><![CDATA[<g>]]></svg>", "<svg>&lt;g&gt;</svg>"},
        {"<!DOCTYPE svg [<!ENTITY red \"#f00\">]><svg fill=\"&red;\">&red;</svg>",
         "<svg fill=\"#f00\">#f00</svg>"},
        // The converter draws the root in the size that it is called with; other elements keep theirs.
        {"<svg width='9' height='9' x='1'><rect width='2'/></svg>", "<svg x=\"1\"><rect width=\"2\"/></svg>"},
        // Prefixes without a declaration belong to the document from which the SVG is copied.
        {"<a:svg xmlns:a='b'><a:g i:c='d' xml:space='preserve'/></a:svg>",
         "<svg><g xml:space=\"preserve\"/></svg>"},
        {"<svg xmlns='http://www.w3.org/2000/svg'/>", "<svg/>"},
        {"<svg><use xlink:href='#a'/></svg>", "<svg><use href=\"#a\"/></svg>"},
        {"<svg><use xlink:href='#a' href='#b'/></svg>", "<svg><use href=\"#b\"/></svg>"},
        {"<svg><use href=' #a '/><use href=''/></svg>", "<svg><use href=\"#a\"/><use href=\"\"/></svg>"},
        // A link is not drawn.
        {"<svg><a href='http://localhost/'><g/></a></svg>", "<svg><a><g/></a></svg>"},
        {"<?other data?><svg/>", "<svg/>"},
    };
    for (const auto &[svg, content] : rows) {
        const auto source = SvgSource::read(svg);
        ASSERT_TRUE(source) << svg.constData() << ": " << source.error().reason.toStdString();
        EXPECT_EQ(source.value().content, content) << svg.constData();
    }
}

TEST(SvgSource, ReadsTheSizeOfTheRoot)
{
    const std::pair<QByteArray, std::optional<QSizeF>> rows[] = {
        {"<svg/>", std::nullopt},
        {"<svg width='1in' height='48'/>", QSizeF(96, 48)},
        {"<svg viewBox='0 0 40 20'/>", QSizeF(40, 20)},
        {"<svg><svg width='1' height='2'/></svg>", std::nullopt},
        {"<svg width='-1' height='0'/>", QSizeF(-1, 0)},
    };
    for (const auto &[svg, size] : rows) {
        const auto source = SvgSource::read(svg);
        ASSERT_TRUE(source) << svg.constData();
        EXPECT_EQ(source.value().size, size) << svg.constData();
    }
}

TEST(SvgSource, RejectsWithAKindAndAReason)
{
    const std::pair<QByteArray, DocumentErrorKind> rows[] = {
        {"", DocumentErrorKind::UnknownKind},
        {"\n", DocumentErrorKind::UnknownKind},
        {prolog, DocumentErrorKind::UnknownKind},
        {"text", DocumentErrorKind::UnknownKind},
        {"<html/>", DocumentErrorKind::UnknownKind},
        {"<SVG/>", DocumentErrorKind::UnknownKind},
        {QByteArray("\0", 1), DocumentErrorKind::UnknownKind},
        {"<svg>", DocumentErrorKind::Damaged},
        {"<svg></g>", DocumentErrorKind::Damaged},
        {"<svg a='1' a='2'/>", DocumentErrorKind::Damaged},
        {"<svg/><svg/>", DocumentErrorKind::Damaged},
        {"<svg>\xFF</svg>", DocumentErrorKind::Damaged},
        {QByteArray("<svg>\0</svg>", 12), DocumentErrorKind::Damaged},
        {"<svg>&#0;</svg>", DocumentErrorKind::Damaged},
        {"<svg>&other;</svg>", DocumentErrorKind::Damaged},
        {"<svg viewBox='0 0 0 1'/>", DocumentErrorKind::BadPage},
        {"<svg viewBox='0 0 1 -1'/>", DocumentErrorKind::BadPage},
        {"<svg><use href='other.svg#a'/></svg>", DocumentErrorKind::NeedsOthers},
        {"<svg><use x:href='other.svg#a'/></svg>", DocumentErrorKind::NeedsOthers},
        {"<svg><image href='picture.png'/></svg>", DocumentErrorKind::NeedsOthers},
        {"<svg><use href='data:image/png;base64,'/></svg>", DocumentErrorKind::NeedsOthers},
        {"<svg><image href='data:,'/></svg>", DocumentErrorKind::UnknownKind},
        {"<svg><image href='data:image/png;base64,iVBORw0KGgo='/></svg>", DocumentErrorKind::Damaged},
        {"<?xml-stylesheet href='a.css'?><svg/>", DocumentErrorKind::NeedsOthers},
        {"<!DOCTYPE svg [<!ENTITY a SYSTEM 'a'>]><svg/>", DocumentErrorKind::NeedsOthers},
    };
    for (const auto &[svg, kind] : rows) {
        const auto source = SvgSource::read(svg);
        ASSERT_FALSE(source) << svg.constData();
        EXPECT_EQ(source.error().kind, kind)
            << svg.constData() << ": " << source.error().reason.toStdString();
        EXPECT_FALSE(source.error().reason.isEmpty()) << svg.constData();
    }
}

TEST(SvgSource, LimitsLevelsAndElements)
{
    const auto nested = [](int levels) {
        return QByteArray("<svg>").repeated(levels) + QByteArray("</svg>").repeated(levels);
    };
    EXPECT_TRUE(SvgSource::read(nested(SvgSource::maxLevels)));
    const auto deep = SvgSource::read(nested(SvgSource::maxLevels + 1));
    ASSERT_FALSE(deep);
    EXPECT_EQ(deep.error().kind, DocumentErrorKind::TooLarge);
    const auto many = [](int elements) {
        return "<svg>" + QByteArray("<g/>").repeated(elements - 1) + "</svg>";
    };
    EXPECT_TRUE(SvgSource::read(many(SvgSource::maxElements)));
    const auto more = SvgSource::read(many(SvgSource::maxElements + 1));
    ASSERT_FALSE(more);
    EXPECT_EQ(more.error().kind, DocumentErrorKind::TooLarge);
}

TEST(SvgSource, ShortensALongReferenceInTheReason)
{
    const auto source = SvgSource::read("<svg><use href='" + QByteArray(10'000, 'a') + "'/></svg>");
    ASSERT_FALSE(source);
    EXPECT_TRUE(source.error().reason.contains(QString(100, u'a') + u'…'))
        << source.error().reason.toStdString();
    EXPECT_LT(source.error().reason.size(), 250);
}

TEST(SvgSource, IsTheSameWhenItIsReadAgain)
{
    const auto source =
        SvgSource::read("<a:svg viewBox='0 0 4 2' style='a &quot;&#10;b'><text>&lt;&#x9;\u00e9</text><use "
                        "xlink:href='#a'/></a:svg>");
    ASSERT_TRUE(source);
    const auto again = SvgSource::read(source.value().content);
    ASSERT_TRUE(again) << source.value().content.constData();
    EXPECT_EQ(again.value().content, source.value().content);
    EXPECT_EQ(again.value().size, source.value().size);
}
