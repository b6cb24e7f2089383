// SPDX-License-Identifier: Apache-2.0
#include "Theme.h"

namespace pictures {

namespace {

struct Colour {
    const char *name;
    const char *light;
    const char *dark;
};

constexpr Colour palette[] = {
    {"tape", "#ffffff", "#f4f5f7"},        // label layer
    {"tapeEdge", "#7b8694", "#707b88"},    // its outline
    {"peel", "#cfd5dc", "#c3cad2"},        // its underside
    {"backing", "#f4bd55", "#f0b548"},     // backing below the label layer
    {"backingEdge", "#b07d1c", "#8f6415"}, // its outline
    {"ink", "#1d2733", "#1d2733"},         // printed text
    {"nextLabel", "#1a66c8", "#1a66c8"},   // label of the next job
    {"fabric", "#c3e6df", "#b3dcd4"},      // woven tape
    {"fabricEdge", "#3f8a7d", "#35786c"},  // its outline
    {"weave", "#8fcabe", "#83bfb2"},       // its threads
    {"seam", "#2f7d70", "#25675c"},        // the stitches along its edges
    {"body", "#66758a", "#6d7c91"},        // printer
    {"bodyLight", "#8f9eb1", "#93a2b5"},   // light on its upper edge
    {"bodyEdge", "#39444f", "#aab6c4"},    // its outline
    {"key", "#b9c4d0", "#c6d0db"},         // its keys
    {"lamp", "#7fd17a", "#7fd17a"},        // its lamp
    {"mouth", "#2b343d", "#c3ccd6"},       // slot where the tape comes out
    {"inside", "#47535f", "#39434e"},      // behind its window
    {"core", "#d9b27c", "#cfa771"},        // cardboard of a roll
    {"coreEdge", "#8d6a38", "#7d5d30"},    // its outline
    {"cut", "#d23a24", "#ff7e68"},         // scissors and knives
    {"steel", "#dfe5ec", "#e6eaef"},       // blade of the knife
    {"mode", "#1a66c8", "#74b5ff"},        // symbols below the strip
    {"muted", "#4d5863", "#c0c9d3"},       // forbidden action
};

QHash<QString, QString> coloursOf(const char *Colour::*theme)
{
    QHash<QString, QString> colours;
    for (const Colour &colour : palette)
        colours.insert(QString::fromLatin1(colour.name), QString::fromLatin1(colour.*theme));
    return colours;
}

} // namespace

const QHash<QString, QString> &colours(Theme theme)
{
    static const QHash<QString, QString> light = coloursOf(&Colour::light);
    static const QHash<QString, QString> dark = coloursOf(&Colour::dark);
    return theme == Theme::Light ? light : dark;
}

QColor windowColour(Theme theme)
{
    return theme == Theme::Light ? QColor(0xef, 0xef, 0xef) : QColor(0x2b, 0x2b, 0x2b);
}

} // namespace pictures
