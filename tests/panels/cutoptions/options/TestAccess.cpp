// SPDX-License-Identifier: Apache-2.0
// The panel operated by assistive technology: each way of operating a control is one.
#include "PanelFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <gtest/gtest.h>

using test_support::panelKeywords;
using test_support::PanelTest;
using test_support::PpdBuilder;

namespace {

class AccessTest : public PanelTest {
protected:
    static QAccessibleInterface &access(QObject *control)
    {
        return *QAccessible::queryAccessibleInterface(control);
    }
    static void toggle(QCheckBox *box)
    {
        access(box).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    }

    PpdBuilder cutting() { return everything().defaultChoice("KvAutoTapeCut", "ON"); }
};

} // namespace

TEST_F(AccessTest, TogglingABoxIsAClick)
{
    show(everything());
    for (std::size_t index = 0; index < OptionCount; ++index) {
        // Special tape comes last: it disables others.
        const auto kind = OptionKind((index + 7) % OptionCount);
        const char *const keyword =
            kind == OptionKind::CutLabel ? "KvAutoTapeCut" : panelKeywords[static_cast<std::size_t>(kind)];
        dialog->changes.clear();
        const bool wasOn = box(kind)->isChecked();
        toggle(box(kind));
        EXPECT_EQ(dialog->changes, changes({{keyword, wasOn ? "OFF" : "ON"}})) << keyword;
        EXPECT_EQ(box(kind)->isChecked(), !wasOn) << keyword;
        EXPECT_EQ(access(box(kind)).state().checked, !wasOn ? 1U : 0U) << keyword;
    }
    EXPECT_FALSE(isEnabled(OptionKind::HalfCut)) << "the rules have run";
    dialog->changes.clear();
    const bool wasOn = box(OptionKind::HalfCut)->isChecked();
    toggle(box(OptionKind::HalfCut));
    EXPECT_TRUE(dialog->changes.empty()) << "a disabled box";
    EXPECT_EQ(box(OptionKind::HalfCut)->isChecked(), wasOn);
}

TEST_F(AccessTest, TogglingWarnsOfHeatShrinkTubeToo)
{
    show(everything(), "HS11mm");
    bool alerted = false;
    QTimer::singleShot(0, box(OptionKind::AutoCut), [&alerted] {
        auto *const message = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        alerted = message != nullptr;
        if (message)
            message->close();
    });
    toggle(box(OptionKind::AutoCut));
    QCoreApplication::processEvents();
    EXPECT_TRUE(alerted);
    EXPECT_EQ(dialog->changes, changes({{"KvAutoTapeCut", "ON"}}));
}

TEST_F(AccessTest, SettingTheCountsTextIsTyping)
{
    show(cutting());
    QAccessibleInterface &field = access(panel->countField());
    struct Row {
        const char *text;
        const char *count;
    };
    for (const Row &row : std::initializer_list<Row>{
             {"25", "25"}, {"25", "25"}, {"150", "99"}, {"", "1"}, {"abc", "1"}, {"7", "7"}}) {
        dialog->changes.clear();
        field.setText(QAccessible::Value, QLatin1String(row.text));
        EXPECT_EQ(dialog->changes, changes({{"KvCutLabel", row.count}})) << row.text;
        EXPECT_EQ(field.text(QAccessible::Value), QLatin1String(row.count));
        EXPECT_EQ(panel->countStepper()->value(), QString::fromLatin1(row.count).toInt());
    }
    QAccessibleEditableTextInterface *const editable = field.editableTextInterface();
    ASSERT_TRUE(editable);
    editable->insertText(1, QStringLiteral("2"));
    EXPECT_EQ(dialog->marked("KvCutLabel"), QStringLiteral("72"));
    editable->replaceText(0, 1, QStringLiteral("3"));
    EXPECT_EQ(dialog->marked("KvCutLabel"), QStringLiteral("32"));
    editable->deleteText(0, 1);
    EXPECT_EQ(dialog->marked("KvCutLabel"), QStringLiteral("2"));
}

