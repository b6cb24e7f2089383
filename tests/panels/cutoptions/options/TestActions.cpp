// SPDX-License-Identifier: Apache-2.0
// What the user does, by real mouse and keyboard events, and what may be touched afterwards.
#include "PanelFixture.h"

#include <platform/StaticText.h>

#include <QAbstractItemView>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using test_support::PanelTest;
using test_support::PpdBuilder;

namespace {

class ActionsTest : public PanelTest {
protected:
    void click(OptionKind kind)
    {
        // The indicator lies at the box's left edge.
        QTest::mouseClick(box(kind), Qt::LeftButton, {}, QPoint(8, box(kind)->height() / 2));
    }

    bool isWordGrey() const
    {
        return dynamic_cast<platform::StaticText *>(panel->countWord())->textColor() ==
               platform::ControlTextColor::Disabled;
    }

    /// Presses the alert's button when it comes; answers its texts afterwards.
    struct AlertText {
        bool shown = false;
        QString message;
        QString information;
        QStringList buttons;
        /// What was chosen and marked while the alert was on show.
        std::vector<Change> chosen;
        QString markedCut;
    };
    AlertText clickWithAlert(OptionKind kind)
    {
        AlertText alert;
        QTimer::singleShot(0, box(kind), [this, &alert] {
            auto *const message = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!message)
                return;
            alert = {true, message->text(), message->informativeText(),
                     {},   dialog->changes, marked("KvAutoTapeCut")};
            for (const QAbstractButton *const button : message->buttons())
                alert.buttons.append(button->text());
            QTest::mouseClick(message->buttons().constFirst(), Qt::LeftButton);
        });
        click(kind);
        QCoreApplication::processEvents();
        return alert;
    }

    QString marked(const char *keyword) const { return dialog->marked(keyword); }
};

} // namespace

TEST_F(ActionsTest, AClickChoosesTheOtherChoice)
{
    struct Row {
        OptionKind kind;
        const char *keyword;
    };
    show(everything());
    for (const Row &row : std::initializer_list<Row>{{OptionKind::CutAtEnd, "KvCutAtEnd"},
                                                     {OptionKind::Mirror, "KvMirror"},
                                                     {OptionKind::AutoCut, "KvAutoTapeCut"},
                                                     {OptionKind::CutLabel, "KvAutoTapeCut"},
                                                     {OptionKind::HalfCut, "KvHalfCut"},
                                                     {OptionKind::ChainPrint, "KvChainPrint"},
                                                     {OptionKind::RemoveBlkSpace, "KvRemoveBlkSpace"},
                                                     {OptionKind::CutMark, "KvCutMark"},
                                                     {OptionKind::SpecialTape, "KvSpecialTape"}}) {
        dialog->changes.clear();
        const bool wasOn = box(row.kind)->isChecked();
        click(row.kind);
        EXPECT_EQ(dialog->changes, changes({{row.keyword, wasOn ? "OFF" : "ON"}}));
        EXPECT_EQ(box(row.kind)->isChecked(), !wasOn) << row.keyword;
    }
}

TEST_F(ActionsTest, TheSpaceKeyTicksToo)
{
    show(everything());
    QTest::keyClick(box(OptionKind::HalfCut), Qt::Key_Space);
    EXPECT_EQ(marked("KvHalfCut"), QStringLiteral("ON"));
}

TEST_F(ActionsTest, TwoBoxesEditTheAutomaticCut)
{
    show(everything().defaultChoice("KvAutoTapeCut", "OFF"));
    click(OptionKind::CutLabel);
    EXPECT_EQ(marked("KvAutoTapeCut"), QStringLiteral("ON"));
    EXPECT_EQ(cutEverySelected(), QStringLiteral("ON"));
    EXPECT_EQ(selected(OptionKind::AutoCut), QStringLiteral("OFF")) << "the other row is refreshed later";
    click(OptionKind::AutoCut);
    EXPECT_EQ(selected(OptionKind::AutoCut), QStringLiteral("ON"));
}

TEST_F(ActionsTest, AChoiceThatTheListLacksChangesNothingButTheRulesRun)
{
    show(PpdBuilder().options({"KvCutLabel", "KvSpecialTape"}));
    ASSERT_EQ(panel->choices(OptionKind::AutoCut), nullptr);
    click(OptionKind::CutLabel);
    EXPECT_TRUE(dialog->changes.empty());
    EXPECT_EQ(isEnabled(panel->countField()), box(OptionKind::CutLabel)->isChecked());
}

TEST_F(ActionsTest, ABoxShowsWhatIsMarkedNotWhatWasClicked)
{
    show(everything().choices("KvMirror", {{"OFF", "Off"}}));
    click(OptionKind::Mirror);
    EXPECT_FALSE(box(OptionKind::Mirror)->isChecked()) << "there is no choice to switch it on";
}

