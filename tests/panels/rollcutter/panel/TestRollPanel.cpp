// SPDX-License-Identifier: Apache-2.0
// The panel in a dialog: what its controls show, request and save.
#include "RollPpds.h"

#include <rollcutter/panel/IntervalBox.h>
#include <rollcutter/panel/RollPanel.h>
#include <tests/support/TestDialog.h>

#include <QComboBox>
#include <QRadioButton>
#include <QTest>

using namespace rollcutter;
using test_support::PpdPointer;
using test_support::TestDialog;

namespace {

using Changes = std::vector<TestDialog::Change>;

class RollPanelTest : public testing::Test {
protected:
    void show(PpdPointer ppd, const char *language = "en")
    {
        dialog = std::make_shared<TestDialog>(std::move(ppd));
        panel = std::make_unique<RollPanel>(
            dialog, platform::Bundle::open(QStringLiteral(KV_PROGRAM_FOLDER "/RollCutter.bundle"),
                                           {QString::fromLatin1(language)}));
        view = panel->panelView();
        panel->restoreValuesAndReturnError(nullptr);
        panel->willShow();
    }

    QStringList buttons() const
    {
        QStringList texts;
        for (const QRadioButton *const button : view->findChildren<QRadioButton *>())
            texts.append(button->text());
        return texts;
    }
    QString checkedButton() const
    {
        QStringList texts;
        for (const QRadioButton *const button : view->findChildren<QRadioButton *>()) {
            if (button->isChecked())
                texts.append(button->text());
        }
        return texts.join(u'|');
    }
    void click(const char *text) const
    {
        for (QRadioButton *const button : view->findChildren<QRadioButton *>()) {
            if (button->text() == QLatin1String(text)) {
                button->click();
                return;
            }
        }
        ADD_FAILURE() << "no button " << text;
    }
    QSpinBox *interval() const { return view->findChild<QSpinBox *>(QStringLiteral("interval")); }
    QComboBox *list(const char *keyword) const
    {
        return view->findChild<QComboBox *>(QLatin1String(keyword));
    }

    Changes changesOf(const std::function<void()> &action) const
    {
        dialog->changes.clear();
        action();
        return dialog->changes;
    }
    Changes saved() const
    {
        return changesOf([this] { EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr)); });
    }
    static TestDialog::Change change(const char *keyword, const char *choice)
    {
        return {QString::fromLatin1(keyword), QString::fromLatin1(choice)};
    }

    std::shared_ptr<TestDialog> dialog;
    std::unique_ptr<RollPanel> panel;
    QWidget *view = nullptr;
};

} // namespace

TEST_F(RollPanelTest, ShowsTheMarksAndSavesThem)
{
    show(roll_ppds::openIntervalDriver());
    EXPECT_EQ(buttons(),
              (QStringList{QStringLiteral("Cut after every label"), QStringLiteral("Cut after every"),
                           QStringLiteral("Let me tear"), QStringLiteral("Do not cut"),
                           QStringLiteral("Cut where the printer decides")}));
    EXPECT_EQ(checkedButton(), QStringLiteral("Do not cut"));
    EXPECT_TRUE(dialog->changes.empty()) << "showing a panel changes nothing";
    const Changes all = saved();
    EXPECT_EQ(all, (Changes{change("inPrintMode", "Standard"), change("inCutInterval", "None"),
                            change("inTearInterval", "None"), change("inPrintDensity", "Default"),
                            change("inPrintRate", "Default")}));
    EXPECT_EQ(saved(), all) << "saving twice is saving once";
}

