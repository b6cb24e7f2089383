// SPDX-License-Identifier: Apache-2.0
#include "TestPanel.h"

#include <platform/KeyWindow.h>
#include <platform/Log.h>
#include <ppd/PDEUtilsMethod13.h>
#include <tests/support/PpdBuilder.h>
#include <tests/support/TestDialog.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using platform::NotificationCenter;
using test_support::PpdBuilder;
using test_support::TestDialog;
using test_support::TestPanel;

namespace {

const QString viewDidUpdate = QStringLiteral("NSViewDidUpdateTrackingAreasNotification");

class BasePDETest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir(m_folder.path()).mkpath(QStringLiteral("Resources")));
        writeLayout();
        m_bundle = platform::Bundle::open(m_folder.path(), {});
        usePpd(PpdBuilder().allOptions());
    }

    void TearDown() override { platform::setKeyWindowQuery({}); }

    void usePpd(const PpdBuilder &builder)
    {
        m_dialog = std::make_shared<TestDialog>(builder.openMarked());
        m_panel = TestPanel::initWithCallback(m_dialog, m_bundle);
        m_ppd = m_dialog->ppdFile();
    }

    QString layoutPath() const { return m_folder.filePath(QStringLiteral("Resources/OptionPDE.ui")); }

    void writeLayout() const
    {
        QFile file(layoutPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(
            "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"view\"><property name=\"geometry\"><rect>"
            "<x>0</x><y>0</y><width>488</width><height>282</height></rect></property></widget></ui>");
    }

    std::unique_ptr<PDEChoiceList> choicesOf(const char *keyword) const
    {
        return PDEUtilsMethod13::arrayFromPPDOption(ppdFindOption(m_ppd, keyword));
    }

    QTemporaryDir m_folder;
    std::shared_ptr<const platform::Bundle> m_bundle;
    std::shared_ptr<TestDialog> m_dialog;
    std::shared_ptr<TestPanel> m_panel;
    ppd_file_t *m_ppd = nullptr;
};

} // namespace

TEST_F(BasePDETest, TakesWhatTheDialogOffersInOrder)
{
    TestDialog &dialog = *m_dialog;
    dialog.asked.clear();
    const auto panel = TestPanel::initWithCallback(m_dialog, m_bundle);
    ASSERT_TRUE(panel);
    EXPECT_EQ(dialog.asked, (QStringList{QStringLiteral("printSession"), QStringLiteral("printSettings"),
                                         QStringLiteral("printSettings"), QStringLiteral("pageFormat"),
                                         QStringLiteral("PMPrinter"), QStringLiteral("ppdFile")}));
    EXPECT_EQ(TestPanel::initWithCallback(nullptr, m_bundle), nullptr);
    EXPECT_EQ(TestPanel::initWithCallback(m_dialog, nullptr), nullptr);
}

TEST_F(BasePDETest, RemembersTheDeviceUri)
{
    EXPECT_STREQ(m_panel->deviceURIString(), "");
    m_dialog->printer.deviceURI = QStringLiteral("usb://Kvelland/LX900");
    EXPECT_STREQ(TestPanel::initWithCallback(m_dialog, m_bundle)->deviceURIString(), "usb://Kvelland/LX900");
    m_dialog->printer.deviceURI = QString(254, u'x');
    EXPECT_EQ(qstrlen(TestPanel::initWithCallback(m_dialog, m_bundle)->deviceURIString()), 254U);
    m_dialog->printer.deviceURI = QString(255, u'x');
    EXPECT_STREQ(TestPanel::initWithCallback(m_dialog, m_bundle)->deviceURIString(), "");
    m_dialog->printer.deviceURI = QString(QChar(0xd800));
    EXPECT_STREQ(TestPanel::initWithCallback(m_dialog, m_bundle)->deviceURIString(), "");
}

