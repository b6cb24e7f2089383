// SPDX-License-Identifier: Apache-2.0
#include "Composer.h"

#include <array>

namespace pictures {

namespace {

// Lines are one point wide and lie at half points, so that they fill whole pixels at every pixel density.
constexpr double halfLine = 0.5;

// All lengths are in points. The middle of a border is the middle of the gap of its cut.
constexpr double fullCutGap = 8;
constexpr double halfCutGap = 4;
constexpr double stripStart = 2;
constexpr double forbiddenRow = 11; // y of the middle of the symbol above a strip that is never cut
constexpr double signRow = 71;      // y of the middle of the symbols below the strip
constexpr double chainSign = 126;   // x of the middle of the chain, close to the held end

/// The dimensions of a kind of strip, in points; y is measured from the top of the picture.
struct Measures {
    double pitch;     ///< distance from one border to the next
    double top;       ///< y of the label layer
    double height;    ///< height of the label layer; for a roll, height of the web that carries the labels
    double thickness; ///< height of the backing that is visible below the label layer
    double lettering; ///< scale of the text
    double mouth;     ///< x of the printer's left edge
};

const Measures &measuresOf(Stock stock)
{
    static const std::array<Measures, 4> measures{{
        {47, 24, 29, 6, 1.0, 147}, // Tape
        {69, 14, 41, 6, 1.5, 147}, // MarkedTape
        {47, 22, 36, 0, 1.0, 147}, // SpecialTape
        {58, 21, 42, 0, 1.2, 122}, // LabelRoll
    }};
    return measures[static_cast<std::size_t>(stock)];
}

class Composer {
public:
    Composer(const PictureSpec &spec, Theme theme)
        : m_spec(spec)
        , m_measures(measuresOf(spec.stock))
        , m_drawing(theme)
    {
    }

    Drawing compose()
    {
        addStrip();
        addLabels();
        addBorders();
        addPrinter();
        addSigns();
        return std::move(m_drawing);
    }

private:
    // The middle of the border before the label. The first border lies just before the start of the strip, so
    // that all labels have the same length.
    double border(std::size_t label) const
    {
        return static_cast<double>(label) * m_measures.pitch - fullCutGap / 2 + stripStart;
    }
    double labelMiddle(std::size_t label) const { return (border(label) + border(label + 1)) / 2; }
    double middleLine() const { return m_measures.top + (m_measures.height + 1) / 2; }

    void addStrip();
    void addPiece(double from, double to);
    void addLayers(double from, double to);
    void addLayer(double from, double to);
    void addLabels();
    void addBorders();
    void addPrinter();
    void addWindow();
    void addNextLabel();
    void addSigns();