TEST_F(RollPanelTest, AButtonRequestsTheChoicesOfItsSetting)
{
    show(roll_ppds::openIntervalDriver());
    EXPECT_EQ(changesOf([&] { click("Cut after every label"); }),
              (Changes{change("inPrintMode", "Cut"), change("inCutInterval", "1")}));
    EXPECT_EQ(changesOf([&] { click("Cut after every"); }), Changes{change("inCutInterval", "2")});
    EXPECT_EQ(changesOf([&] { interval()->setValue(12); }), Changes{change("inCutInterval", "Custom.12")});
    EXPECT_EQ(changesOf([&] { click("Let me tear"); }), Changes{change("inPrintMode", "Tear")});
    EXPECT_EQ(checkedButton(), QStringLiteral("Let me tear"));
    // The field remembers the number.
    EXPECT_EQ(interval()->value(), 12);
    EXPECT_EQ(changesOf([&] { click("Cut after every"); }), Changes{change("inPrintMode", "Cut")});
    EXPECT_EQ(changesOf([&] { click("Cut where the printer decides"); }),
              Changes{change("inCutInterval", "None")});
    EXPECT_EQ(dialog->marked("inPrintMode"), QStringLiteral("Cut"));
}

TEST_F(RollPanelTest, DisabledControlsSayWhy)
{
    show(roll_ppds::openIntervalDriver());
    const QString reason =
        QStringLiteral("To set the number of labels, select \u201CCut after every \u2026 labels\u201D.");
    EXPECT_FALSE(interval()->isEnabled());
    EXPECT_EQ(interval()->toolTip(), reason);
    EXPECT_EQ(panel->reasonForDisabled(QStringLiteral("inCutInterval")), reason);
    EXPECT_FALSE(list("inTearInterval")->isEnabled());
    click("Cut after every");
    EXPECT_TRUE(interval()->isEnabled());
    EXPECT_TRUE(interval()->toolTip().isEmpty());
    EXPECT_FALSE(panel->reasonForDisabled(QStringLiteral("inCutInterval")));
    click("Let me tear");
    EXPECT_TRUE(list("inTearInterval")->isEnabled());
    EXPECT_FALSE(interval()->isEnabled());
    EXPECT_FALSE(panel->reasonForDisabled(QStringLiteral("NoSuchOption")));
}

TEST_F(RollPanelTest, ListsShowTheTextsOfThePpd)
{
    show(roll_ppds::openCupsDriver("zebra.ppd"));
    QComboBox *const tracking = list("zeMediaTracking");
    ASSERT_TRUE(tracking);
    EXPECT_EQ(tracking->currentText(), QStringLiteral("Non-continuous (Web sensing)"));
    EXPECT_EQ(tracking->count(), 3);
    EXPECT_EQ(changesOf([&] { QTest::keyClick(tracking, Qt::Key_Up); }),
              Changes{change("zeMediaTracking", "Continuous")});
    click("Cut after every label");
    EXPECT_FALSE(list("zeTearOffPosition")->isEnabled());
    EXPECT_EQ(saved()[3], change("zeTearOffPosition", "1000")) << "a disabled option is saved as it is";
}

TEST_F(RollPanelTest, FollowsOtherPartsOfTheDialog)
{
    show(roll_ppds::openIntervalDriver());
    dialog->mark("inPrintMode", "Cut");
    dialog->mark("inCutInterval", "Custom.33");
    panel->PPDOptionKeyValueDidChange(QStringLiteral("inCutInterval"), QStringLiteral("Custom.33"));
    EXPECT_EQ(checkedButton(), QStringLiteral("Cut after every"));
    EXPECT_EQ(interval()->value(), 33);
    // A value that only another program can have set.
    dialog->mark("inTearInterval", "Custom.44");
    panel->willShow();
    EXPECT_EQ(list("inTearInterval")->currentText(), QStringLiteral("44"));
    EXPECT_TRUE(dialog->changes.empty());
}

TEST_F(RollPanelTest, ChecksNoButtonForChoicesOfNoSetting)
{
    show(roll_ppds::cutMedia({{"None", ""}, {"EndOfPage", ""}}).noDefault("CutMedia").open());
    EXPECT_EQ(checkedButton(), QString());
    EXPECT_TRUE(saved().empty());
    click("Cut after every label");
    EXPECT_EQ(checkedButton(), QStringLiteral("Cut after every label"));
    EXPECT_EQ(saved(), Changes{change("CutMedia", "EndOfPage")});
}