TEST_F(BasePDETest, AnswersTheProtocolWithItsDefaults)
{
    EXPECT_EQ(m_panel->panelKind(), QStringLiteral("jp.co.vendor.printer.cups.pde.OptionPDEKind"));
    EXPECT_TRUE(m_panel->shouldHide());
    EXPECT_TRUE(m_panel->shouldPrint());
    EXPECT_FALSE(m_panel->shouldShowHelp());
    EXPECT_EQ(m_panel->summaryInfo(), std::nullopt);
    EXPECT_EQ(m_panel->indexForSummary(QString()), 0);
    m_panel->printWindowWillClose(nullptr);
    m_panel->PPDOptionKeyValueDidChange(QStringLiteral("KvMirror"), QStringLiteral("ON"));
    EXPECT_EQ(m_panel->hooks, QStringList());
    EXPECT_EQ(m_panel->supportedPPDOptionKeys(), std::nullopt);
    EXPECT_EQ(m_panel->hooks, QStringList{QStringLiteral("setValuesToKey")});
}

TEST_F(BasePDETest, TurnsTheDialogsCallsIntoHooks)
{
    m_panel->willShow();
    EXPECT_EQ(m_panel->hooks, (QStringList{QStringLiteral("initSetTitleTexts"), QStringLiteral("initUI"),
                                           QStringLiteral("setPDEItems")}));
    m_panel->hooks.clear();
    QString error;
    EXPECT_TRUE(m_panel->restoreValuesAndReturnError(&error));
    EXPECT_EQ(m_panel->hooks, (QStringList{QStringLiteral("setPDEItems2"), QStringLiteral("setPDEItems")}));
    m_panel->hooks.clear();
    EXPECT_TRUE(m_panel->saveValuesAndReturnError(&error));
    EXPECT_EQ(m_panel->hooks, QStringList{QStringLiteral("setValuesToKey")});
    EXPECT_EQ(error, QString());
}

TEST_F(BasePDETest, TheNameIsLookedUpOnce)
{
    const QString name = m_panel->panelName();
    EXPECT_EQ(name, QStringLiteral("OP_PANEL_NAME")) << "a bundle without texts shows the key";
    EXPECT_EQ(m_panel->panelName().constData(), name.constData());
}

TEST_F(BasePDETest, LoadsTheViewOnce)
{
    QWidget *const view = m_panel->panelView();
    ASSERT_TRUE(view);
    EXPECT_EQ(m_panel->panelView(), view);
    EXPECT_EQ(m_panel->hooks, QStringList{QStringLiteral("awakeFromNib")});
}

TEST_F(BasePDETest, AFailedLoadIsToldAndTriedAgain)
{
    QStringList log;
    platform::setLogSink([&log](const QString &text) { log.append(text); });
    ASSERT_TRUE(QFile::remove(layoutPath()));
    EXPECT_EQ(m_panel->panelView(), nullptr);
    ASSERT_EQ(log.size(), 1);
    EXPECT_TRUE(log[0].contains(QStringLiteral("OptionPDE.ui")) && log[0].contains(m_folder.path()))
        << log[0].toStdString();
    writeLayout();
    m_panel->outletsConnect = false;
    EXPECT_EQ(m_panel->panelView(), nullptr);
    EXPECT_EQ(log.value(1), QStringLiteral("no outlet"));
    EXPECT_EQ(m_panel->hooks, QStringList());
    m_panel->outletsConnect = true;
    EXPECT_NE(m_panel->panelView(), nullptr);
    platform::setLogSink({});
}

TEST_F(BasePDETest, OnlyTheExactTapeTypeIsAPaperLabelPrinter)
{
    EXPECT_FALSE(m_panel->isDZPrinter());
    for (const char *value : {"dz", "DZ ", " DZ", "", "LX", "DZX", "Dz"}) {
        usePpd(PpdBuilder().attribute("KvTapeType", value));
        EXPECT_FALSE(m_panel->isDZPrinter()) << '"' << value << '"';
    }
    usePpd(PpdBuilder().paperLabels());
    EXPECT_TRUE(m_panel->isDZPrinter());
    m_dialog = std::make_shared<TestDialog>(nullptr);
    m_panel = TestPanel::initWithCallback(m_dialog, m_bundle);
    EXPECT_FALSE(m_panel->isDZPrinter());
    EXPECT_EQ(m_panel->fileVerString(), std::nullopt);
}

