// SPDX-License-Identifier: Apache-2.0
// Whatever shows the job shows what would be sent, however the panel is operated.
#include "DialogFixture.h"

#include <platform/NotificationCenter.h>
#include <platform/PopUpButton.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QListWidget>
#include <QSpinBox>
#include <QTimer>

#include <functional>
#include <set>

namespace {

class OneTruthTest : public DialogTest {
protected:
    void openSample(const char *name)
    {
        auto ppd = host::PpdFile::open(
            QStringLiteral(KV_SOURCE_DIR "/resources/ppd/%1.ppd").arg(QLatin1String(name)));
        ASSERT_TRUE(ppd) << ppd.error().message.toStdString();
        show(std::make_unique<host::PrinterSetup>(
            host::Destination(), std::move(ppd).value(), host::SetupRequest(),
            host::PanelSource{QStringLiteral(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle"), {}}));
    }

    platform::PopUpButton *presets() const { return window->findChild<platform::PopUpButton *>(); }

    /// Opens the pop-up and clicks the picture.
    void pickPreset(int index) const
    {
        QTest::mouseClick(presets(), Qt::LeftButton);
        QAbstractItemView *const list = presets()->view();
        ASSERT_TRUE(QTest::qWaitFor([&] { return list->isVisible(); }, 60'000));
        const QModelIndex item = list->model()->index(index, 0);
        list->scrollTo(item);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(item).center());
        QApplication::processEvents();
    }

    /// Clicks the first paper that matches.
    void choosePaper(const std::function<bool(const host::PpdPaper &)> &isWanted) const
    {
        auto *const papers = find<QListWidget>(QStringLiteral("Paper"));
        for (const host::PpdPaper &paper : keeper->setup()->ppd().papers()) {
            if (!isWanted(paper))
                continue;
            const auto items = papers->findItems(paper.text, Qt::MatchExactly);
            ASSERT_FALSE(items.isEmpty());
            papers->scrollToItem(items.first());
            QTest::mouseClick(papers->viewport(), Qt::LeftButton, {},
                              papers->visualItemRect(items.first()).center());
            QApplication::processEvents();
            return;
        }
        FAIL() << "no such paper";
    }

    QByteArray inTicket(const char *name) const
    {
        for (const host::JobOption &option : window->ticket()->job.options) {
            if (option.name == name)
                return option.value;
        }
        return {};
    }

    /// The strip, the label below it and the summary agree with the ticket.
    void expectAgreement(const std::string &after) const
    {
        const host::Ticket ticket =
            host::ticketFor(*keeper->setup(), *document(), {ticketSettings(), {}, window->ticket()->pages});
        const host::CutPlan plan =
            host::makePlan(ticket, *document(), host::LabelRenderer(*document(), ticket.paper->size));
        const QString words = host::cutPlanFigures(plan) + u' ' + host::cutPlanDescription(plan).join(u' ');
        EXPECT_EQ(stripInWords(), words) << after;
        EXPECT_EQ(line(QStringLiteral("Label strip"), QStringLiteral("Cuts")),
                  host::cutPlanDescription(plan).join(u' '))
            << after;
        EXPECT_EQ(window->ticket()->panel, ticket.panel) << after;
        if (inTicket("KvHalfCut").isEmpty())
            return;
        EXPECT_EQ(line(QStringLiteral("Cut Options"), QStringLiteral("Half Cut")),
                  inTicket("KvHalfCut") == "ON" ? QStringLiteral("Yes") : QStringLiteral("No"))
            << after;
    }

    const host::LabelDocument *document() const
    {
        if (!m_document)
            m_document = host::LabelDocument::open(documentPath).value();
        return m_document.get();
    }
    host::JobSettings ticketSettings() const { return window->ticket()->settings; }

private:
    mutable std::shared_ptr<const host::LabelDocument> m_document;
};

constexpr const char *samples[] = {"kvelland-lx900", "kvelland-lx300", "kvelland-dz500"};

} // namespace

TEST_F(OneTruthTest, APictureOfThePopUpIsSeenEverywhereAndStaysThroughAVisit)
{
    for (const char *const sample : samples) {
        openSample(sample);
        for (int index = 0; index < presets()->count(); ++index) {
            pickPreset(index);
            const std::string after = std::string(sample) + " preset " + std::to_string(index);
            expectAgreement(after);
            const host::PanelSettings chosen = window->ticket()->panel;
            chooseTab("Summary");
            expectAgreement(after + ", summary");
            chooseTab("Cut Options");
            expectAgreement(after + ", back");
            EXPECT_EQ(window->ticket()->panel, chosen) << after;
        }
        window->print();
        EXPECT_EQ(sender.ticket->panel, window->ticket()->panel);
    }
}

TEST_F(OneTruthTest, APictureChosenByKeyIsSeenToo)
{
    openSample("kvelland-lx900");
    presets()->setFocus();
    std::set<QString> seen;
    for (int index = 0; index < presets()->count(); ++index) {
        QTest::keyClick(presets(), index == 0 ? Qt::Key_Home : Qt::Key_Down);
        QApplication::processEvents();
        expectAgreement("key " + std::to_string(index));
        seen.insert(stripInWords());
    }
    EXPECT_GT(seen.size(), 2U);
}

TEST_F(OneTruthTest, AnAutomaticCutThatTheOtherBoxKeepsIsShown)
{
    openSample("kvelland-lx900");
    if (!box("mAutoCutChkBx")->isChecked())
        click(box("mAutoCutChkBx"));
    if (!box("mCutEveryChkBx")->isChecked())
        click(box("mCutEveryChkBx"));
    // Both boxes stand for the automatic cut; the job follows its own.
    click(box("mCutEveryChkBx"));
    ASSERT_TRUE(box("mAutoCutChkBx")->isChecked());
    EXPECT_EQ(inTicket("KvAutoTapeCut"), QByteArray("ON"));
    EXPECT_TRUE(stripInWords().contains(QStringLiteral("Full cut after every")))
        << stripInWords().toStdString();
    expectAgreement("cut every off");
}

TEST_F(OneTruthTest, HeatShrinkPaperIsShownWithoutTheCutsThatItCannotHave)
{
    openSample("kvelland-lx900");
    if (!box("mAutoCutChkBx")->isChecked())
        click(box("mAutoCutChkBx"));
    const QByteArray first = keeper->setup()->paper()->name;
    choosePaper([](const host::PpdPaper &paper) { return paper.name.startsWith("HS"); });
    EXPECT_EQ(inTicket("KvAutoTapeCut"), QByteArray("OFF"));
    EXPECT_FALSE(stripInWords().contains(QStringLiteral("Full cut after every")))
        << stripInWords().toStdString();
    expectAgreement("heat shrink");
    EXPECT_FALSE(keeper->setup()->replacedChoices().isEmpty());
    choosePaper([&](const host::PpdPaper &paper) { return paper.name == first; });
    EXPECT_EQ(inTicket("KvAutoTapeCut"), QByteArray("ON"));
    EXPECT_TRUE(keeper->setup()->replacedChoices().isEmpty());
    expectAgreement("back");
}

TEST_F(OneTruthTest, ABoxToggledByAScreenReaderIsOneThatTheUserClicked)
{
    openSample("kvelland-lx900");
    QCheckBox *const mirror = box("mMirrorPrintChkBx");
    QAccessibleInterface *const spoken = QAccessible::queryAccessibleInterface(mirror);
    ASSERT_TRUE(spoken && spoken->actionInterface());
    spoken->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QApplication::processEvents();
    EXPECT_TRUE(mirror->isChecked());
    EXPECT_EQ(inTicket("KvMirror"), QByteArray("ON"));
    expectAgreement("toggled");
    chooseTab("Page preview");
    chooseTab("Cut Options");
    EXPECT_TRUE(mirror->isChecked());
    EXPECT_EQ(inTicket("KvMirror"), QByteArray("ON"));
}

TEST_F(OneTruthTest, ThePanelIsAsHighAsItsRows)
{
    // Rows that a printer does not have occupy no space, and the picture is directly below the pop-up.
    for (const char *const sample : samples) {
        openSample(sample);
        const QWidget *const view = keeper->setup()->panels().front()->view();
        int bottom = 0;
        for (const QWidget *const child :
             view->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (!child->isHidden() && !child->isWindow()) {
                EXPECT_TRUE(view->rect().contains(child->geometry()))
                    << sample << " " << child->metaObject()->className();
                bottom = qMax(bottom, child->geometry().bottom());
            }
        }
        EXPECT_LE(view->height() - bottom, 26) << sample;
        EXPECT_EQ(view->parentWidget()->height(), view->height()) << sample;
    }
}

TEST_F(OneTruthTest, APanelThatWaitsForRoomHearsWhenItsPageIsLaidOut)
{
    openSample("kvelland-lx900");
    int heard = 0;
    auto &center = platform::NotificationCenter::defaultCenter();
    center.addObserver(this, QStringLiteral("NSViewDidUpdateTrackingAreasNotification"),
                       keeper->setup()->panels().front()->view(),
                       [&](const platform::Notification &) { ++heard; });
    window->resize(window->size() + QSize(40, 40));
    QApplication::processEvents();
    center.removeObserver(this);
    EXPECT_GT(heard, 0);
}

TEST_F(OneTruthTest, AskingForTheSummaryRecordsNothing)
{
    openSample("kvelland-lx900");
    pickPreset(2);
    const auto recorded = state->recorded().pairs();
    for (int turn = 0; turn < 3; ++turn) {
        (void)window->summary();
        QApplication::processEvents();
    }
    EXPECT_EQ(state->recorded().pairs(), recorded);
}

TEST_F(OneTruthTest, TheHeatShrinkWarningComesBeforeTheChoiceIsMarked)
{
    openSample("kvelland-lx900");
    choosePaper([](const host::PpdPaper &paper) { return paper.name.startsWith("HS"); });
    ASSERT_FALSE(box("mAutoCutChkBx")->isChecked());
    QString markedMeanwhile;
    // The alert is modal: it is closed from its own event loop, after the dialog has had its turns.
    QTimer::singleShot(0, window.get(), [&] {
        for (int turn = 0; turn < 10; ++turn)
            QApplication::processEvents();
        markedMeanwhile = state->ppd().markedChoice(QStringLiteral("KvAutoTapeCut")).value();
        auto *const alert = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        ASSERT_TRUE(alert);
        alert->accept();
    });
    click(box("mAutoCutChkBx"));
    EXPECT_EQ(markedMeanwhile, QStringLiteral("OFF"));
    EXPECT_EQ(inTicket("KvAutoTapeCut"), QByteArray("ON"));
    EXPECT_EQ(state->ppd().markedChoice(QStringLiteral("KvAutoTapeCut")), QStringLiteral("ON"));
    expectAgreement("after the warning");
}

TEST_F(OneTruthTest, APresetPickedWhileTheDialogIsAboutToRefreshCountsToo)
{
    openSample("kvelland-dz500");
    int everyLabel = 0;
    for (int index = 0; index < presets()->count(); ++index) {
        pickPreset(index);
        if (inTicket("KvAutoTapeCut") == "ON")
            everyLabel = index;
    }
    pickPreset(everyLabel == 0 ? 1 : 0);
    // The copies are typed, and the key reaches the pop-up before the dialog has refreshed.
    auto *const copies = window->findChild<QSpinBox *>();
    ASSERT_TRUE(copies);
    while (presets()->currentIndex() != everyLabel) {
        copies->stepUp();
        QTest::keyClick(presets(), presets()->currentIndex() < everyLabel ? Qt::Key_Down : Qt::Key_Up);
    }
    QApplication::processEvents();
    EXPECT_EQ(inTicket("KvAutoTapeCut"), QByteArray("ON"));
    EXPECT_EQ(state->ppd().markedChoice(QStringLiteral("KvAutoTapeCut")), QStringLiteral("ON"));
    expectAgreement("pending");
}

TEST_F(OneTruthTest, APanelThatLosesItsViewLeavesADialogThatCloses)
{
    openSample("kvelland-lx900");
    delete keeper->setup()->panels().front()->view();
    window->resize(window->size() + QSize(10, 10));
    QApplication::processEvents();
    chooseTab("Summary");
    window.reset();
}
