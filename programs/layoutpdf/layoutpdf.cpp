// SPDX-License-Identifier: Apache-2.0
// Lays the pages of a PDF out on labels of one paper:
//
//     kvprint-layoutpdf LAYOUT... <document.pdf >labels.pdf
//
// LAYOUT are the arguments of host::PageLayout. Each page of the result has exactly the size of the paper and
// contains the original page as a form XObject, at the place that the layout gives it: text, fonts and images
// are not changed. Annotations that are printed become part of the page. If all pages already are as the
// layout wants them, the program writes nothing: the document is sent as it is. Standard input must be a
// file. The exit status is 1 if the document or an argument is invalid, and 2 if the document needs too much
// memory or time; the reason is written to standard error.
#include <programs/conversion/Conversion.h>
#include <programs/sandbox/Sandbox.h>

#include <host/layout/PageLayout.h>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

using Rectangle = QPDFObjectHandle::Rectangle;

/// What the process may use. A document with very many pages needs some minutes.
programs::SandboxRules rules()
{
    programs::SandboxRules rules;
    rules.seconds = 300;
    rules.bytes = std::size_t{4} << 30U;
    return rules;
}

/// What a viewer shows of a page: the crop box within the media box, turned by /Rotate.
struct ShownPage {
    Rectangle box;
    /// Clockwise quarter turns, 0 to 3.
    int quarterTurns = 0;
    bool isWholeMedia = false;

    double width() const { return box.urx - box.llx; }
    double height() const { return box.ury - box.lly; }
    /// The size as the page is read.
    QSizeF size() const
    {
        const QSizeF size(width(), height());
        return quarterTurns % 2 == 0 ? size : size.transposed();
    }
};

Rectangle ordered(const Rectangle &box)
{
    return {std::min(box.llx, box.urx), std::min(box.lly, box.ury), std::max(box.llx, box.urx),
            std::max(box.lly, box.ury)};
}

Rectangle common(const Rectangle &a, const Rectangle &b)
{
    return {std::max(a.llx, b.llx), std::max(a.lly, b.lly), std::min(a.urx, b.urx), std::min(a.ury, b.ury)};
}

bool isEqual(const Rectangle &a, const Rectangle &b)
{
    return a.llx == b.llx && a.lly == b.lly && a.urx == b.urx && a.ury == b.ury;
}

ShownPage shownPage(QPDFPageObjectHelper &page)
{
    constexpr int quarter = 90;
    // A PDF without a media box has the size of a letter, as in the library that draws the strip.
    Rectangle media{0.0, 0.0, 612.0, 792.0};
    QPDFObjectHandle stated = page.getAttribute("/MediaBox", false);
    if (stated.isRectangle())
        media = ordered(stated.getArrayAsRectangle());
    ShownPage shown;
    shown.box = media;
    QPDFObjectHandle crop = page.getAttribute("/CropBox", false);
    if (crop.isRectangle()) {
        const Rectangle cropped = common(ordered(crop.getArrayAsRectangle()), media);
        if (cropped.llx < cropped.urx && cropped.lly < cropped.ury)
            shown.box = cropped;
    }
    QPDFObjectHandle rotate = page.getAttribute("/Rotate", false);
    if (rotate.isInteger())
        shown.quarterTurns = static_cast<int>(((rotate.getIntValue() / quarter) % 4 + 4) % 4);
    shown.isWholeMedia = isEqual(shown.box, media);
    return shown;
}

/// Maps the page's own coordinates to those of the label, both in points from the lower left corner.
QTransform pageToLabel(const ShownPage &page, const host::PagePlacement &placement, const QSizeF &label)
{
    const double width = page.width();
    const double height = page.height();
    QTransform turned;
    switch ((page.quarterTurns + placement.quarterTurns) % 4) {
    case 1:
        turned = QTransform(0.0, -1.0, 1.0, 0.0, 0.0, width);
        break;
    case 2:
        turned = QTransform(-1.0, 0.0, 0.0, -1.0, width, height);
        break;
    case 3:
        turned = QTransform(0.0, 1.0, -1.0, 0.0, height, 0.0);
        break;
    default:
        break;
    }
    return QTransform::fromTranslate(-page.box.llx, -page.box.lly) * turned *
           QTransform::fromScale(placement.scale, placement.scale) *
           QTransform::fromTranslate(placement.area.left(), label.height() - placement.area.bottom());
}