TEST_F(BasePDETest, ReadsTheFilesVersion)
{
    EXPECT_EQ(m_panel->fileVerString(), PDEUtilsMethod13::ppdAttrValStr(m_ppd, "FileVersion"));
    EXPECT_NE(m_panel->fileVerString(), std::nullopt);
}

TEST_F(BasePDETest, HeatShrinkTubeIsToldByTheNamesBeginning)
{
    struct Row {
        const char *name;
        bool heatShrink;
    };
    for (const Row &row : std::initializer_list<Row>{{"HS", true},
                                                     {"HS11mm", true},
                                                     {"hs11", false},
                                                     {"H", false},
                                                     {"", false},
                                                     {"24HS", false},
                                                     {"XHS", false}}) {
        m_dialog->setPaper(QLatin1String(row.name));
        EXPECT_EQ(m_panel->isHSTapePage(), row.heatShrink) << row.name;
        m_dialog->setTicketPaper(QLatin1String(row.name));
        EXPECT_EQ(m_panel->isHSTapePage(), row.heatShrink) << row.name << " from the ticket";
    }
    m_dialog->format.paper.reset();
    EXPECT_FALSE(m_panel->isHSTapePage());
}

TEST_F(BasePDETest, HeatShrinkTubeIsAskedOfTheDialogEachTime)
{
    m_dialog->asked.clear();
    (void)m_panel->isHSTapePage();
    m_dialog->asked.sort();
    EXPECT_EQ(m_dialog->asked, (QStringList{QStringLiteral("pageFormat"), QStringLiteral("printSettings")}));
}

TEST_F(BasePDETest, ChoosingTellsTheDialogAndRefreshesTheSelections)
{
    const auto choices = choicesOf("KvHalfCut");
    EXPECT_EQ(m_panel->selectionForItem(2, QStringLiteral("KvHalfCut"), choices.get(), 0x1000), nullptr);
    EXPECT_EQ(m_panel->selectionForItem(-1, QStringLiteral("KvHalfCut"), choices.get(), 0x1000), nullptr);
    EXPECT_EQ(m_panel->selectionForItem(0, QStringLiteral("KvHalfCut"), nullptr, 0x1000), nullptr);
    const PDEChoiceList empty;
    EXPECT_EQ(m_panel->selectionForItem(0, QStringLiteral("KvHalfCut"), &empty, 0x1000), nullptr);
    EXPECT_TRUE(m_dialog->changes.empty());
    EXPECT_EQ(m_panel->hooks, QStringList());

    EXPECT_EQ(m_panel->selectionForItem(1, QStringLiteral("KvHalfCut"), choices.get(), 0x1000),
              (*choices)[1].get());
    ASSERT_EQ(m_dialog->changes.size(), 1U);
    EXPECT_EQ(m_dialog->changes[0], TestDialog::Change(QStringLiteral("KvHalfCut"), QStringLiteral("ON")));
    EXPECT_EQ(m_panel->hooks, QStringList{QStringLiteral("updateMarkedSelections 4096")});
}

TEST_F(BasePDETest, TheIndexOfTheMarkedChoice)
{
    const auto choices = choicesOf("KvHalfCut");
    const QString key = QStringLiteral("KvHalfCut");
    m_dialog->mark("KvHalfCut", "ON");
    EXPECT_EQ(m_panel->indexOfMarkedOption(choices.get(), key), 1);
    EXPECT_EQ(m_panel->indexOfMarkedOption(nullptr, key), 0);
    const PDEChoiceList empty;
    EXPECT_EQ(m_panel->indexOfMarkedOption(&empty, key), 0);
    EXPECT_EQ(m_panel->indexOfMarkedOption(choicesOf("KvCutLabel").get(), key), 0)
        << "marked, but not in the list";
    EXPECT_EQ(m_panel->indexOfMarkedOption(choices.get(), QStringLiteral("KvUnknown")), -1);
    m_dialog = std::make_shared<TestDialog>(PpdBuilder().allOptions().open());
    m_panel = TestPanel::initWithCallback(m_dialog, m_bundle);
    EXPECT_EQ(m_panel->indexOfMarkedOption(choices.get(), key), -1) << "nothing is marked";
}

