// SPDX-License-Identifier: Apache-2.0
// Conflicts are reported next to the controls of their choices.
#include "DialogFixture.h"

#include <dialog/options/ConflictBanner.h>
#include <dialog/paper/PaperChooser.h>
#include <dialog/window/PanelPage.h>
#include <tests/support/Waiting.h>

#include <QLabel>
#include <QListWidget>

namespace {

class ConflictNotesTest : public DialogTest {
protected:
    void openWith(const QByteArray &constraints)
    {
        sandbox.write(QStringLiteral("conflicts.ppd"), tapePpd() + constraints);
        auto ppd = host::PpdFile::open(sandbox.path(QStringLiteral("conflicts.ppd")));
        ASSERT_TRUE(ppd) << ppd.error().message.toStdString();
        ppd.value().markDefaults();
        show(std::make_unique<host::PrinterSetup>(
            host::Destination(), std::move(ppd).value(), host::SetupRequest(),
            host::PanelSource{QStringLiteral(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle"), {}}));
    }

    void choosePaper(const char *text) const
    {
        auto *const list = find<QListWidget>(QStringLiteral("Paper"));
        list->setCurrentItem(list->findItems(QLatin1String(text), Qt::MatchExactly).value(0));
        QApplication::processEvents();
    }

    /// The conflict notes within the widget.
    static QString told(const QWidget *place)
    {
        QStringList shown;
        for (const QLabel *const label : place->findChildren<QLabel *>()) {
            if (label->isVisible() && label->text().contains(QStringLiteral(" conflict.")))
                shown.append(label->text());
        }
        return shown.join(u'\n');
    }
    QString toldAtPapers() const { return told(window->findChild<dialog::PaperChooser *>()); }
    QString toldAtPanel() const { return told(window->findChild<dialog::PanelPage *>()); }
};

const QByteArray paperAndHalfCut = "*UIConstraints: *PageSize DC52x75 *KvHalfCut ON\n"
                                   "*UIConstraints: *KvHalfCut ON *PageSize DC52x75\n";

} // namespace

TEST_F(ConflictNotesTest, StandAtThePapersAndAtThePanelWhileThereAreAny)
{
    openWith(paperAndHalfCut);
    EXPECT_EQ(toldAtPapers(), QString());
    EXPECT_EQ(toldAtPanel(), QString());
    choosePaper("Labels 52 mm x 75 mm");
    const QString sentence =
        QStringLiteral("\"Media Size: Labels 52 mm x 75 mm\" and \"Half Cut: On\" conflict.");
    EXPECT_EQ(toldAtPapers(), sentence);
    EXPECT_EQ(toldAtPanel(), sentence);
    EXPECT_EQ(find<QListWidget>(QStringLiteral("Paper"))->accessibleDescription(), sentence);
    click(box("mHalfCutChkBx"));
    EXPECT_EQ(toldAtPapers(), QString());
    EXPECT_EQ(toldAtPanel(), QString());
    EXPECT_EQ(find<QListWidget>(QStringLiteral("Paper"))->accessibleDescription(), QString());
}

TEST_F(ConflictNotesTest, AreOnlyAboutWhatIsChosenThere)
{
    openWith("*UIConstraints: *KvHalfCut ON *KvMirror ON\n*UIConstraints: *KvMirror ON *KvHalfCut ON\n");
    click(box("mMirrorPrintChkBx"));
    EXPECT_EQ(toldAtPapers(), QString());
    EXPECT_NE(toldAtPanel(), QString());
}

TEST_F(ConflictNotesTest, TheNoteIsWholeAndThePanelTooAndOfManySentencesTheFirstAreTold)
{
    QByteArray constraints;
    for (const char *const option : {"KvHalfCut ON", "KvAutoTapeCut ON", "KvCutAtEnd ON"})
        constraints += "*UIConstraints: *PageSize DC52x75 *" + QByteArray(option) + "\n";
    openWith(constraints);
    choosePaper("Removable 52 mm x 75 mm");
    // The document's size is offered now, which takes another round to find its place.
    test_support::turnEventLoop();
    const int before = window->width();
    choosePaper("Labels 52 mm x 75 mm");
    test_support::turnEventLoop();
    EXPECT_EQ(window->width(), before);
    const auto *const page = window->findChild<dialog::PanelPage *>();
    EXPECT_EQ(told(page).count(QStringLiteral(" conflict.")), 2);
    EXPECT_TRUE(toldAtPapers().endsWith(QStringLiteral("\n\u2026"))) << toldAtPapers().toStdString();
    for (const QWidget *const place :
         {static_cast<const QWidget *>(page),
          static_cast<const QWidget *>(window->findChild<dialog::PaperChooser *>())}) {
        for (const QLabel *const label : place->findChildren<QLabel *>()) {
            const bool isWrapped = label->isVisible() && label->wordWrap();
            EXPECT_TRUE(!isWrapped || label->height() >= label->heightForWidth(label->width()))
                << label->text().toStdString();
        }
    }
    // The panel is not scrolled because of it.
    EXPECT_TRUE(page->rect().contains(QRect(box("mHalfCutChkBx")->mapTo(page, QPoint()), QSize(1, 1))));
}

TEST_F(ConflictNotesTest, OfThousandsTheBannerTellsTheFirst)
{
    openWith({});
    std::vector<host::Conflict> conflicts;
    for (int i = 0; i < 5000; ++i) {
        const host::ConflictSide side{QStringLiteral("Option"), QStringLiteral("Option"), QString::number(i)};
        conflicts.push_back({{side, side}});
    }
    auto *const banner = window->findChild<dialog::ConflictBanner *>();
    ASSERT_TRUE(banner);
    banner->setConflicts({conflicts.begin(), conflicts.begin() + 100}, {});
    EXPECT_EQ(banner->message().count(QStringLiteral(" conflict.")), 100);
    EXPECT_FALSE(banner->message().endsWith(u'\u2026'));
    banner->setConflicts(conflicts, {});
    EXPECT_EQ(banner->message().count(QStringLiteral(" conflict.")), 100);
    EXPECT_TRUE(banner->message().endsWith(QStringLiteral("\n\u2026")));
}

TEST_F(ConflictNotesTest, TheNoteFitsFromTheBeginning)
{
    openWith({});
    const QByteArray paper = state->paper()->name.value().toUtf8();
    openWith("*UIConstraints: *PageSize " + paper + " *KvAutoTapeCut ON\n");
    ASSERT_NE(toldAtPanel(), QString());
    for (const QLabel *const label : window->findChildren<QLabel *>()) {
        const bool isNote = label->isVisible() && told(label->parentWidget()) == label->text();
        EXPECT_TRUE(!isNote || label->text().isEmpty() ||
                    label->height() == label->heightForWidth(label->width()))
            << label->height() << " " << label->text().toStdString();
    }
}
