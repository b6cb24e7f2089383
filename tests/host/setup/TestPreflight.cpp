// SPDX-License-Identifier: Apache-2.0
// What is reported of documents before they are printed, on the sample printer's tape of 24 x 60 mm.
#include <host/setup/Preflight.h>
#include <host/setup/SetupJob.h>

#include <tests/samples/RawPdf.h>
#include <tests/samples/Sandbox.h>

#include <gtest/gtest.h>

#include <QJsonObject>

using host::PreflightKind;

namespace {

const QByteArray mark = "0 g 30 60 10 10 re f";
const RawPage markedLabel{"/MediaBox [0 0 68.03 170.08]", mark};
const RawPage blank{"/MediaBox [0 0 68.03 170.08]"};
const RawPage a4{"/MediaBox [0 0 595 842]", "0 g 300 400 100 100 re f"};
/// The printer cannot print the outermost 3 mm at the sides.
const RawPage framed{"/MediaBox [0 0 68.03 170.08]", "2 2 64 166 re S"};

class PreflightTest : public testing::Test {
protected:
    using Notes = std::vector<host::PreflightNote>;

    Notes notesOn(const std::vector<RawPage> &pages, const std::vector<host::JobChoice> &choices = {},
                  int copies = 1)
    {
        return notesOn(sandbox.write(QStringLiteral("document.pdf"), rawPdf(pages)), choices, copies);
    }

    static Notes notesOn(const QString &path, const std::vector<host::JobChoice> &choices = {},
                         int copies = 1)
    {
        const auto document = host::LabelDocument::open(path);
        EXPECT_TRUE(document);
        auto ppd = host::PpdFile::open(QStringLiteral(KV_SOURCE_DIR "/resources/ppd/kvelland-lx900.ppd"));
        EXPECT_TRUE(ppd);
        const host::PrinterSetup setup({}, std::move(ppd).value(), {choices},
                                       host::PanelSource{QStringLiteral(KV_BINARY_DIR "/bin"), {}});
        host::JobRequest request{{}, QStringLiteral("title"), {{}, copies, host::Collate::Yes}};
        for (int page = 0; page < document.value()->pageCount(); ++page)
            request.pages.pages.push_back(page);
        const host::Ticket ticket = ticketFor(setup, *document.value(), request);
        const host::LabelRenderer renderer(*document.value(), *ticket.layout);
        return preflight(ticket, *document.value(), renderer, makePlan(ticket, *document.value(), renderer),
                         setup.ppd().papers());
    }

    /// The kinds with their pages, counted from 1.
    static QStringList kinds(const Notes &notes)
    {
        QStringList kinds;
        for (const auto &each : preflightJson(notes)) {
            QStringList texts{each.toObject()[QStringLiteral("kind")].toString()};
            for (const host::PreflightNote &note : notes) {
                if (note.sentence == each.toObject()[QStringLiteral("text")].toString() &&
                    !note.pages.empty())
                    texts.append(host::pageList(note.pages));
            }
            kinds.append(texts.join(u' '));
        }
        return kinds;
    }

    const Sandbox sandbox;
};

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(u'|', Qt::SkipEmptyParts);
}

