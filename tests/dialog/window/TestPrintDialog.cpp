// SPDX-License-Identifier: Apache-2.0
#include "DialogFixture.h"

#include <dialog/job/SummaryPage.h>
#include <dialog/widgets/Banner.h>

#include <platform/NotificationCenter.h>
#include <tests/support/Waiting.h>

#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>

namespace {

class PrintDialogTest : public DialogTest {};

} // namespace

TEST_F(PrintDialogTest, OpensWithThePpdsDefaultsOnPanelAndStrip)
{
    open();
    auto *const tabs = window->findChild<QTabWidget *>();
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_EQ(tabs->tabText(0), QStringLiteral("Cut Options"));
    EXPECT_TRUE(box("mCutEveryChkBx")->isChecked());
    EXPECT_TRUE(box("mHalfCutChkBx")->isChecked());
    EXPECT_FALSE(box("mMirrorPrintChkBx")->isChecked());
    EXPECT_TRUE(stripInWords().startsWith(QStringLiteral("Labels: 3 \u00b7 Pieces: 3 \u00b7 Tape: 182 mm")))
        << stripInWords().toStdString();
}

TEST_F(PrintDialogTest, AClickOnThePanelIsSeenOnTheStripAtOnce)
{
    open();
    click(box("mCutEveryChkBx"));
    EXPECT_EQ(state->recorded().choice(QStringLiteral("KvAutoTapeCut")), QStringLiteral("OFF"));
    EXPECT_TRUE(stripInWords().contains(QStringLiteral("Pieces: 1"))) << stripInWords().toStdString();
    EXPECT_TRUE(stripInWords().contains(QStringLiteral("Half cut between"))) << stripInWords().toStdString();
    click(box("mMirrorPrintChkBx"));
    EXPECT_TRUE(stripInWords().contains(QStringLiteral("mirrored")));
    click(box("mRemoveBlkSpaceChkBx"));
    awaitStrip();
    EXPECT_TRUE(stripInWords().contains(QStringLiteral("Tape: 62."))) << stripInWords().toStdString();
}