TEST_F(AccessTest, SettingTheSteppersValueIsAStep)
{
    show(cutting());
    QAccessibleInterface &stepper = access(panel->countStepper());
    ASSERT_TRUE(stepper.valueInterface());
    for (const auto &[value, count] :
         {std::pair{7.0, "7"}, {7.0, "7"}, {0.0, "1"}, {1e12, "99"}, {3.0, "3"}}) {
        dialog->changes.clear();
        stepper.valueInterface()->setCurrentValue(value);
        EXPECT_EQ(dialog->changes, changes({{"KvCutLabel", count}})) << value;
        EXPECT_EQ(stepper.valueInterface()->currentValue().toInt(), QString::fromLatin1(count).toInt());
        EXPECT_EQ(panel->countField()->text(), QLatin1String(count));
    }
    stepper.actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(dialog->marked("KvCutLabel"), QStringLiteral("4"));
    stepper.actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(dialog->marked("KvCutLabel"), QStringLiteral("3"));
}

TEST_F(AccessTest, DisabledCountsAreLeftAlone)
{
    show(everything());
    ASSERT_FALSE(isEnabled(panel->countField()));
    access(panel->countField()).setText(QAccessible::Value, QStringLiteral("9"));
    access(panel->countStepper()).valueInterface()->setCurrentValue(9);
    EXPECT_EQ(panel->countField()->text(), QStringLiteral("1"));
    EXPECT_EQ(panel->countStepper()->value(), 1);
    EXPECT_TRUE(dialog->changes.empty());
}

TEST_F(AccessTest, SelectingAPresetChoosesIt)
{
    show(PpdBuilder().autoCutObjHidden().options(0xff));
    QAccessibleInterface &popUp = access(panel->popUp());
    ASSERT_TRUE(popUp.valueInterface());
    popUp.valueInterface()->setCurrentValue(panel->popUp()->indexOfItemWithTag(7));
    EXPECT_EQ(panel->popUp()->selectedTag(), 7);
    EXPECT_TRUE(box(OptionKind::HalfCut)->isChecked());
    EXPECT_TRUE(box(OptionKind::ChainPrint)->isChecked());

    const QString spoken =
        panel->popUp()->itemData(panel->popUp()->indexOfItemWithTag(6), Qt::AccessibleTextRole).toString();
    popUp.setText(QAccessible::Value, spoken);
    EXPECT_EQ(popUp.text(QAccessible::Value), spoken);
    EXPECT_FALSE(box(OptionKind::ChainPrint)->isChecked());

    box(OptionKind::Mirror)->setChecked(true);
    popUp.setText(QAccessible::Value, spoken);
    EXPECT_FALSE(box(OptionKind::Mirror)->isChecked()) << "the selected preset is chosen again";

    dialog->setPaper(QStringLiteral("FL21x45"));
    popUp.valueInterface()->setCurrentValue(panel->popUp()->indexOfItemWithTag(7));
    EXPECT_EQ(panel->popUp()->selectedTag(), 6) << "greyed on this paper";
    EXPECT_TRUE(dialog->changes.empty()) << "a preset reaches the job when the dialog saves";
}

TEST_F(AccessTest, WhatThePanelWritesIsNotOperated)
{
    show(cutting());
    for (const char *keyword : panelKeywords)
        dialog->mark(keyword, QLatin1String(keyword) == QLatin1String("KvCutLabel") ? "8" : "ON");
    panel->restoreValuesAndReturnError(nullptr);
    panel->willShow();
    dialog->setPaper(QStringLiteral("DC29x90"));
    dialog->postPaperChange();
    panel->changeOptionPopUpButton(panel->popUp());
    EXPECT_TRUE(dialog->changes.empty());
    EXPECT_EQ(panel->countField()->text(), QStringLiteral("8"));
}

TEST_F(AccessTest, ControlsHaveTheirNamesAndRoles)
{
    show(cutting());
    EXPECT_EQ(access(box(OptionKind::HalfCut)).role(), QAccessible::CheckBox);
    EXPECT_EQ(access(box(OptionKind::HalfCut)).text(QAccessible::Name),
              bundle()->localizedStringForKey(QStringLiteral("RS_HalfCut")));
    EXPECT_TRUE(access(box(OptionKind::HalfCut)).state().checkable);
    EXPECT_EQ(access(panel->countField()).role(), QAccessible::EditableText);
    EXPECT_EQ(access(panel->countField()).text(QAccessible::Name), panel->countWord()->text());
    EXPECT_EQ(access(panel->countStepper()).role(), QAccessible::SpinBox);
    EXPECT_EQ(access(panel->popUp()).role(), QAccessible::ComboBox);
    EXPECT_FALSE(access(panel->popUp()).text(QAccessible::Value).isEmpty());
}
