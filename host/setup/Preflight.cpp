// SPDX-License-Identifier: Apache-2.0
#include "Preflight.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace host {
inline namespace setup {

namespace {

struct PreflightText {
    Q_DECLARE_TR_FUNCTIONS(host::setup::Preflight)
};

QString kindKey(PreflightKind kind)
{
    switch (kind) {
    case PreflightKind::Shrunk:
        return QStringLiteral("shrunk");
    case PreflightKind::CutOff:
        return QStringLiteral("cut-off");
    case PreflightKind::Blank:
        return QStringLiteral("blank");
    case PreflightKind::LonelyLabel:
        return QStringLiteral("lonely-label");
    case PreflightKind::LongTape:
        return QStringLiteral("long-tape");
    }
    return {};
}

/// Adds the note unless it is about no page.
void addPages(std::vector<PreflightNote> &notes, PreflightKind kind, std::vector<int> pages,
              const QString &sentence)
{
    if (!pages.empty())
        notes.push_back({kind, std::move(pages), sentence});
}

void addPageNotes(std::vector<PreflightNote> &notes, const Ticket &ticket, const LabelRenderer &renderer)
{
    std::vector<int> shrunk;
    std::vector<int> cutOff;
    std::vector<int> blank;
    double scale = 1.0;
    for (const int page : ticket.pages.pages) {
        if (renderer.shrinks(page)) {
            shrunk.push_back(page);
            scale = std::min(scale, renderer.scale(page));
        }
        const LabelExtent extent = renderer.extent(page, MeasureBlank::Yes);
        if (extent.isMeasured && extent.isCutOff)
            cutOff.push_back(page);
        if (extent.isMeasured && extent.whollyBlank && !extent.isCutOff)
            blank.push_back(page);
    }
    constexpr double percent = 100.0;
    const QString size = QLocale().toString(std::max(1.0, std::round(scale * percent)), 'f', 0);
    addPages(notes, PreflightKind::Shrunk, shrunk,
             (shrunk.size() == 1
                  ? PreflightText::tr("Page %1 is larger than the label and is printed at %2 % of its size.")
                  : PreflightText::tr(
                        "Pages %1 are larger than the label and are printed smaller, at %2 % or more."))
                 .arg(pageList(shrunk), size));
    addPages(notes, PreflightKind::CutOff, cutOff,
             (cutOff.size() == 1 ? PreflightText::tr("Page %1 has content where the printer cannot print.")
                                 : PreflightText::tr("Pages %1 have content where the printer cannot print."))
                 .arg(pageList(cutOff)));
    addPages(notes, PreflightKind::Blank, blank,
             (blank.size() == 1 ? PreflightText::tr("Page %1 is blank.")
                                : PreflightText::tr("Pages %1 are blank."))
                 .arg(pageList(blank)));
}

/// Whether the last piece is a single label, and all pieces before it have the same greater number of labels.
bool hasLonelyLabel(const std::vector<Piece> &pieces)
{
    if (pieces.size() < 2 || pieces.back().labelCount != 1 || pieces.front().labelCount == 1)
        return false;
    return std::all_of(pieces.begin(), pieces.end() - 1,
                       [&](const Piece &piece) { return piece.labelCount == pieces.front().labelCount; });
}

} // namespace

QString pageList(const std::vector<int> &pages)
{
    QStringList ranges;
    for (std::size_t first = 0; first < pages.size();) {
        std::size_t last = first;
        while (last + 1 < pages.size() && pages[last + 1] == pages[last] + 1)
            ++last;
        const QString begin = QLocale().toString(pages[first] + 1);
        ranges.append(last == first ? begin : begin + u'\u2013' + QLocale().toString(pages[last] + 1));
        first = last + 1;
    }
    return ranges.join(QStringLiteral(", "));
}

std::vector<PreflightNote> preflight(const Ticket &ticket, const LabelRenderer &renderer, const CutPlan &plan)
{
    std::vector<PreflightNote> notes;
    addPageNotes(notes, ticket, renderer);
    if (hasLonelyLabel(plan.pieces()))
        notes.push_back(
            {PreflightKind::LonelyLabel, {}, PreflightText::tr("The last label is a piece of its own.")});
    const Metres tape(plan.tapeUsed());
    if (plan.isMeasured() && tape > longTape)
        notes.push_back({PreflightKind::LongTape,
                         {},
                         PreflightText::tr("The job needs %1 m of tape.")
                             .arg(QLocale().toString(tape.number(), 'f', 1))});
    return notes;
}

QJsonArray preflightJson(const std::vector<PreflightNote> &notes)
{
    QJsonArray list;
    for (const PreflightNote &note : notes) {
        QJsonArray pages;
        for (const int page : note.pages)
            pages.append(page + 1);
        list.append(QJsonObject{{QStringLiteral("kind"), kindKey(note.kind)},
                                {QStringLiteral("pages"), pages},
                                {QStringLiteral("text"), note.sentence}});
    }
    return list;
}

} // namespace setup
} // namespace host
