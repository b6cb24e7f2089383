// SPDX-License-Identifier: Apache-2.0
// PDFs whose first page needs endless time or memory: each is drawn or reported, and the second page is
// drawn.

#include <host/documents/LabelDocument.h>
#include <tests/samples/RawPdf.h>
#include <tests/samples/Sandbox.h>

#include <gtest/gtest.h>

namespace {

struct HostilePdf {
    const char *what;
    /// The entries of the first page.
    QByteArray entries;
    QByteArray content;
    /// Further objects, from number 10.
    std::vector<QByteArray> objects;
};

QByteArray stream(const QByteArray &dictionary, const QByteArray &data)
{
    return "<< " + dictionary + " /Length " + QByteArray::number(data.size()) + " >>\nstream\n" + data +
           "\nendstream";
}

/// A form that draws another object, several times.
QByteArray formDrawing(int object, int times)
{
    return stream("/Type /XObject /Subtype /Form /BBox [0 0 60 90] /Resources << /XObject << /F " +
                      QByteArray::number(object) + " 0 R >> >>",
                  QByteArray("/F Do ").repeated(times));
}

/// Ten levels of forms that draw the next one ten times each: ten billion squares.
std::vector<QByteArray> formsOfForms()
{
    constexpr int first = 10;
    constexpr int levels = 10;
    std::vector<QByteArray> objects;
    for (int level = 1; level <= levels; ++level)
        objects.push_back(formDrawing(first + level, 10));
    objects.push_back(stream("/Type /XObject /Subtype /Form /BBox [0 0 60 90]", "0 0 1 1 re f"));
    return objects;
}

/// Compressed as PDF's FlateDecode filter expects it.
QByteArray flate(const QByteArray &data)
{
    return qCompress(data, 9).mid(4);
}

std::vector<HostilePdf> hostilePdfs()
{
    const QByteArray drawsForm = "/MediaBox [0 0 60 90] /Resources << /XObject << /F 10 0 R >> >>";
    const QByteArray place = "q 60 0 0 90 0 0 cm /F Do Q";
    const QByteArray image = "/Type /XObject /Subtype /Image /ColorSpace /DeviceRGB /BitsPerComponent 8 ";
    constexpr int megabytes = 256;
    const QByteArray bomb = flate(flate(QByteArray(megabytes << 20U, ' ')));
    return {
        {"a form that draws itself", drawsForm, "/F Do", {formDrawing(10, 2)}},
        {"forms of forms", drawsForm, "/F Do", formsOfForms()},
        {"an image of four billion pixels",
         drawsForm,
         place,
         {stream(image + "/Width 65535 /Height 65535 /Filter /FlateDecode",
                 flate(QByteArray(1 << 20U, 'x')))}},
        {"an image whose data grows",
         drawsForm,
         place,
         {stream(image + "/Width 8000 /Height 8000 /Filter [/FlateDecode /FlateDecode]", bomb)}},
        {"a soft mask of its own form",
         "/MediaBox [0 0 60 90] /Resources << /ExtGState << /G << /SMask << /S /Alpha /G 10 0 R >> >> >> >>",
         "/G gs 0 0 60 90 re f",
         {stream(
             "/Type /XObject /Subtype /Form /BBox [0 0 60 90] /Group << /S /Transparency >> /Resources << "
             "/ExtGState << /G << /SMask << /S /Alpha /G 10 0 R >> >> >> >>",
             "/G gs 0 0 60 90 re f")}},
        {"a page that is its own parent", "/MediaBox [0 0 60 90] /Resources 10 0 R", "/F Do", {"10 0 R"}},
    };
}

bool hasBlackMiddle(const QImage &image)
{
    return !image.isNull() && image.pixelColor(image.rect().center()) == QColor(Qt::black);
}

} // namespace

TEST(HostilePdfs, CostTheirPageAtMost)
{
    const Sandbox sandbox;
    const RawPage sound{"/MediaBox [0 0 60 90]", "0 g 10 10 40 70 re f"};
    for (const HostilePdf &hostile : hostilePdfs()) {
        const QString path =
            sandbox.write(QStringLiteral("hostile.pdf"),
                          rawPdf({{hostile.entries, hostile.content}, sound}, hostile.objects));
        const auto document = host::LabelDocument::open(path);
        ASSERT_TRUE(document) << hostile.what;
        const QImage first = document.value()->renderTransparent(0, {60, 90});
        EXPECT_NE(first.isNull(), document.value()->drawingFault(0).isEmpty()) << hostile.what;
        EXPECT_TRUE(hasBlackMiddle(document.value()->renderTransparent(1, {60, 90}))) << hostile.what;
    }
}