TEST_F(RollPanelTest, AppliesChoicesAsTheUserDoes)
{
    show(roll_ppds::openIntervalDriver());
    const auto apply = [&](const PDEChoices &choices) {
        return changesOf([&] { panel->applyUserChoices(choices); });
    };
    EXPECT_EQ(apply({change("inPrintMode", "Cut"), change("inCutInterval", "5")}),
              (Changes{change("inPrintMode", "Cut"), change("inCutInterval", "5")}));
    EXPECT_EQ(checkedButton(), QStringLiteral("Cut after every"));
    EXPECT_EQ(interval()->value(), 5);
    EXPECT_EQ(apply({change("inCutInterval", "5")}), Changes()) << "it is shown already";
    EXPECT_EQ(apply({change("inCutInterval", "Custom.99")}), Changes{change("inCutInterval", "Custom.99")});
    for (const char *const impossible : {"Custom.100", "Custom.0", "Custom.", "Custom.1x", "Every", ""})
        EXPECT_EQ(apply({change("inCutInterval", impossible)}), Changes()) << impossible;
    EXPECT_EQ(apply({change("PageSize", "w288h432")}), Changes());
    // A disabled option receives its choice.
    EXPECT_EQ(apply({change("inTearInterval", "4")}), Changes{change("inTearInterval", "4")});
    EXPECT_EQ(panel->shownChoices().size(), 5U);
}

TEST_F(RollPanelTest, TheSummaryListsWhatHasAnEffect)
{
    show(roll_ppds::openCupsDriver("zebra.ppd"));
    const auto titles = [&](const PDEChoices &choices) {
        return panel->summaryInfoFor(choices)->value(PDESummaryDisplayOrderKey).toStringList();
    };
    EXPECT_EQ(titles({}),
              (QStringList{QStringLiteral("Cutting"), QStringLiteral("Media Tracking"),
                           QStringLiteral("Label Top"), QStringLiteral("Tear-Off Adjust Position"),
                           QStringLiteral("Darkness"), QStringLiteral("Print Rate")}));
    const PDEChoices cutter{change("zePrintMode", "Cutter"), change("zePrintRate", "2")};
    EXPECT_FALSE(titles(cutter).contains(QStringLiteral("Tear-Off Adjust Position")));
    const QVariantMap summary = *panel->summaryInfoFor(cutter);
    EXPECT_EQ(summary[QStringLiteral("Cutting")], QStringLiteral("Cut after every label"));
    EXPECT_EQ(summary[QStringLiteral("Print Rate")], QStringLiteral("2 inches/sec."));
    EXPECT_EQ((*panel->summaryInfo())[QStringLiteral("Cutting")], QStringLiteral("As set on the printer"));

    show(roll_ppds::openIntervalDriver());
    EXPECT_EQ((*panel->summaryInfoFor({change("inPrintMode", "Cut"),
                                       change("inCutInterval", "Custom.25")}))[QStringLiteral("Cutting")],
              QStringLiteral("Cut after every 25 labels"));
}

TEST_F(RollPanelTest, TwoOptionsWithOneTextHaveTwoLines)
{
    show(test_support::PpdBuilder()
             .option("label-mode")
             .option("Darkness")
             .option("cupsDarkness")
             .text("cupsDarkness", "Darkness")
             .openMarked());
    EXPECT_EQ(panel->summaryInfo()->value(PDESummaryDisplayOrderKey).toStringList(),
              (QStringList{QStringLiteral("label-mode"), QStringLiteral("Darkness"),
                           QStringLiteral("Darkness (cupsDarkness)")}));
}