TEST_F(ActionsTest, HeatShrinkTubeWarnsWhenAutomaticCuttingIsSwitchedOn)
{
    for (const OptionKind kind : {OptionKind::AutoCut, OptionKind::CutLabel}) {
        show(everything(), "HS11mm");
        const bool wasOn = box(kind)->isChecked();
        if (wasOn)
            box(kind)->setChecked(false);
        const AlertText alert = clickWithAlert(kind);
        EXPECT_TRUE(alert.shown);
        EXPECT_EQ(alert.message, QString());
        EXPECT_EQ(alert.information,
                  bundle()->localizedStringForKey(QStringLiteral("RS_Alrt_AutoCutWithHS")));
        EXPECT_EQ(alert.buttons, QStringList{QStringLiteral("OK")});
        EXPECT_TRUE(alert.chosen.empty()) << "the warning comes before the choice";
        EXPECT_EQ(alert.markedCut, QStringLiteral("OFF"));
        EXPECT_EQ(marked("KvAutoTapeCut"), QStringLiteral("ON")) << "it only warns";
        EXPECT_FALSE(clickWithAlert(kind).shown) << "switching off is harmless";
        EXPECT_FALSE(clickWithAlert(OptionKind::HalfCut).shown) << "so are the other options";
        dialog->setPaper(QStringLiteral("24mm"));
        EXPECT_FALSE(clickWithAlert(kind).shown);
    }
}

TEST_F(ActionsTest, FlagPaperGreysWhatItCannotTake)
{
    show(everything(), "FL21x45");
    panel->enabledCheck_OP();
    EXPECT_FALSE(isEnabled(OptionKind::RemoveBlkSpace));
    EXPECT_FALSE(isEnabled(OptionKind::HalfCut));
    EXPECT_FALSE(isEnabled(OptionKind::SpecialTape));
    EXPECT_FALSE(isEnabled(OptionKind::ChainPrint));
    EXPECT_TRUE(isEnabled(OptionKind::AutoCut));
    EXPECT_TRUE(isEnabled(OptionKind::CutLabel));
}

TEST_F(ActionsTest, OtherPapersOfFixedLengthGreyOnlyBlankSpace)
{
    for (const char *paper : {"DC29x90", "AV20x50", "DCunlisted"}) {
        show(everything(), paper);
        EXPECT_FALSE(isEnabled(OptionKind::RemoveBlkSpace)) << paper;
        for (const OptionKind kind :
             {OptionKind::HalfCut, OptionKind::SpecialTape, OptionKind::ChainPrint, OptionKind::AutoCut})
            EXPECT_TRUE(isEnabled(kind)) << paper;
    }
}

TEST_F(ActionsTest, AfterFlagPaperOnlyTheSpecialTapeRowBringsTheOthersBack)
{
    show(everything(), "FL21x45");
    dialog->setPaper(QStringLiteral("24mm"));
    dialog->postPaperChange();
    EXPECT_TRUE(isEnabled(OptionKind::SpecialTape));
    EXPECT_TRUE(isEnabled(OptionKind::HalfCut));
    EXPECT_TRUE(isEnabled(OptionKind::ChainPrint));

    show(PpdBuilder().options({"KvHalfCut", "KvChainPrint"}), "FL21x45");
    EXPECT_FALSE(isEnabled(OptionKind::HalfCut));
    dialog->setPaper(QStringLiteral("24mm"));
    dialog->postPaperChange();
    EXPECT_FALSE(isEnabled(OptionKind::HalfCut)) << "without that row nothing switches it on again";
}

TEST_F(ActionsTest, SpecialTapeExcludesEveryCut)
{
    show(everything().defaultChoice("KvAutoTapeCut", "ON"));
    ASSERT_TRUE(isEnabled(panel->countField()));
    click(OptionKind::SpecialTape);
    for (const OptionKind kind :
         {OptionKind::AutoCut, OptionKind::ChainPrint, OptionKind::HalfCut, OptionKind::CutLabel})
        EXPECT_FALSE(isEnabled(kind));
    EXPECT_FALSE(isEnabled(panel->countField()));
    EXPECT_FALSE(isEnabled(panel->countStepper()));
    EXPECT_TRUE(isWordGrey());
    EXPECT_TRUE(isEnabled(OptionKind::CutAtEnd));
    EXPECT_TRUE(isEnabled(OptionKind::Mirror));
    EXPECT_TRUE(isEnabled(OptionKind::CutMark));
    EXPECT_EQ(marked("KvAutoTapeCut"), QStringLiteral("ON")) << "excluded, not switched off";
    EXPECT_TRUE(box(OptionKind::CutLabel)->isChecked());

    click(OptionKind::SpecialTape);
    for (const OptionKind kind :
         {OptionKind::AutoCut, OptionKind::ChainPrint, OptionKind::HalfCut, OptionKind::CutLabel})
        EXPECT_TRUE(isEnabled(kind));
    EXPECT_TRUE(isEnabled(panel->countField()));
    EXPECT_FALSE(isWordGrey());
}