TEST_F(BasePDETest, TheIndexOfTheDefaultChoice)
{
    EXPECT_EQ(BasePDE13_v400_::indexOfDefaultOption(nullptr), 0);
    const PDEChoiceList empty;
    EXPECT_EQ(BasePDE13_v400_::indexOfDefaultOption(&empty), 0);
    usePpd(PpdBuilder().allOptions().defaultChoice("KvHalfCut", "ON").defaultChoice("KvMirror", "SOME"));
    EXPECT_EQ(BasePDE13_v400_::indexOfDefaultOption(choicesOf("KvHalfCut").get()), 1);
    EXPECT_EQ(BasePDE13_v400_::indexOfDefaultOption(choicesOf("KvMirror").get()), -1);
}

TEST_F(BasePDETest, ADefaultIsMarkedOnlyWhereNothingIs)
{
    const QString key = QStringLiteral("KvHalfCut");
    const PpdBuilder builder =
        PpdBuilder().allOptions().defaultChoice("KvHalfCut", "ON").defaultChoice("KvMirror", "SOME");
    m_dialog = std::make_shared<TestDialog>(builder.open());
    m_panel = TestPanel::initWithCallback(m_dialog, m_bundle);
    m_ppd = m_dialog->ppdFile();
    const auto choices = choicesOf("KvHalfCut");
    ppd_option_t *const option = ppdFindOption(m_ppd, "KvHalfCut");

    EXPECT_EQ(m_panel->setDefaultChoices(nullptr, choices.get(), "KvHalfCut", key), nullptr);
    EXPECT_TRUE(m_dialog->changes.empty());
    const auto fresh = m_panel->setDefaultChoices(option, choices.get(), "KvHalfCut", key);
    ASSERT_TRUE(fresh);
    EXPECT_EQ(fresh->size(), 2U);
    ASSERT_EQ(m_dialog->changes.size(), 1U);
    EXPECT_EQ(m_dialog->changes[0], TestDialog::Change(key, QStringLiteral("ON")));

    m_dialog->mark("KvHalfCut", "OFF");
    EXPECT_EQ(m_panel->setDefaultChoices(option, choices.get(), "KvHalfCut", key), nullptr);
    EXPECT_EQ(m_dialog->changes.size(), 1U) << "a marking is never overridden";

    const auto mirror = choicesOf("KvMirror");
    EXPECT_EQ(m_panel->setDefaultChoices(ppdFindOption(m_ppd, "KvMirror"), mirror.get(), "KvMirror",
                                         QStringLiteral("KvMirror")),
              nullptr);
    EXPECT_EQ(m_dialog->changes.size(), 1U) << "without a default nothing is marked";
}

TEST_F(BasePDETest, ADefaultWhoseKeywordIsNoTextIsNotHandedOn)
{
    m_dialog = std::make_shared<TestDialog>(PpdBuilder().allOptions().open());
    m_panel = TestPanel::initWithCallback(m_dialog, m_bundle);
    m_ppd = m_dialog->ppdFile();
    // libcups rejects such keywords when it reads a file; a record made otherwise may still hold them.
    ppd_option_t *const option = ppdFindOption(m_ppd, "KvHalfCut");
    for (char *keyword : {option->choices[0].choice, option->defchoice})
        qstrncpy(keyword, "\xdf", PPD_MAX_NAME);
    const auto choices = choicesOf("KvHalfCut");
    ASSERT_EQ(BasePDE13_v400_::indexOfDefaultOption(choices.get()), 0);
    EXPECT_EQ(m_panel->setDefaultChoices(option, choices.get(), "KvHalfCut", QStringLiteral("KvHalfCut")),
              nullptr);
    EXPECT_TRUE(m_dialog->changes.empty());
}

TEST_F(BasePDETest, TheListOfOptionsIsKept)
{
    EXPECT_EQ(m_panel->supportedOptions(), std::nullopt);
    m_panel->setSupportedOptions(QStringList{QStringLiteral("KvMirror")});
    EXPECT_EQ(m_panel->supportedOptions(), QStringList{QStringLiteral("KvMirror")});
}