TEST_F(PrintDialogTest, ThePagesOfALongDocumentAreCheckedBeforeAnybodyWaitsForIt)
{
    const std::vector<QByteArray> pages(5'000, "[0 0 170 68]");
    auto opened =
        host::LabelDocument::open(sandbox.write(QStringLiteral("long.pdf"), pdfWithPageBoxes(pages)));
    ASSERT_TRUE(opened) << opened.error().message.toStdString();
    const std::shared_ptr<const host::LabelDocument> document = std::move(opened).value();
    host::SetupKeeper printer(makeSetup({}));
    dialog::PrintDialog print(document, printer, sender, dialog::RequestedSettings());
    print.show();
    EXPECT_TRUE(test_support::waitUntil([&] { return document->isPageSizeKnown(4'999); }));
}

TEST_F(PrintDialogTest, BlankIsMeasuredAndDrawnWithoutTheMainThread)
{
    auto opened = host::LabelDocument::open(documentPath);
    ASSERT_TRUE(opened) << opened.error().message.toStdString();
    const std::shared_ptr<const host::LabelDocument> document = std::move(opened).value();
    keeper = std::make_unique<host::SetupKeeper>(
        makeSetup(QStringLiteral(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle")));
    window = std::make_unique<dialog::PrintDialog>(document, *keeper, sender, dialog::RequestedSettings());
    window->show();
    awaitStrip();
    for (int time = 0; time < 3; ++time) {
        click(box("mRemoveBlkSpaceChkBx"));
        awaitStrip();
        const bool isRemoved = time % 2 == 0;
        EXPECT_EQ(stripInWords().contains(QStringLiteral("Tape: 182 mm")), !isRemoved)
            << stripInWords().toStdString();
    }
    EXPECT_EQ(document->drawingCount(), 0);
    window.reset();
}

TEST_F(PrintDialogTest, AnotherPaperIsMarkedAnnouncedAndShown)
{
    open();
    QStringList heard;
    auto &center = platform::NotificationCenter::defaultCenter();
    center.addObserver(this, host::DialogState::paperDidChange, nullptr, [&](const platform::Notification &) {
        heard.append(state->ppd().markedChoice(QStringLiteral("PageSize")).value());
    });
    auto *const papers = find<QListWidget>(QStringLiteral("Paper"));
    QTest::keyClick(papers, Qt::Key_End);
    center.removeObserver(this);
    EXPECT_EQ(heard, QStringList{QStringLiteral("DC52x75R")});
    EXPECT_EQ(state->paper()->name, QStringLiteral("DC52x75R"));
    EXPECT_NEAR(state->paper()->height, 212.598, 1e-3);
    EXPECT_EQ(state->recorded().choice(QStringLiteral("PageSize")), QStringLiteral("DC52x75R"));
    EXPECT_TRUE(stripInWords().contains(QStringLiteral("Tape: 225 mm"))) << stripInWords().toStdString();
    // Blank ends cannot be removed from die-cut labels.
    EXPECT_FALSE(box("mRemoveBlkSpaceChkBx")->isEnabled());
}

TEST_F(PrintDialogTest, CopiesAndPagesCountAndAreChecked)
{
    open();
    auto *const copies = window->findChild<QSpinBox *>();
    copies->setFocus();
    copies->selectAll();
    QTest::keyClicks(copies, QStringLiteral("4"));
    QApplication::processEvents();
    EXPECT_TRUE(stripInWords().contains(QStringLiteral("Labels: 12"))) << stripInWords().toStdString();

    QLineEdit *pages = nullptr;
    for (QLineEdit *const edit : window->findChildren<QLineEdit *>()) {
        if (edit->placeholderText().contains(QStringLiteral("1-3")))
            pages = edit;
    }
    ASSERT_TRUE(pages);
    QTest::keyClicks(pages, QStringLiteral("2-3"));
    QApplication::processEvents();
    EXPECT_TRUE(stripInWords().contains(QStringLiteral("Labels: 8")));
    EXPECT_EQ(line(QStringLiteral("Printing"), QStringLiteral("Pages")), QStringLiteral("2-3"));

    QTest::keyClicks(pages, QStringLiteral("9"));
    QApplication::processEvents();
    EXPECT_FALSE(button("Print")->isEnabled());
    window->print();
    EXPECT_TRUE(window->error()->contains(QStringLiteral("last page is 3")))
        << window->error()->toStdString();
    EXPECT_TRUE(sender.jobs.empty());
}

TEST_F(PrintDialogTest, PrintSavesAsksAndSends)
{
    open();
    click(box("mCutAndEndChkBx"));
    click(button("Print"));
    EXPECT_EQ(window->result(), QDialog::Accepted);
    EXPECT_FALSE(window->isVisible());
    ASSERT_EQ(sender.jobs.size(), 1U);
    // The job carries all nine options, as the panel saves them.
    for (const char *const keyword : {"KvCutLabel", "KvCutAtEnd", "KvMirror", "KvAutoTapeCut", "KvHalfCut",
                                      "KvChainPrint", "KvSpecialTape", "KvRemoveBlkSpace", "KvCutMark"})
        EXPECT_FALSE(sender.sentOption(keyword).isEmpty()) << keyword;
    EXPECT_EQ(sender.sentOption("PageSize"), QByteArray("W24H60"));
}

TEST_F(PrintDialogTest, EnterPrintsAndEscapeCancels)
{
    open();
    QTest::keyClick(window.get(), Qt::Key_Return);
    EXPECT_EQ(sender.jobs.size(), 1U);
    open();
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(window->result(), QDialog::Rejected);
    EXPECT_EQ(sender.jobs.size(), 1U);
}

TEST_F(PrintDialogTest, CancelSendsNothing)
{
    open();
    click(box("mHalfCutChkBx"));
    click(button("Cancel"));
    EXPECT_EQ(window->result(), QDialog::Rejected);
    EXPECT_TRUE(sender.jobs.empty());
}

TEST_F(PrintDialogTest, AFailureLeavesTheDialogOpenAsSet)
{
    open();
    click(box("mHalfCutChkBx"));
    sender.problem = QStringLiteral("The disk is full");
    click(button("Print"));
    EXPECT_TRUE(window->isVisible());
    bool told = false;
    for (const dialog::Banner *const banner : window->findChildren<dialog::Banner *>())
        told = told || (banner->isVisible() && banner->message() == *sender.problem);
    EXPECT_TRUE(told);
    EXPECT_FALSE(box("mHalfCutChkBx")->isChecked());

    sender.problem.reset();
    click(button("Print"));
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(window->error());
}

TEST_F(PrintDialogTest, TheSummaryHasThePanelsLinesInTheirOrderBesideTheDialogsOwn)
{
    open();
    EXPECT_EQ(line(QStringLiteral("Printing"), QStringLiteral("Printer")), QStringLiteral("Kvelland Tape 9"));
    EXPECT_EQ(line(QStringLiteral("Printing"), QStringLiteral("Paper")),
              QStringLiteral("Tape 24 mm x 60 mm"));
    EXPECT_EQ(line(QStringLiteral("Printing"), QStringLiteral("Copies")), QStringLiteral("1"));
    EXPECT_EQ(line(QStringLiteral("Label strip"), QStringLiteral("Tape")), QStringLiteral("182 mm"));
    const std::vector<dialog::SummarySection> sections = window->summary();
    ASSERT_EQ(sections.size(), 3U);
    EXPECT_EQ(sections[1].title, QStringLiteral("Cut Options"));
    EXPECT_EQ(sections[1].lines.size(), 8U);

    chooseTab("Summary");
    auto *const list = window->findChild<dialog::SummaryPage *>();
    ASSERT_EQ(list->topLevelItemCount(), 3);
    for (std::size_t i = 0; i < sections[1].lines.size(); ++i)
        EXPECT_EQ(list->topLevelItem(1)->child(static_cast<int>(i))->text(0), sections[1].lines[i].first);
    const QString text = host::summaryInPlainText(sections);
    EXPECT_TRUE(text.contains(QStringLiteral("  Paper: Tape 24 mm x 60 mm\n"))) << text.toStdString();
}

TEST_F(PrintDialogTest, ASearchFindsPapersAndChangesNothing)
{
    QByteArray text = tapePpd();
    QByteArray choices;
    for (int i = 10; i < 20; ++i) {
        const QByteArray name = "X" + QByteArray::number(i);
        choices += "*PageSize " + name + "/Extra " + name + ": \"\"\n";
        text += "*PaperDimension " + name + "/Extra " + name + ": \"100 200\"\n";
    }
    text.replace("*CloseUI: *PageSize\n", choices + "*CloseUI: *PageSize\n");
    sandbox.write(QStringLiteral("many.ppd"), text);
    auto ppd = host::PpdFile::open(sandbox.path(QStringLiteral("many.ppd")));
    ASSERT_TRUE(ppd) << ppd.error().message.toStdString();
    show(std::make_unique<host::PrinterSetup>(host::Destination(), std::move(ppd).value(),
                                              host::SetupRequest(), host::PanelSource()));
    auto *const search = find<QLineEdit>(QStringLiteral("Search papers"));
    auto *const papers = find<QListWidget>(QStringLiteral("Paper"));
    ASSERT_TRUE(search && search->isVisible());
    QTest::keyClicks(search, QStringLiteral("remov 52"));
    QStringList shown;
    for (int row = 0; row < papers->count(); ++row) {
        if (!papers->item(row)->isHidden())
            shown.append(papers->item(row)->text());
    }
    EXPECT_EQ(shown, (QStringList{QStringLiteral("Custom size\u2026"), QStringLiteral("52 mm wide"),
                                  QStringLiteral("Removable 52 mm x 75 mm")}));
    EXPECT_EQ(state->recorded().choice(QStringLiteral("PageSize")), QStringLiteral("W24H60"));
}

TEST_F(PrintDialogTest, GoesOnWithoutAPanelAndSaysSo)
{
    open(QStringLiteral("/nowhere"));
    // The cut options are among the printer's other options then.
    EXPECT_EQ(window->findChild<QTabWidget *>()->count(), 3);
    bool told = false;
    for (const dialog::Banner *const banner : window->findChildren<dialog::Banner *>())
        told = told || (banner->isVisible() && banner->message().contains(QStringLiteral("no such folder")));
    EXPECT_TRUE(told);
    click(button("Print"));
    EXPECT_EQ(sender.jobs.size(), 1U);
}

TEST_F(PrintDialogTest, ThePanelHearsWhenItsPageComesToTheFront)
{
    open(QStringLiteral(KV_BINARY_DIR "/tests/bundles/good/KVLXDZOptions.bundle"));
    chooseTab("Page preview");
    chooseTab("One box");
    // When it is filled for the first time, when the window appears, and when one comes back to it.
    EXPECT_EQ(line(QStringLiteral("One box"), QStringLiteral("Heard")).count(QStringLiteral("willShow")), 3);
}

TEST_F(PrintDialogTest, GivesThePanelsViewBack)
{
    open(QStringLiteral(KV_BINARY_DIR "/tests/bundles/good/KVLXDZOptions.bundle"));
    QWidget *const view = keeper->setup()->panels().front()->view();
    EXPECT_TRUE(view->isVisible());
    window.reset();
    EXPECT_EQ(view->parent(), nullptr);
    // A click that comes after the dialog is gone still finds a state to change, and no dialog to refresh.
    view->resize(100, 30);
    QTest::mouseClick(view, Qt::LeftButton, {}, {8, 15});
    QApplication::processEvents();
}

TEST_F(PrintDialogTest, APrintingThatFailedLeavesTheStripAsItWas)
{
    // Saving special tape turns the half cut off; a later job may use another tape.
    open();
    const QString before = stripInWords();
    click(box("mSpecialTapeChkBx"));
    sender.problem = QStringLiteral("The printer is on fire.");
    window->print();
    EXPECT_EQ(window->error(), *sender.problem);
    click(box("mSpecialTapeChkBx"));
    EXPECT_EQ(stripInWords(), before);
    sender.problem.reset();
    window->print();
    ASSERT_EQ(sender.jobs.size(), 2U);
    EXPECT_TRUE(before.startsWith(sender.jobs.back())) << sender.jobs.back().toStdString();
}