TEST_F(ActionsTest, TheCountFollowsItsBox)
{
    show(everything().defaultChoice("KvAutoTapeCut", "ON"));
    click(OptionKind::CutLabel);
    EXPECT_FALSE(isEnabled(panel->countField()));
    EXPECT_FALSE(isEnabled(panel->countStepper()));
    EXPECT_TRUE(isWordGrey());
    click(OptionKind::SpecialTape);
    click(OptionKind::SpecialTape);
    EXPECT_FALSE(isEnabled(panel->countField())) << "the box is still off";
    click(OptionKind::CutLabel);
    EXPECT_TRUE(isEnabled(panel->countField()));
    EXPECT_TRUE(isEnabled(panel->countStepper()));
    EXPECT_FALSE(isWordGrey());
}

TEST_F(ActionsTest, ACountWhoseControlsDisagreeIsLeftAlone)
{
    show(everything().defaultChoice("KvAutoTapeCut", "ON"));
    for (const bool fieldEnabled : {false, true}) {
        panel->countField()->setEnabled(fieldEnabled);
        panel->countStepper()->setEnabled(!fieldEnabled);
        for (const bool on : {false, true}) {
            box(OptionKind::CutLabel)->setChecked(on);
            panel->enabledCheck_OP();
            EXPECT_EQ(isEnabled(panel->countField()), fieldEnabled);
            EXPECT_EQ(isEnabled(panel->countStepper()), !fieldEnabled);
        }
    }
}

TEST_F(ActionsTest, ControlsAreTouchedOnlyWhereTheyChange)
{
    struct Watcher : QObject {
        int changes = 0;
        bool eventFilter(QObject *, QEvent *event) override
        {
            changes += event->type() == QEvent::EnabledChange;
            return false;
        }
    } watcher;
    show(everything());
    for (QWidget *const control : panel->panelView()->findChildren<QWidget *>())
        control->installEventFilter(&watcher);
    panel->enabledCheck_OP();
    panel->enabledCheck_OP();
    EXPECT_EQ(watcher.changes, 0);
    dialog->setPaper(QStringLiteral("DC29x90"));
    panel->enabledCheck_OP();
    EXPECT_EQ(watcher.changes, 1);
}

TEST_F(ActionsTest, TypedCountsAreClampedAtEachKey)
{
    struct Row {
        const char *typed;
        const char *shown;
    };
    show(everything().defaultChoice("KvAutoTapeCut", "ON"));
    for (const Row &row : std::initializer_list<Row>{{"0", "1"},
                                                     {"abc", "1"},
                                                     {"150", "99"},
                                                     {"7", "7"},
                                                     {"007", "7"},
                                                     {"-5", "1"},
                                                     {"99999999999", "99"},
                                                     {"12x", "12"},
                                                     {" 3", "3"}}) {
        panel->countField()->selectAll();
        QTest::keyClicks(panel->countField(), QLatin1String(row.typed).left(1));
        panel->countField()->setText(QLatin1String(row.typed));
        panel->controlTextDidChange(panel->countField());
        EXPECT_EQ(panel->countField()->text(), QLatin1String(row.shown)) << row.typed;
        EXPECT_EQ(marked("KvCutLabel"), QLatin1String(row.shown)) << row.typed;
        EXPECT_EQ(panel->countStepper()->value(), QString::fromLatin1(row.shown).toInt());
    }
}

TEST_F(ActionsTest, KeysTypedIntoTheFieldAreAppliedOneByOne)
{
    show(everything().defaultChoice("KvAutoTapeCut", "ON"));
    QLineEdit *const field = panel->countField();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_2);
    EXPECT_EQ(marked("KvCutLabel"), QStringLiteral("2"));
    QTest::keyClick(field, Qt::Key_5);
    EXPECT_EQ(field->text(), QStringLiteral("25"));
    EXPECT_EQ(marked("KvCutLabel"), QStringLiteral("25"));
    QTest::keyClick(field, Qt::Key_0);
    EXPECT_EQ(field->text(), QStringLiteral("99"));
    EXPECT_EQ(field->cursorPosition(), 2);
    QTest::keyClick(field, Qt::Key_Home);
    QTest::keyClick(field, Qt::Key_Delete);
    EXPECT_EQ(field->text(), QStringLiteral("9"));
    EXPECT_EQ(field->cursorPosition(), 0) << "the cursor stays where the hand is";
    QTest::keyClick(field, Qt::Key_4);
    EXPECT_EQ(field->text(), QStringLiteral("49"));
    EXPECT_EQ(field->cursorPosition(), 1);
    QTest::keyClick(field, Qt::Key_End);
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClick(field, Qt::Key_Backspace);
    EXPECT_EQ(field->text(), QStringLiteral("1"));
    EXPECT_EQ(field->selectedText(), QStringLiteral("1")) << "the next digit replaces what the program wrote";
    QTest::keyClick(field, Qt::Key_8);
    EXPECT_EQ(field->text(), QStringLiteral("8"));
    EXPECT_EQ(marked("KvCutLabel"), QStringLiteral("8"));
}