TEST_F(BasePDETest, AViewThatFitsResizesTheDialogAtOnce)
{
    QWidget *const view = m_panel->panelView();
    platform::setKeyWindowQuery([] { return 500.0; });
    m_panel->setViewFrameSize(488, 403);
    EXPECT_EQ(view->size(), QSize(488, 403));
    EXPECT_EQ(m_dialog->resizes, 1);
}

TEST_F(BasePDETest, AViewThatDoesNotFitYetWaitsForTheLayout)
{
    QWidget *const view = m_panel->panelView();
    platform::setKeyWindowQuery([] { return 500.0; });
    m_panel->setViewFrameSize(488, 404);
    EXPECT_EQ(view->height(), 404);
    EXPECT_EQ(m_dialog->resizes, 0) << "500 is not more than 404 and 96";
    NotificationCenter::defaultCenter().post(viewDidUpdate, &view);
    EXPECT_EQ(m_dialog->resizes, 0) << "another view";
    NotificationCenter::defaultCenter().post(viewDidUpdate, view);
    EXPECT_EQ(m_dialog->resizes, 1);
    NotificationCenter::defaultCenter().post(viewDidUpdate, view);
    EXPECT_EQ(m_dialog->resizes, 1) << "once for each registration";
}

TEST_F(BasePDETest, WithoutAKeyWindowOnlyTheViewIsResized)
{
    QWidget *const view = m_panel->panelView();
    platform::setKeyWindowQuery([] { return std::optional<double>(); });
    m_panel->setViewFrameSize(488, 200);
    NotificationCenter::defaultCenter().post(viewDidUpdate, view);
    EXPECT_EQ(view->height(), 200);
    EXPECT_EQ(m_dialog->resizes, 0);
}

TEST_F(BasePDETest, ADialogThatDoesNotFollowKeepsTheViewsSize)
{
    QWidget *const view = m_panel->panelView();
    m_dialog->canResize = false;
    platform::setKeyWindowQuery([] { return 5000.0; });
    m_panel->setViewFrameSize(488, 200);
    EXPECT_EQ(view->height(), 282);
    EXPECT_EQ(m_dialog->resizes, 0);
}

TEST_F(BasePDETest, AnEndedPanelIsNotToldAnyMore)
{
    const std::size_t before = NotificationCenter::defaultCenter().observerCount();
    QWidget *const view = m_panel->panelView();
    platform::setKeyWindowQuery([] { return 0.0; });
    m_panel->setViewFrameSize(488, 200);
    EXPECT_EQ(NotificationCenter::defaultCenter().observerCount(), before + 1);
    const void *const sender = view;
    m_panel.reset();
    EXPECT_EQ(NotificationCenter::defaultCenter().observerCount(), before);
    NotificationCenter::defaultCenter().post(viewDidUpdate, sender);
    EXPECT_EQ(m_dialog->resizes, 0);
}

TEST_F(BasePDETest, AViewThatWentWithItsWindowIsNotDeletedTwice)
{
    auto window = std::make_unique<QWidget>();
    m_panel->panelView()->setParent(window.get());
    window.reset();
    m_panel->setViewFrameSize(488, 200);
    m_panel.reset();
}

TEST_F(BasePDETest, APanelEndsWithItsViewFirstAndItsBundleLast)
{
    QStringList ended;
    const auto watched = [&ended](const auto &object, const QString &name) {
        return std::shared_ptr<std::remove_reference_t<decltype(*object)>>(
            object.get(), [&ended, name](auto *) { ended.append(name); });
    };
    m_panel = TestPanel::initWithCallback(watched(m_dialog, QStringLiteral("callback object")),
                                          watched(m_bundle, QStringLiteral("bundle")));
    QObject::connect(m_panel->panelView(), &QObject::destroyed,
                     [&ended] { ended.append(QStringLiteral("view")); });
    m_panel.reset();
    EXPECT_EQ(ended, (QStringList{QStringLiteral("view"), QStringLiteral("callback object"),
                                  QStringLiteral("bundle")}));
}
