// SPDX-License-Identifier: Apache-2.0
#include "SamplePdf.h"
#include "SamplePpd.h"

#include <host/CutPlanWords.h>
#include <host/Units.h>
#include <host/dialog/Banner.h>
#include <host/dialog/PrintDialog.h>
#include <host/dialog/SummaryPage.h>

#include <platform/NotificationCenter.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

using dialog::PrintDialog;
using dialog::PrintRequest;

namespace {

constexpr double mm = host::pointsPerMillimetre;

/// The dialog on a sandboxed printer and document, with the real bundle or none.
class PrintDialogTest : public testing::Test {
protected:
    void SetUp() override
    {
        std::vector<SamplePage> pages;
        for (int page = 0; page < 3; ++page)
            pages.push_back({QSizeF(60, 24) * mm, [](QPainter &painter) {
                                 painter.fillRect(QRectF(10 * mm, 8 * mm, 20 * mm, 8 * mm), Qt::black);
                             }});
        documentPath = writePdf(sandbox, QStringLiteral("labels.pdf"), pages);
    }

    PrintRequest request()
    {
        PrintRequest request;
        request.state = std::make_shared<host::DialogState>(openTapePpd(sandbox));
        state = request.state.get();
        auto document = host::LabelDocument::open(documentPath);
        EXPECT_TRUE(document);
        request.document = std::move(document).value();
        request.paper = state->ppd().markedPaper().value();
        platform::Paper paper;
        paper.name = QString::fromUtf8(request.paper.name);
        paper.height = request.paper.size.height();
        state->setPaper(paper);
        return request;
    }