    const PictureSpec &m_spec;
    const Measures &m_measures;
    Drawing m_drawing;
};

/// Adds the pieces between full cuts; the last one ends behind the mouth of the printer.
void Composer::addStrip()
{
    double from = stripStart;
    for (std::size_t label = 0; label < m_spec.borders.size(); ++label) {
        if (m_spec.borders[label] != Border::FullCut)
            continue;
        addPiece(from, border(label + 1) - fullCutGap / 2);
        from = border(label + 1) + fullCutGap / 2;
    }
    addPiece(from, m_measures.mouth + 4);
}

void Composer::addPiece(double from, double to)
{
    const bool woven = m_spec.stock == Stock::SpecialTape;
    m_drawing.add(woven ? QStringLiteral("fabric") : QStringLiteral("backing"),
                  {{"x", from + halfLine},
                   {"y", m_measures.top + halfLine},
                   {"width", to - from - 2 * halfLine},
                   {"height", m_measures.height + m_measures.thickness}});
    if (m_spec.stock == Stock::Tape || m_spec.stock == Stock::MarkedTape)
        addLayers(from, to);
}

/// Adds the label layer of one piece, divided by half cuts; a corner of the label peels off at each half cut.
void Composer::addLayers(double from, double to)
{
    double layerStart = from;
    for (std::size_t label = 0; label < m_spec.borders.size(); ++label) {
        const double cut = border(label + 1);
        if (m_spec.borders[label] != Border::HalfCut || cut < from || cut > to)
            continue;
        const double layerEnd = cut - halfCutGap / 2;
        addLayer(layerStart, layerEnd);
        m_drawing.add(QStringLiteral("peel"), {{"x", layerEnd - halfLine}, {"y", m_measures.top + halfLine}});
        layerStart = cut + halfCutGap / 2;
    }
    addLayer(layerStart, to);
}

void Composer::addLayer(double from, double to)
{
    m_drawing.add(QStringLiteral("layer"), {{"x", from + halfLine},
                                            {"y", m_measures.top + halfLine},
                                            {"width", to - from - 2 * halfLine},
                                            {"height", m_measures.height}});
}

void Composer::addLabels()
{
    const double scale = m_measures.lettering;
    for (std::size_t label = 0; label < m_spec.borders.size(); ++label) {
        const double middle = labelMiddle(label);
        if (m_spec.stock == Stock::LabelRoll)
            m_drawing.add(QStringLiteral("paper-label"), {{"x", middle}, {"y", middleLine()}});
        m_drawing.add(QStringLiteral("lettering"), {{"x", middle},
                                                    {"y", middleLine()},
                                                    {"scaleX", m_spec.mirror ? -scale : scale},
                                                    {"scaleY", scale}});
    }
}

void Composer::addBorders()
{
    static const std::array<QString, 4> parts{QString(), QStringLiteral("knife"), QStringLiteral("scissors"),
                                              QStringLiteral("cut-mark")}; // indexed by Border
    for (std::size_t label = 0; label < m_spec.borders.size(); ++label) {
        const QString &part = parts[static_cast<std::size_t>(m_spec.borders[label])];
        if (!part.isEmpty())
            m_drawing.add(part, {{"x", border(label + 1)}, {"y", m_measures.top}});
    }
}

void Composer::addPrinter()
{
    if (m_spec.stock == Stock::LabelRoll) {
        m_drawing.add(QStringLiteral("roll-printer"), {{"x", m_measures.mouth}});
    } else {
        m_drawing.add(QStringLiteral("printer"), {{"x", m_measures.mouth}});
        addWindow();
    }
    m_drawing.add(QStringLiteral("mouth"), {{"x", m_measures.mouth - 2},
                                            {"y", m_measures.top - 4},
                                            {"height", m_measures.height + m_measures.thickness + 8}});
}

void Composer::addWindow()
{
    const double x = m_measures.mouth + 1.5;
    const double strip = m_measures.height + m_measures.thickness + 1;
    const bool woven = m_spec.stock == Stock::SpecialTape;
    m_drawing.add(QStringLiteral("window"),
                  {{"x", x}, {"y", m_measures.top - 2.5}, {"height", strip + 4}, {"corner", strip + 1}});
    m_drawing.add(
        woven ? QStringLiteral("inner-fabric") : QStringLiteral("inner-tape"),
        {{"x", x}, {"y", m_measures.top}, {"height", m_measures.height + halfLine}, {"full", strip}});
    if (m_spec.chain)
        addNextLabel();
}

void Composer::addNextLabel()
{
    const Drawing::Numbers frontEdge = {{"x", m_measures.mouth + 8}, {"y", middleLine()}};
    m_drawing.add(QStringLiteral("next-label"), frontEdge);
    m_drawing.add(m_spec.mirror ? QStringLiteral("next-letter-mirrored") : QStringLiteral("next-letter"),
                  frontEdge);
}

void Composer::addSigns()
{
    if (m_spec.chain)
        m_drawing.add(QStringLiteral("chain"), {{"x", chainSign}, {"y", signRow}});
    if (m_spec.mirror)
        m_drawing.add(QStringLiteral("mirror"), {{"x", labelMiddle(0)}, {"y", signRow}});
    if (m_spec.stock == Stock::SpecialTape)
        m_drawing.add(QStringLiteral("never-cut"), {{"x", labelMiddle(1)}, {"y", forbiddenRow}});
}

} // namespace

Drawing compose(const PictureSpec &spec, Theme theme)
{
    return Composer(spec, theme).compose();
}

} // namespace pictures