std::string text(double number)
{
    return QString::number(number, 'f', 6).toStdString();
}

class Layouter {
public:
    Layouter(QPDF &pdf, const host::PageLayout &layout)
        : m_pdf(pdf)
        , m_pages(pdf)
        , m_layout(layout)
    {
    }

    /// Lays out all pages. Returns whether any page has changed.
    bool run()
    {
        m_pages.pushInheritedAttributesToPage();
        std::vector<QPDFPageObjectHelper> pages = m_pages.getAllPages();
        if (std::all_of(pages.begin(), pages.end(), [this](auto &page) { return isUnchanged(page); }))
            return false;
        QPDFAcroFormDocumentHelper(m_pdf).generateAppearancesIfNeeded();
        m_pages.flattenAnnotations(an_print, an_invisible | an_hidden);
        for (QPDFPageObjectHelper &page : pages) {
            if (!isUnchanged(page))
                layOut(page);
        }
        return true;
    }

private:
    bool isUnchanged(QPDFPageObjectHelper &page) const
    {
        const ShownPage shown = shownPage(page);
        return shown.quarterTurns == 0 && shown.isWholeMedia && shown.box.llx == 0.0 &&
               shown.box.lly == 0.0 && m_layout.isUnchanged(shown.size(), m_layout.place(shown.size()));
    }

    void layOut(QPDFPageObjectHelper &page)
    {
        const ShownPage shown = shownPage(page);
        if (!(shown.width() > 0.0 && shown.height() > 0.0))
            throw programs::ConversionError(programs::ConversionError::Damaged, "a page has no area");
        QPDFObjectHandle object = page.getObjectHandle();
        // The form reads the content of a copy, since the page itself gets another content.
        QPDFPageObjectHelper original(m_pdf.makeIndirectObject(object.shallowCopy()));
        QPDFObjectHandle form = original.getFormXObjectForPage(false);
        form.getDict().replaceKey("/BBox", QPDFObjectHandle::newFromRectangle(shown.box));
        const QTransform map = pageToLabel(shown, m_layout.place(shown.size()), m_layout.paper);
        std::string content = "q";
        for (const double number : {map.m11(), map.m12(), map.m21(), map.m22(), map.dx(), map.dy()})
            content += ' ' + text(number);
        content += " cm /Page Do Q\n";
        QPDFObjectHandle resources = QPDFObjectHandle::parse("<< /XObject << >> >>");
        resources.getKey("/XObject").replaceKey("/Page", form);
        object.replaceKey("/Resources", resources);
        object.replaceKey("/Contents", QPDFObjectHandle::newStream(&m_pdf, content));
        object.replaceKey("/MediaBox", QPDFObjectHandle::parse("[0 0 " + text(m_layout.paper.width()) + ' ' +
                                                               text(m_layout.paper.height()) + ']'));
        for (const char *const key :
             {"/CropBox", "/TrimBox", "/BleedBox", "/ArtBox", "/Rotate", "/UserUnit", "/Annots", "/Group"})
            object.removeKey(key);
    }

    QPDF &m_pdf;
    QPDFPageDocumentHelper m_pages;
    const host::PageLayout &m_layout;
};

void layOut(const host::PageLayout &layout)
{
    QPDF pdf;
    pdf.setSuppressWarnings(true);
    pdf.processFile("the document", stdin, false);
    if (!Layouter(pdf, layout).run())
        return;
    QPDFWriter writer(pdf);
    writer.setMinimumPDFVersion("1.4");
    writer.setDeterministicID(!pdf.isEncrypted());
    writer.setOutputFile("standard output", stdout, false);
    writer.write();
    programs::flushStandardOutput();
}

} // namespace

int main(int argc, char **argv)
{
    programs::enterSandbox(rules());
    return programs::runConversion("kvprint-layoutpdf", [argc, argv] {
        QStringList arguments;
        for (int index = 1; index < argc; ++index)
            arguments.append(QString::fromLocal8Bit(argv[index]));
        const std::optional<host::PageLayout> layout = host::PageLayout::fromArguments(arguments);
        if (!layout)
            throw programs::ConversionError(programs::ConversionError::Damaged, "invalid layout");
        layOut(*layout);
    });
}
