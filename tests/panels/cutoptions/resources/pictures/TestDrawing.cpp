// SPDX-License-Identifier: Apache-2.0
#include <resources/pictures/Composer.h>
#include <resources/pictures/Drawing.h>

#include <QDir>
#include <QSet>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

using namespace pictures;

namespace {

/// The names of the elements in the document, in order; empty when it is not well-formed.
QStringList elements(const QString &svg)
{
    QXmlStreamReader reader(svg);
    QStringList names;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement)
            names.append(reader.name().toString());
    }
    return reader.hasError() ? QStringList() : names;
}

} // namespace

TEST(Drawing, isAnEmptySvgAtFirst)
{
    const Drawing drawing(Theme::Light);
    EXPECT_EQ(elements(drawing.svg()), QStringList{QStringLiteral("svg")});
    EXPECT_TRUE(drawing.errors().isEmpty());
}

TEST(Drawing, fillsInNumbersAndColours)
{
    Drawing drawing(Theme::Dark);
    drawing.add(QStringLiteral("layer"), {{"x", 2.5}, {"y", 24.5}, {"width", 39}, {"height", 29}});
    EXPECT_TRUE(drawing.errors().isEmpty());
    EXPECT_TRUE(drawing.svg().contains(QStringLiteral("x=\"2.5\" y=\"24.5\" width=\"39\" height=\"29\"")));
    EXPECT_TRUE(drawing.svg().contains(colours(Theme::Dark).value(QStringLiteral("tape"))));
    EXPECT_FALSE(drawing.svg().contains(u'@'));
}

TEST(Drawing, reportsAPartThatDoesNotExist)
{
    Drawing drawing(Theme::Light);
    drawing.add(QStringLiteral("hammer"), {});
    ASSERT_EQ(drawing.errors().size(), 1);
    EXPECT_TRUE(drawing.errors().first().contains(QStringLiteral("hammer")));
}

TEST(Drawing, reportsEveryPartThatLacksANumberAndLeavesItOut)
{
    Drawing drawing(Theme::Light);
    drawing.add(QStringLiteral("chain"), {{"x", 1}});
    drawing.add(QStringLiteral("mirror"), {{"y", 1}});
    ASSERT_EQ(drawing.errors().size(), 2);
    EXPECT_EQ(drawing.errors()[0], QStringLiteral("The part \"chain\" asks for \"y\", which is not given."));
    EXPECT_EQ(drawing.errors()[1], QStringLiteral("The part \"mirror\" asks for \"x\", which is not given."));
    EXPECT_EQ(elements(drawing.svg()), QStringList{QStringLiteral("svg")});
}

TEST(Drawing, themesNameTheSameColours)
{
    EXPECT_EQ(QSet<QString>(colours(Theme::Light).keyBegin(), colours(Theme::Light).keyEnd()),
              QSet<QString>(colours(Theme::Dark).keyBegin(), colours(Theme::Dark).keyEnd()));
}

TEST(Composer, composesWellFormedSvgWithoutProblems)
{
    for (const PictureSpec &spec : allPictures()) {
        for (const Theme theme : {Theme::Light, Theme::Dark}) {
            const Drawing drawing = compose(spec, theme);
            EXPECT_EQ(drawing.errors(), QStringList()) << qPrintable(spec.name);
            EXPECT_GT(elements(drawing.svg()).size(), 10) << qPrintable(spec.name);
        }
    }
}

// The renderer draws SVG Tiny 1.2 and silently leaves out what that has not.
TEST(Composer, usesOnlyElementsThatTheRendererDraws)
{
    static const QSet<QString> drawn{QStringLiteral("svg"),    QStringLiteral("g"),
                                     QStringLiteral("rect"),   QStringLiteral("path"),
                                     QStringLiteral("circle"), QStringLiteral("ellipse")};
    for (const PictureSpec &spec : allPictures()) {
        for (const QString &element : elements(compose(spec, Theme::Light).svg()))
            EXPECT_TRUE(drawn.contains(element)) << qPrintable(spec.name) << ": " << qPrintable(element);
    }
}