    void open(const QString &bundle = QStringLiteral(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle"))
    {
        PrintRequest wanted = request();
        auto loaded = host::PanelBundle::load(bundle, {});
        ASSERT_TRUE(loaded) << loaded.error().message.toStdString();
        wanted.panels = std::make_unique<host::PanelSession>(std::move(loaded).value(),
                                                             std::make_shared<host::PanelHost>(wanted.state));
        wanted.claimedKeywords = wanted.panels->claimKeywords();
        ASSERT_TRUE(wanted.panels->firstPanel());
        ASSERT_TRUE(wanted.panels->firstPanel()->panelView());
        show(std::move(wanted));
    }

    void show(PrintRequest wanted)
    {
        window = std::make_unique<PrintDialog>(std::move(wanted), [this](const host::PrintJob &job) {
            sent.push_back(host::cutPlanFigures(job.plan()));
            sentOptions = job.state().recorded();
            return sendProblem;
        });
        window->show();
        QApplication::processEvents();
    }

    template<typename Widget>
    Widget *find(const QString &accessibleName = {}) const
    {
        for (Widget *const widget : window->findChildren<Widget *>()) {
            if (accessibleName.isEmpty() || widget->accessibleName() == accessibleName)
                return widget;
        }
        return nullptr;
    }

    QCheckBox *box(const char *name) const { return window->findChild<QCheckBox *>(QLatin1String(name)); }

    QPushButton *button(const char *text) const
    {
        for (QPushButton *const candidate : window->findChildren<QPushButton *>()) {
            if (candidate->text().remove(u'&') == QLatin1String(text))
                return candidate;
        }
        return nullptr;
    }

    static void click(QAbstractButton *target)
    {
        ASSERT_TRUE(target);
        const int x = target->layoutDirection() == Qt::RightToLeft ? target->width() - 8 : 8;
        QTest::mouseClick(target, Qt::LeftButton, {}, {x, target->height() / 2});
        QApplication::processEvents();
    }

    QString stripInWords() const
    {
        return find<QWidget>(QStringLiteral("Label strip"))->accessibleDescription();
    }

    void chooseTab(const char *title) const
    {
        auto *const tabs = window->findChild<QTabWidget *>();
        for (int i = 0; i < tabs->count(); ++i) {
            if (tabs->tabText(i).remove(u'&') == QLatin1String(title))
                QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(i).center());
        }
        QApplication::processEvents();
        EXPECT_EQ(tabs->tabText(tabs->currentIndex()).remove(u'&'), QLatin1String(title));
    }

    QString line(const QString &section, const QString &title) const
    {
        for (const dialog::SummarySection &candidate : window->summary()) {
            for (const auto &[lineTitle, value] : candidate.lines) {
                if (candidate.title == section && lineTitle == title)
                    return value;
            }
        }
        return QStringLiteral("(no such line)");
    }

    Sandbox sandbox;
    QString documentPath;
    host::DialogState *state = nullptr;
    std::vector<QString> sent;
    host::RecordedChoices sentOptions;
    std::optional<QString> sendProblem;
    std::unique_ptr<PrintDialog> window;
};

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
    EXPECT_TRUE(stripInWords().contains(QStringLiteral("Tape: 62."))) << stripInWords().toStdString();
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
    // Blank cannot be taken off die-cut labels.
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
    EXPECT_FALSE(window->print());
    EXPECT_TRUE(window->problem().contains(QStringLiteral("last page is 3")))
        << window->problem().toStdString();
    EXPECT_TRUE(sent.empty());
}

TEST_F(PrintDialogTest, PrintSavesAsksAndSends)
{
    open();
    click(box("mCutAndEndChkBx"));
    click(button("Print"));
    EXPECT_EQ(window->result(), QDialog::Accepted);
    EXPECT_FALSE(window->isVisible());
    ASSERT_EQ(sent.size(), 1U);
    // All nine options are recorded when the panel has saved.
    for (const char *const keyword : {"KvCutLabel", "KvCutAtEnd", "KvMirror", "KvAutoTapeCut", "KvHalfCut",
                                      "KvChainPrint", "KvSpecialTape", "KvRemoveBlkSpace", "KvCutMark"})
        EXPECT_TRUE(sentOptions.choice(QLatin1String(keyword))) << keyword;
    EXPECT_EQ(sentOptions.choice(QStringLiteral("PageSize")), QStringLiteral("W24H60"));
}

TEST_F(PrintDialogTest, EnterPrintsAndEscapeCancels)
{
    open();
    QTest::keyClick(window.get(), Qt::Key_Return);
    EXPECT_EQ(sent.size(), 1U);
    open();
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(window->result(), QDialog::Rejected);
    EXPECT_EQ(sent.size(), 1U);
}

TEST_F(PrintDialogTest, CancelSendsNothing)
{
    open();
    click(box("mHalfCutChkBx"));
    click(button("Cancel"));
    EXPECT_EQ(window->result(), QDialog::Rejected);
    EXPECT_TRUE(sent.empty());
}

TEST_F(PrintDialogTest, AFailureLeavesTheDialogOpenAsSet)
{
    open();
    click(box("mHalfCutChkBx"));
    sendProblem = QStringLiteral("The disk is full");
    click(button("Print"));
    EXPECT_TRUE(window->isVisible());
    bool told = false;
    for (const dialog::Banner *const banner : window->findChildren<dialog::Banner *>())
        told = told || (banner->isVisible() && banner->message() == *sendProblem);
    EXPECT_TRUE(told);
    EXPECT_FALSE(box("mHalfCutChkBx")->isChecked());

    sendProblem.reset();
    click(button("Print"));
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->problem(), QString());
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
    const QString text = dialog::summaryInPlainText(sections);
    EXPECT_TRUE(text.contains(QStringLiteral("  Paper: Tape 24 mm x 60 mm\n"))) << text.toStdString();
}

TEST_F(PrintDialogTest, ASearchFindsPapersAndChangesNothing)
{
    QByteArray text = tapePpd();
    for (int i = 10; i < 20; ++i) {
        const QByteArray name = "X" + QByteArray::number(i);
        text += "*PaperDimension " + name + "/Extra " + name + ": \"100 200\"\n";
    }
    sandbox.write(QStringLiteral("many.ppd"), text);
    auto ppd = host::PpdFile::open(sandbox.path(QStringLiteral("many.ppd")));
    ASSERT_TRUE(ppd) << ppd.error().message.toStdString();
    PrintRequest wanted = request();
    ppd.value().markDefaults();
    wanted.state = std::make_shared<host::DialogState>(std::move(ppd).value());
    state = wanted.state.get();
    show(std::move(wanted));
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
    PrintRequest wanted = request();
    wanted.panelProblem = QStringLiteral("The cut options cannot be shown.");
    show(std::move(wanted));
    EXPECT_EQ(window->findChild<QTabWidget *>()->count(), 2);
    bool told = false;
    for (const dialog::Banner *const banner : window->findChildren<dialog::Banner *>())
        told =
            told || (banner->isVisible() && banner->message().startsWith(QStringLiteral("The cut options")));
    EXPECT_TRUE(told);
    click(button("Print"));
    EXPECT_EQ(sent.size(), 1U);
}