TEST_F(ActionsTest, OtherFieldsAreNoCounts)
{
    show(everything().counts(0, 9));
    QLineEdit other(QStringLiteral("7"));
    panel->controlTextDidChange(&other);
    panel->controlTextDidChange(nullptr);
    EXPECT_TRUE(dialog->changes.empty());
}

TEST_F(ActionsTest, TheCountsAreThoseOfThePpd)
{
    show(everything().counts(5, 8).defaultChoice("KvAutoTapeCut", "ON"));
    QLineEdit *const field = panel->countField();
    EXPECT_EQ(field->text(), QStringLiteral("5"));
    QTest::keyClick(panel->countStepper(), Qt::Key_Down);
    EXPECT_EQ(field->text(), QStringLiteral("5"));
    for (const char *count : {"6", "7", "8", "8"}) {
        QTest::mouseClick(panel->countStepper(), Qt::LeftButton, {}, QPoint(4, 4));
        EXPECT_EQ(field->text(), QLatin1String(count));
        EXPECT_EQ(marked("KvCutLabel"), QLatin1String(count));
    }
    show(everything().counts(1, 300).defaultChoice("KvAutoTapeCut", "ON"));
    panel->countStepper()->setValue(299);
    QTest::keyClick(panel->countStepper(), Qt::Key_Up);
    QTest::keyClick(panel->countStepper(), Qt::Key_Up);
    EXPECT_EQ(panel->countField()->text(), QStringLiteral("300"));
}

TEST_F(ActionsTest, TheCountActionRunsNoRules)
{
    show(everything().defaultChoice("KvAutoTapeCut", "ON"));
    dialog->setPaper(QStringLiteral("FL21x45"));
    box(OptionKind::RemoveBlkSpace)->setEnabled(true);
    panel->changeCutEveryValue(panel->countStepper());
    EXPECT_FALSE(isEnabled(OptionKind::RemoveBlkSpace)) << "the refresh that it ends in does";
}

TEST_F(ActionsTest, APresetSetsBoxesAndWritesNothing)
{
    show(everything());
    box(OptionKind::Mirror)->setChecked(true);
    panel->popUp()->showPopup();
    panel->popUp()->view()->setCurrentIndex(
        panel->popUp()->model()->index(panel->popUp()->indexOfItemWithTag(14), 0));
    QTest::keyClick(panel->popUp()->view(), Qt::Key_Return);
    EXPECT_TRUE(box(OptionKind::ChainPrint)->isChecked());
    EXPECT_TRUE(box(OptionKind::CutMark)->isChecked());
    EXPECT_FALSE(box(OptionKind::Mirror)->isChecked());
    EXPECT_TRUE(dialog->changes.empty()) << "it reaches the job when the dialog saves";
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(marked("KvCutMark"), QStringLiteral("ON"));
}

TEST_F(ActionsTest, OnFlagPaperThePopUpGreysWhatCannotBe)
{
    show(PpdBuilder().autoCutObjHidden().options(0xff), "FL21x45");
    panel->popUp()->showPopup();
    for (int position = 0; position < panel->popUp()->count(); ++position) {
        const int tag = panel->popUp()->tagOfItem(position);
        const bool enabled =
            panel->popUp()->model()->flags(panel->popUp()->model()->index(position, 0)) & Qt::ItemIsEnabled;
        EXPECT_EQ(enabled, tag == 4 || tag == 8) << tag;
    }
    panel->popUp()->hidePopup();
    for (int tag = 0; tag <= 17; ++tag) {
        const bool greyed = (tag >= 5 && tag <= 7) || (tag >= 9 && tag <= 12);
        EXPECT_EQ(panel->validateMenuItem(tag), !greyed) << tag;
    }
    dialog->setPaper(QStringLiteral("24mm"));
    for (int tag = 0; tag <= 17; ++tag)
        EXPECT_TRUE(panel->validateMenuItem(tag)) << tag;
}

TEST_F(ActionsTest, AnyOtherSenderOnlyRunsTheRules)
{
    show(everything());
    dialog->setPaper(QStringLiteral("DC29x90"));
    panel->changeOption(panel->popUp());
    EXPECT_FALSE(isEnabled(OptionKind::RemoveBlkSpace));
    panel->changeOption(nullptr);
    EXPECT_TRUE(dialog->changes.empty());
}