TEST_F(RollPanelTest, APrinterWithoutTheOptionsHasNoControls)
{
    show(test_support::PpdBuilder().openMarked());
    EXPECT_FALSE(panel->supportedPPDOptionKeys());
    EXPECT_TRUE(buttons().isEmpty());
    EXPECT_TRUE(saved().empty());
    EXPECT_EQ(panel->stripEffects({}, {}).cutting, PDECutting::NotConcerned);
    show(nullptr);
    EXPECT_FALSE(panel->supportedPPDOptionKeys());
    EXPECT_TRUE(saved().empty());
}

TEST_F(RollPanelTest, HasAllTextsInNineLanguages)
{
    QSet<QString> names;
    for (const char *const language : {"en", "de", "fr", "es", "it", "nl", "pt", "ja", "zh_CN"}) {
        SCOPED_TRACE(language);
        show(roll_ppds::openCupsDriver("zebra.ppd"), language);
        names.insert(panel->panelName());
        const PanelTexts texts(platform::Bundle::open(QStringLiteral(KV_PROGRAM_FOLDER "/RollCutter.bundle"),
                                                      {QString::fromLatin1(language)}));
        QStringList keys{QStringLiteral("PANEL_NAME"),           QStringLiteral("CUT_TITLE"),
                         QStringLiteral("CUT_EVERY_NUMBER"),     QStringLiteral("INTERVAL_SUFFIX"),
                         QStringLiteral("INTERVAL_NAME"),        QStringLiteral("REASON_INTERVAL"),
                         QStringLiteral("REASON_TEAR_INTERVAL"), QStringLiteral("REASON_TEAR_POSITION"),
                         QStringLiteral("PREVIEW_NAME"),         QStringLiteral("HELP")};
        for (const CutStyleRow &row : cutStyleTable) {
            keys.append(QString::fromLatin1(row.textKey));
            if (row.stripKey)
                keys.append(QString::fromLatin1(row.stripKey));
        }
        for (const QString &key : keys)
            EXPECT_NE(texts.text(key), key);
        EXPECT_TRUE(texts.text(QStringLiteral("CUT_EVERY_NUMBER")).contains(QStringLiteral("%1")));
        EXPECT_TRUE(panel->helpText().contains(QStringLiteral("\n\n")));
    }
    EXPECT_EQ(names.size(), 9);
}

TEST_F(RollPanelTest, ThePreviewShowsTheCutsOfTheSetting)
{
    show(roll_ppds::openCupsDriver("zebra.ppd"));
    auto *const preview = view->findChild<QWidget *>(QStringLiteral("preview"));
    ASSERT_TRUE(preview);
    EXPECT_EQ(preview->accessibleName(), QStringLiteral("Preview of the cuts"));
    EXPECT_EQ(preview->accessibleDescription(), QStringLiteral("As set on the printer"));
    std::vector<QImage> pictures;
    for (const char *const button :
         {"As set on the printer", "Cut after every label", "Let me tear", "Peel off each label"}) {
        click(button);
        EXPECT_EQ(preview->accessibleDescription(), QString::fromLatin1(button));
        pictures.push_back(preview->grab().toImage());
    }
    for (std::size_t one = 0; one < pictures.size(); ++one) {
        for (std::size_t other = one + 1; other < pictures.size(); ++other)
            EXPECT_NE(pictures[one], pictures[other]) << one << ' ' << other;
    }
    // A language that is read from the right has the first label at the right.
    preview->setLayoutDirection(Qt::RightToLeft);
    EXPECT_NE(preview->grab().toImage(), pictures.back());
}

TEST(IntervalBox, StepsThroughItsNumbers)
{
    IntervalBox box({2, 5, 10});
    EXPECT_EQ(box.value(), 2);
    box.stepBy(1);
    EXPECT_EQ(box.value(), 5);
    box.stepBy(5);
    EXPECT_EQ(box.value(), 10);
    box.stepBy(-1);
    EXPECT_EQ(box.value(), 5);
    // Other numbers become the nearest one.
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("7"));
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.value(), 5);
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("9"));
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.value(), 10);
}
