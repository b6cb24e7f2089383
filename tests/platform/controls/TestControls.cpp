// SPDX-License-Identifier: Apache-2.0
// The platform's own controls, driven by real events.
#include <platform/CheckBox.h>
#include <platform/CheckBoxAccess.h>
#include <platform/Geometry.h>
#include <platform/PopUpButton.h>
#include <platform/PopUpButtonAccess.h>
#include <platform/StaticText.h>
#include <platform/Stepper.h>
#include <platform/StepperAccess.h>
#include <platform/TextField.h>
#include <platform/TextFieldAccess.h>
#include <tests/support/Waiting.h>

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <memory>

using platform::PopUpButton;
using platform::Stepper;
using test_support::waitUntil;

namespace {

std::unique_ptr<Stepper> makeStepper()
{
    auto stepper = std::make_unique<Stepper>();
    stepper->resize(stepper->sizeHint());
    stepper->setMinimum(1);
    stepper->setMaximum(5);
    stepper->setValue(3);
    return stepper;
}

void turnWheel(QWidget *widget, int delta)
{
    QWheelEvent event(QPointF(2, 2), widget->mapToGlobal(QPointF(2, 2)), QPoint(), QPoint(0, delta),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

std::unique_ptr<PopUpButton> makePopUp()
{
    auto popUp = std::make_unique<PopUpButton>();
    popUp->setItemTags({QStringLiteral("4"), QStringLiteral("8"), QStringLiteral("12")});
    popUp->addItems({QStringLiteral("four"), QStringLiteral("eight"), QStringLiteral("twelve")});
    return popUp;
}

template<typename Access, typename Control>
bool isSpokenBy()
{
    Control control;
    return dynamic_cast<Access *>(QAccessible::queryAccessibleInterface(&control)) != nullptr;
}

} // namespace

TEST(Stepper, ArrowsStepWithinTheBounds)
{
    const auto stepper = makeStepper();
    QSignalSpy spy(stepper.get(), &Stepper::stepped);
    const QPoint up(stepper->width() / 2, 4);
    const QPoint down(stepper->width() / 2, stepper->height() - 4);
    QTest::mouseClick(stepper.get(), Qt::LeftButton, {}, up);
    EXPECT_EQ(stepper->value(), 4);
    QTest::mouseClick(stepper.get(), Qt::LeftButton, {}, up);
    QTest::mouseClick(stepper.get(), Qt::LeftButton, {}, up);
    EXPECT_EQ(stepper->value(), 5);
    QTest::mouseClick(stepper.get(), Qt::LeftButton, {}, down);
    EXPECT_EQ(stepper->value(), 4);
    QTest::mouseClick(stepper.get(), Qt::RightButton, {}, down);
    EXPECT_EQ(stepper->value(), 4);
    EXPECT_EQ(spy.count(), 4);
}

TEST(Stepper, RepeatsWhileHeldAndStopsWhenDisabled)
{
    const auto stepper = makeStepper();
    const auto other = makeStepper();
    for (Stepper *const each : {stepper.get(), other.get()}) {
        each->setMaximum(100'000);
        QTest::mousePress(each, Qt::LeftButton, {}, QPoint(4, 4));
    }
    ASSERT_TRUE(waitUntil([&] { return stepper->value() > 6; }));
    stepper->setEnabled(false);
    const int stopped = stepper->value();
    // The other one repeats at the same pace and goes on.
    const int before = other->value();
    EXPECT_TRUE(waitUntil([&] { return other->value() > before + 2; }));
    EXPECT_EQ(stepper->value(), stopped);
}

TEST(Stepper, KeysAndWheelStepToo)
{
    const auto stepper = makeStepper();
    stepper->setMaximum(50);
    QTest::keyClick(stepper.get(), Qt::Key_Up);
    EXPECT_EQ(stepper->value(), 4);
    QTest::keyClick(stepper.get(), Qt::Key_PageUp);
    EXPECT_EQ(stepper->value(), 14);
    QTest::keyClick(stepper.get(), Qt::Key_Down);
    EXPECT_EQ(stepper->value(), 13);
    turnWheel(stepper.get(), -120);
    EXPECT_EQ(stepper->value(), 12);
    turnWheel(stepper.get(), 60);
    EXPECT_EQ(stepper->value(), 12) << "half a notch is no step yet";
    turnWheel(stepper.get(), 60);
    EXPECT_EQ(stepper->value(), 13);
    turnWheel(stepper.get(), 0);
    EXPECT_EQ(stepper->value(), 13);
}

TEST(Stepper, AChangeByTheProgramIsNotAChangeByTheUser)
{
    const auto stepper = makeStepper();
    QSignalSpy spy(stepper.get(), &Stepper::stepped);
    stepper->setValue(2);
    EXPECT_EQ(spy.count(), 0);
    stepper->setMinimum(std::numeric_limits<int>::min());
    stepper->setMaximum(std::numeric_limits<int>::max());
    stepper->setValue(std::numeric_limits<int>::max());
    QTest::keyClick(stepper.get(), Qt::Key_Up);
    EXPECT_EQ(stepper->value(), std::numeric_limits<int>::max());
}

TEST(PopUpButton, ItemsAreKnownByTheirTags)
{
    const auto popUp = makePopUp();
    EXPECT_EQ(popUp->selectedTag(), 4);
    EXPECT_TRUE(popUp->selectItemWithTag(12));
    EXPECT_EQ(popUp->currentIndex(), 2);
    EXPECT_FALSE(popUp->selectItemWithTag(5));
    EXPECT_EQ(popUp->selectedTag(), 12) << "the selection stays when no item has the tag";
    popUp->removeItemWithTitle(QStringLiteral("four"));
    EXPECT_EQ(popUp->selectedTag(), 12);
    EXPECT_EQ(popUp->itemTags(), (QStringList{QStringLiteral("8"), QStringLiteral("12")}));
    popUp->removeItemWithTitle(QStringLiteral("FOUR"));
    popUp->removeItemWithTitle(QStringLiteral("twelve"));
    EXPECT_EQ(popUp->selectedTag(), 8) << "the first remaining item follows a removed selection";
    popUp->removeItemWithTitle(QStringLiteral("eight"));
    EXPECT_EQ(popUp->selectedTag(), 0);
}

TEST(PopUpButton, GreysItemsWhenItOpens)
{
    const auto popUp = makePopUp();
    bool flagPaper = true;
    popUp->setValidator([&](int tag) { return !flagPaper || tag == 8; });
    popUp->show();
    popUp->showPopup();
    const auto isEnabled = [&](int position) {
        return bool(popUp->model()->flags(popUp->model()->index(position, 0)) & Qt::ItemIsEnabled);
    };
    EXPECT_FALSE(isEnabled(0));
    EXPECT_TRUE(isEnabled(1));
    EXPECT_FALSE(isEnabled(2));
    popUp->hidePopup();
    flagPaper = false;
    popUp->showPopup();
    EXPECT_TRUE(isEnabled(0));
    popUp->hidePopup();
}

TEST(PopUpButton, KeysAndWheelPassOverGreyedItems)
{
    const auto popUp = makePopUp();
    popUp->setValidator([](int tag) { return tag != 8; });
    QTest::keyClick(popUp.get(), Qt::Key_Down);
    EXPECT_EQ(popUp->selectedTag(), 12);
    popUp->setValidator([](int tag) { return tag == 12; });
    turnWheel(popUp.get(), 120);
    EXPECT_EQ(popUp->selectedTag(), 12);
}

TEST(PopUpButton, AnItemChosenInTheOpenListIsTheUsersChoice)
{
    const auto popUp = makePopUp();
    QSignalSpy activated(popUp.get(), &QComboBox::activated);
    popUp->show();
    popUp->showPopup();
    popUp->view()->setCurrentIndex(popUp->model()->index(2, 0));
    QTest::keyClick(popUp->view(), Qt::Key_Return);
    EXPECT_EQ(popUp->selectedTag(), 12);
    EXPECT_EQ(activated.count(), 1);
}

TEST(StaticText, ItsColourIsApartFromItsEnabledFlag)
{
    platform::StaticText text;
    text.setText(QStringLiteral("labels"));
    text.resize(80, 20);
    const QImage plain = text.grab().toImage();
    text.setTextColor(platform::ControlTextColor::Disabled);
    EXPECT_TRUE(text.isEnabled());
    EXPECT_NE(text.grab().toImage(), plain);
    text.setTextColor(platform::ControlTextColor::Enabled);
    EXPECT_EQ(text.grab().toImage(), plain);
}

TEST(CheckBox, ATitleTooLongForThePanelEndsInAnEllipsis)
{
    platform::CheckBox box;
    box.resize(120, 20);
    box.setText(QStringLiteral("Bandanfang und Bandende automatisch abschneiden"));
    const QImage elided = box.grab().toImage();
    box.setText(QStringLiteral("Bandanfang und Bandende anders"));
    EXPECT_EQ(box.grab().toImage(), elided) << "only the beginning that both share is visible";
    box.setText(QStringLiteral("kurz"));
    EXPECT_NE(box.grab().toImage(), elided);
}

TEST(Controls, AreAccessibleFromTheirFirstMoment)
{
    EXPECT_TRUE((isSpokenBy<platform::CheckBoxAccess, platform::CheckBox>()));
    EXPECT_TRUE((isSpokenBy<platform::PopUpButtonAccess, PopUpButton>()));
    EXPECT_TRUE((isSpokenBy<platform::StepperAccess, Stepper>()));
    EXPECT_TRUE((isSpokenBy<platform::TextFieldAccess, platform::TextField>()));
}

TEST(Geometry, FramesAreMeasuredFromTheBottomEdge)
{
    QWidget panel;
    panel.resize(400, 282);
    QWidget child(&panel);
    child.setGeometry(16, 18, 256, 20);
    EXPECT_EQ(platform::frameFromBottom(&child), QRectF(16, 244, 256, 20));
    platform::setBottomEdge(&child, 10, 282);
    EXPECT_EQ(child.geometry(), QRect(16, 252, 256, 20));
    panel.resize(400, 150);
    EXPECT_EQ(platform::frameFromBottom(&child).y(), 150 - 252 - 20)
        << "the distance from the top edge stays";
}
