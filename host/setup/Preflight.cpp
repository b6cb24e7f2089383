// SPDX-License-Identifier: Apache-2.0
#include "Preflight.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace host {
inline namespace setup {

namespace {

struct PreflightText {
    Q_DECLARE_TR_FUNCTIONS(host::setup::Preflight)
};

QString kindKey(PreflightKind kind)
{
    switch (kind) {
    case PreflightKind::Undrawable:
        return QStringLiteral("cannot-be-drawn");
    case PreflightKind::Shrunk:
        return QStringLiteral("shrunk");
    case PreflightKind::Orientation:
        return QStringLiteral("orientation");
    case PreflightKind::CutOff:
        return QStringLiteral("cut-off");
    case PreflightKind::Blank:
        return QStringLiteral("blank");
    case PreflightKind::LonelyLabel:
        return QStringLiteral("lonely-label");
    case PreflightKind::Mirrored:
        return QStringLiteral("mirrored");
    case PreflightKind::LongTape:
        return QStringLiteral("long-tape");
    }
    return {};
}

/// Adds the note unless it is about no page.
void addPages(std::vector<PreflightNote> &notes, PreflightKind kind, std::vector<int> pages,
              const QString &sentence, const std::optional<PreflightRemedy> &remedy = std::nullopt)
{
    if (!pages.empty())
        notes.push_back({kind, std::move(pages), sentence, remedy});
}

/// Returns the smallest of the papers on which none of the pages is shrunk.
std::optional<PreflightRemedy> largerPaper(const Ticket &ticket, const LabelDocument &document,
                                           const std::vector<int> &pages, const std::vector<PpdPaper> &papers)
{
    if (pages.empty())
        return std::nullopt;
    const PpdPaper *smallest = nullptr;
    const auto area = [](const PpdPaper &paper) { return paper.size.width() * paper.size.height(); };
    for (const PpdPaper &paper : papers) {
        PageLayout layout = *ticket.layout;
        layout.paper = paper.size;
        layout.margins = paper.margins.value_or(QMarginsF());
        const bool fits = std::ranges::all_of(
            pages, [&](int page) { return layout.place(document.pageSize(page)).scale >= 1.0; });
        if (fits && (!smallest || area(paper) < area(*smallest)))
            smallest = &paper;
    }
    if (!smallest)
        return std::nullopt;
    return PreflightRemedy{PreflightText::tr("Use \"%1\"").arg(smallest->text),
                           {paperKeyword, smallest->name}};
}

/// Returns the pages of the ticket without some of them. The ranges of several documents apply to each of
/// them, so that a page of one cannot be left out.
std::optional<PreflightRemedy> withoutPages(const Ticket &ticket, const std::vector<int> &leftOut,
                                            const QString &text)
{
    std::vector<int> kept;
    std::ranges::set_difference(ticket.pages.pages, leftOut, std::back_inserter(kept));
    if (kept.empty() || ticket.job.documents.size() != 1)
        return std::nullopt;
    QByteArrayList ranges;
    for (const int page : kept)
        ranges.append(QByteArray::number(page + 1));
    return PreflightRemedy{text, {"page-ranges", ranges.join(',')}};
}

/// Returns the first of the pages that cannot be drawn, with the reason.
QString undrawableSentence(const LabelDocument &document, const std::vector<int> &undrawable)
{
    const QString fault = document.drawingFault(undrawable.front());
    return (undrawable.size() == 1
                ? PreflightText::tr("Page %1 cannot be drawn, and the job cannot be printed: %2.")
                : PreflightText::tr("Pages %1 cannot be drawn, and the job cannot be printed: %2."))
        .arg(pageList(undrawable), fault);
}

void addUndrawable(std::vector<PreflightNote> &notes, const Ticket &ticket, const LabelDocument &document,
                   const std::vector<int> &undrawable)
{
    if (undrawable.empty())
        return;
    addPages(notes, PreflightKind::Undrawable, undrawable, undrawableSentence(document, undrawable),
             withoutPages(ticket, undrawable, PreflightText::tr("Leave out pages that cannot be drawn")));
}

/// The same layout with pages turned as they fit.
PageLayout turnedToFit(PageLayout layout)
{
    layout.turning = Turning::Automatic;
    return layout;
}

/// Whether the page is printed at least a twentieth smaller than in the orientation that fits.
bool isTurnedWrongly(const Ticket &ticket, QSizeF page)
{
    constexpr double noticeable = 0.95;
    const PageLayout &layout = *ticket.layout;
    return layout.turning != Turning::Automatic && layout.scaling != Scaling::ActualSize &&
           layout.place(page).scale < noticeable * turnedToFit(layout).place(page).scale;
}

/// Returns the orientation in which all the pages fit.
std::optional<PreflightRemedy> fittingOrientation(const Ticket &ticket, const LabelDocument &document,
                                                  const std::vector<int> &pages)
{
    const PageLayout layout = turnedToFit(*ticket.layout);
    const auto isOnSide = [&](int page) { return layout.place(document.pageSize(page)).isOnSide(); };
    const bool areOnSide = isOnSide(pages.front());
    if (std::ranges::any_of(pages, [&](int page) { return isOnSide(page) != areOnSide; }))
        return std::nullopt;
    const auto orientation = areOnSide ? host::Orientation::ReverseLandscape : host::Orientation::Portrait;
    return PreflightRemedy{PreflightText::tr("Turn pages to fit"),
                           {"orientation-requested", QByteArray::number(static_cast<int>(orientation))}};
}

void addTurned(std::vector<PreflightNote> &notes, const Ticket &ticket, const LabelDocument &document,
               const std::vector<int> &turned)
{
    if (turned.empty())
        return;
    addPages(notes, PreflightKind::Orientation, turned,
             (turned.size() == 1
                  ? PreflightText::tr("Page %1 is printed smaller than in the orientation that fits.")
                  : PreflightText::tr("Pages %1 are printed smaller than in the orientation that fits."))
                 .arg(pageList(turned)),
             fittingOrientation(ticket, document, turned));
}

void addPageNotes(std::vector<PreflightNote> &notes, const Ticket &ticket, const LabelDocument &document,
                  const LabelRenderer &renderer, const std::vector<PpdPaper> &papers)
{
    std::vector<int> undrawable;
    std::vector<int> turned;
    std::vector<int> shrunk;
    std::vector<int> cutOff;
    std::vector<int> blank;
    double scale = 1.0;
    for (const int page : ticket.pages.pages) {
        // Also false for a page whose size is not read yet.
        if (renderer.shrinks(page) && isTurnedWrongly(ticket, document.pageSize(page)))
            turned.push_back(page);
        else if (renderer.shrinks(page)) {
            shrunk.push_back(page);
            scale = std::min(scale, renderer.scale(page));
        }
        const LabelExtent extent = renderer.extent(page, MeasureBlank::Yes);
        if (!extent.drawingFault.isEmpty())
            undrawable.push_back(page);
        if (extent.isMeasured && extent.isCutOff)
            cutOff.push_back(page);
        if (extent.isMeasured && extent.whollyBlank && !extent.isCutOff)
            blank.push_back(page);
    }
    addUndrawable(notes, ticket, document, undrawable);
    addTurned(notes, ticket, document, turned);
    constexpr double percent = 100.0;
    const QString size = QLocale().toString(std::max(1.0, std::round(scale * percent)), 'f', 0);
    addPages(notes, PreflightKind::Shrunk, shrunk,
             (shrunk.size() == 1
                  ? PreflightText::tr("Page %1 is larger than the label and is printed at %2 % of its size.")
                  : PreflightText::tr(
                        "Pages %1 are larger than the label and are printed smaller, at %2 % or more."))
                 .arg(pageList(shrunk), size),
             largerPaper(ticket, document, shrunk, papers));
    addPages(notes, PreflightKind::CutOff, cutOff,
             (cutOff.size() == 1 ? PreflightText::tr("Page %1 has content where the printer cannot print.")
                                 : PreflightText::tr("Pages %1 have content where the printer cannot print."))
                 .arg(pageList(cutOff)));
    addPages(notes, PreflightKind::Blank, blank,
             (blank.size() == 1 ? PreflightText::tr("Page %1 is blank.")
                                : PreflightText::tr("Pages %1 are blank."))
                 .arg(pageList(blank)),
             withoutPages(ticket, blank, PreflightText::tr("Leave out blank pages")));
}

/// Whether the paper or another choice of the job is named as transparent. PPDs have no keyword for it.
bool isTransparent(const Ticket &ticket)
{
    static const QRegularExpression words(QStringLiteral("\\b(transparent|clear)\\b"),
                                          QRegularExpression::CaseInsensitiveOption);
    if (ticket.paper && ticket.paper->text.contains(words))
        return true;
    return std::ranges::any_of(ticket.job.options, [](const JobOption &option) {
        return QString::fromUtf8(option.value).contains(words);
    });
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

std::vector<PreflightNote> preflight(const Ticket &ticket, const LabelDocument &document,
                                     const LabelRenderer &renderer, const CutPlan &plan,
                                     const std::vector<PpdPaper> &papers)
{
    std::vector<PreflightNote> notes;
    addPageNotes(notes, ticket, document, renderer, papers);
    if (plan.effects().mirror && !isTransparent(ticket))
        notes.push_back({PreflightKind::Mirrored,
                         {},
                         PreflightText::tr("The labels are printed mirrored, which is readable only through "
                                           "transparent tape.")});
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

Result<void, QString> checkDrawing(const Ticket &ticket, const LabelDocument &document)
{
    std::vector<int> undrawable;
    std::ranges::copy_if(ticket.pages.pages, std::back_inserter(undrawable),
                         [&](int page) { return !document.drawingFault(page).isEmpty(); });
    if (undrawable.empty())
        return {};
    return undrawableSentence(document, undrawable);
}

QJsonArray preflightJson(const std::vector<PreflightNote> &notes)
{
    QJsonArray list;
    for (const PreflightNote &note : notes) {
        QJsonArray pages;
        for (const int page : note.pages)
            pages.append(page + 1);
        QJsonObject object{{QStringLiteral("kind"), kindKey(note.kind)},
                           {QStringLiteral("pages"), pages},
                           {QStringLiteral("text"), note.sentence}};
        if (note.remedy)
            object[QStringLiteral("remedy")] =
                QString::fromUtf8(note.remedy->option.name + '=' + note.remedy->option.value);
        list.append(object);
    }
    return list;
}

} // namespace setup
} // namespace host