TEST_F(PreflightTest, ReportsWhatWastesTape)
{
    const struct {
        const char *what;
        std::vector<RawPage> pages;
        const char *kinds;
    } rows[] = {
        {"a label", {markedLabel}, ""},
        {"a large page", {markedLabel, a4, a4}, "shrunk 2–3"},
        {"content at the edge", {framed, markedLabel}, "cut-off 1"},
        {"a blank page", {markedLabel, blank, markedLabel, blank}, "blank 2, 4"},
        {"all of it", {framed, a4, blank}, "shrunk 2|cut-off 1|blank 3"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(kinds(notesOn(row.pages)), words(row.kinds)) << row.what;
}

TEST_F(PreflightTest, AShrunkPageIsReportedWithItsSize)
{
    const Notes notes = notesOn({a4});
    ASSERT_EQ(notes.size(), 1U);
    // The printable width is 51 of 595 points.
    EXPECT_TRUE(notes[0].sentence.contains(QStringLiteral(" 9 %"))) << notes[0].sentence.toStdString();
}

TEST_F(PreflightTest, OffersThePaperOnWhichNothingIsShrunk)
{
    // 20 x 70 mm: fits on tapes of 24 mm and 100 mm, and on larger ones.
    const RawPage longer{"/MediaBox [0 0 57 198]", mark};
    const Notes notes = notesOn({markedLabel, longer});
    ASSERT_EQ(notes.size(), 1U);
    ASSERT_TRUE(notes[0].remedy);
    EXPECT_EQ(notes[0].remedy->option, (host::NamedValue{"PageSize", "24x100mm"}));
    EXPECT_EQ(notes[0].remedy->text, QStringLiteral("Use \"Tape 24 mm x 100 mm\""));
    const Notes huge = notesOn({a4});
    ASSERT_EQ(huge.size(), 1U);
    EXPECT_FALSE(huge[0].remedy) << "no tape is that wide";
}

TEST_F(PreflightTest, OffersToLeaveOutBlankPages)
{
    const Notes notes = notesOn({markedLabel, blank, markedLabel, markedLabel, blank});
    ASSERT_EQ(notes.size(), 1U);
    ASSERT_TRUE(notes[0].remedy);
    EXPECT_EQ(notes[0].remedy->option, (host::NamedValue{"page-ranges", "1,3,4"}));
    const Notes all = notesOn({blank, blank});
    ASSERT_EQ(all.size(), 1U);
    EXPECT_FALSE(all[0].remedy) << "nothing would be left";
}

TEST_F(PreflightTest, WithoutScalingALargePageIsCutOff)
{
    const RawPage dark{"/MediaBox [0 0 595 842]", "0 g 100 100 395 642 re f"};
    const host::JobChoice actualSize{"print-scaling", "none", host::Origin::You};
    EXPECT_EQ(kinds(notesOn({dark}, {actualSize})), words("cut-off 1"));
}

TEST_F(PreflightTest, ALonelyLabelAfterPiecesOfSeveral)
{
    const host::JobChoice everyTwo{"KvCutLabel", "2", host::Origin::You};
    EXPECT_EQ(kinds(notesOn({markedLabel, markedLabel, markedLabel, markedLabel, markedLabel}, {everyTwo})),
              words("lonely-label"));
    EXPECT_EQ(kinds(notesOn({markedLabel, markedLabel, markedLabel, markedLabel}, {everyTwo})),
              QStringList());
    EXPECT_EQ(kinds(notesOn({markedLabel}, {everyTwo})), QStringList());
}

TEST_F(PreflightTest, PagesThatFitInAnotherOrientation)
{
    const RawPage lying{"/MediaBox [0 0 170.08 68.03]", "0 g 60 30 10 10 re f"};
    const auto orientation = [](const char *value) {
        return host::JobChoice{"orientation-requested", value, host::Origin::You};
    };
    // Without a request, pages are turned as they fit.
    EXPECT_EQ(kinds(notesOn({markedLabel, lying})), QStringList());
    const Notes upright = notesOn({markedLabel, lying}, {orientation("3")});
    EXPECT_EQ(kinds(upright), words("orientation 2"));
    ASSERT_TRUE(upright[0].remedy);
    EXPECT_EQ(upright[0].remedy->option, (host::NamedValue{"orientation-requested", "5"}));
    const Notes landscape = notesOn({markedLabel, lying}, {orientation("4")});
    EXPECT_EQ(kinds(landscape), words("orientation 1"));
    ASSERT_TRUE(landscape[0].remedy);
    EXPECT_EQ(landscape[0].remedy->option, (host::NamedValue{"orientation-requested", "3"}));
    // A page that is too large in any orientation is shrunk.
    EXPECT_EQ(kinds(notesOn({RawPage{"/MediaBox [0 0 595 600]", mark}}, {orientation("4")})),
              words("shrunk 1"));
}

TEST_F(PreflightTest, MirroredLabelsOnTapeThatIsNotTransparent)
{
    const host::JobChoice mirrored{"KvMirror", "ON", host::Origin::You};
    EXPECT_EQ(kinds(notesOn({markedLabel}, {mirrored})), words("mirrored"));
    const host::JobChoice byFilters{"mirror", "true", host::Origin::You};
    EXPECT_EQ(kinds(notesOn({markedLabel}, {byFilters})), words("mirrored"));
    const struct {
        const char *medium;
        bool isTransparent;
    } rows[] = {{"Transparent", true}, {"clear-tape", true}, {"nuclear", false}, {"white", false}};
    for (const auto &row : rows) {
        const host::JobChoice type{"media-type", row.medium, host::Origin::You};
        EXPECT_EQ(kinds(notesOn({markedLabel}, {mirrored, type})).isEmpty(), row.isTransparent) << row.medium;
    }
}

TEST_F(PreflightTest, MoreThanFiveMetresOfTape)
{
    EXPECT_EQ(kinds(notesOn({markedLabel}, {}, 83)), QStringList());
    EXPECT_EQ(kinds(notesOn({markedLabel}, {}, 84)), words("long-tape"));
}

TEST_F(PreflightTest, NothingIsReportedOfTheSampleDocument)
{
    EXPECT_EQ(kinds(notesOn(QStringLiteral(KV_SOURCE_DIR "/resources/documents/labels.pdf"))), QStringList());
}

TEST(PreflightPages, AreListedAsRanges)
{
    EXPECT_EQ(host::pageList({0}), QStringLiteral("1"));
    EXPECT_EQ(host::pageList({0, 1, 2, 4, 6, 7}), QString::fromUtf8("1–3, 5, 7–8"));
    EXPECT_EQ(host::pageList({}), QString());
}

} // namespace