TEST_F(PrintDialogTest, ThePanelHearsWhenItsPageComesToTheFront)
{
    open(QStringLiteral(KV_BINARY_DIR "/tests/bundles/good/KVLXDZOptions.bundle"));
    chooseTab("Page preview");
    chooseTab("One box");
    EXPECT_EQ(line(QStringLiteral("One box"), QStringLiteral("Heard")).count(QStringLiteral("willShow")), 2);
}

TEST_F(PrintDialogTest, GivesThePanelsViewBack)
{
    auto bundle =
        host::PanelBundle::load(QStringLiteral(KV_BINARY_DIR "/tests/bundles/good/KVLXDZOptions.bundle"), {});
    ASSERT_TRUE(bundle);
    PrintRequest wanted = request();
    wanted.panels = std::make_unique<host::PanelSession>(std::move(bundle).value(),
                                                         std::make_shared<host::PanelHost>(wanted.state));
    const PDEPanelList panels = wanted.panels->panels().value();
    QWidget *const view = panels.front()->panelView();
    show(std::move(wanted));
    EXPECT_TRUE(view->isVisible());
    window.reset();
    EXPECT_EQ(panels.front()->panelView()->parent(), nullptr);
    // A click that comes after the dialog is gone still finds a state to change, and no dialog to refresh.
    view->resize(100, 30);
    QTest::mouseClick(view, Qt::LeftButton, {}, {8, 15});
    QApplication::processEvents();
}

TEST_F(PrintDialogTest, EveryFieldHasANameForScreenReaders)
{
    open();
    for (QWidget *const widget : window->findChildren<QWidget *>()) {
        const bool reachable = widget->focusPolicy() & Qt::TabFocus && widget->isVisibleTo(window.get());
        // The panel names its own controls.
        const bool own = !box("mCutEveryChkBx")->parentWidget()->isAncestorOf(widget);
        if (!reachable || !own || widget->parentWidget()->inherits("QAbstractSpinBox"))
            continue;
        const QAccessibleInterface *const spoken = QAccessible::queryAccessibleInterface(widget);
        ASSERT_TRUE(spoken) << widget->metaObject()->className();
        const bool named = !spoken->text(QAccessible::Name).isEmpty();
        EXPECT_TRUE(named || widget->inherits("QTabBar") || widget->inherits("QScrollArea"))
            << widget->metaObject()->className() << " " << widget->objectName().toStdString();
    }
}

TEST_F(PrintDialogTest, TheStripScrollsByKeysAndWheel)
{
    open();
    auto *const strip = qobject_cast<QAbstractScrollArea *>(find<QWidget>(QStringLiteral("Label strip")));
    window->resize(500, 500);
    QApplication::processEvents();
    ASSERT_GT(strip->horizontalScrollBar()->maximum(), 0);
    strip->setFocus();
    QTest::keyClick(strip, Qt::Key_Right);
    const int afterKey = strip->horizontalScrollBar()->value();
    EXPECT_GT(afterKey, 0);
    QWheelEvent wheel({50, 50}, strip->mapToGlobal(QPointF(50, 50)), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(strip->viewport(), &wheel);
    EXPECT_GT(strip->horizontalScrollBar()->value(), afterKey);
}

TEST_F(PrintDialogTest, IsDrawnInLightAndDarkAndRightToLeft)
{
    const QString pictures = QStringLiteral(KV_BINARY_DIR "/test-results/pictures");
    ASSERT_TRUE(QDir().mkpath(pictures));
    const QPalette usual = QApplication::palette();
    QPalette dark(QColor(0x30, 0x33, 0x38), QColor(0x25, 0x28, 0x2c));
    dark.setColor(QPalette::Base, QColor(0x1d, 0x1f, 0x22));
    struct Row {
        const char *name;
        const QPalette *palette;
        Qt::LayoutDirection direction;
    };
    for (const Row &row : {Row{"light", &usual, Qt::LeftToRight}, Row{"dark", &dark, Qt::LeftToRight},
                           Row{"right-to-left", &usual, Qt::RightToLeft}}) {
        QApplication::setPalette(*row.palette);
        QApplication::setLayoutDirection(row.direction);
        open();
        click(box("mCutEveryChkBx"));
        click(box("mChainPrintChkBx"));
        const QImage picture = window->grab().toImage();
        EXPECT_TRUE(picture.save(pictures + u'/' + QLatin1String(row.name) + QStringLiteral(".png")));
        // The tape stays white, and the window's ground is the theme's.
        EXPECT_EQ(QColor(picture.pixel(2, picture.height() - 3)), row.palette->color(QPalette::Window))
            << row.name;
    }
    QApplication::setPalette(usual);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}
