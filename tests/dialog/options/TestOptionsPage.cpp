// SPDX-License-Identifier: Apache-2.0
#include "OptionsPageFixture.h"

#include <tests/support/Waiting.h>

#include <dialog/options/OptionControl.h>
#include <dialog/widgets/LengthField.h>

#include <QGroupBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

using dialog::OptionsPage;
using test_support::turnEventLoop;
using test_support::waitUntil;

TEST_F(OptionsPageTest, ShowsWhatIsNotSetElsewhere)
{
    open({QStringLiteral("Twins")});
    ASSERT_EQ(groups()->count(), 2);
    EXPECT_EQ(groups()->item(0)->text(), QStringLiteral("Print & Quality"));
    EXPECT_EQ(groups()->item(1)->text(), QStringLiteral("Finishing"));
    EXPECT_TRUE(control("Darkness") && control("Turbo") && control("Feed"));
    chooseGroup(1);
    EXPECT_TRUE(control("Marks") && control("Stamp") && control("Offset") && control("Extras"));
    for (const char *const keyword : {"PageSize", "PageRegion", "Fixed", "Cutter", "Twins"})
        EXPECT_FALSE(control(keyword)) << keyword;
    EXPECT_TRUE(heard.isEmpty());
}

TEST_F(OptionsPageTest, PicksOneByItsName)
{
    open();
    auto *const list = in<QComboBox>("Darkness");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->currentText(), QStringLiteral("Normal"));
    EXPECT_EQ(list->count(), 4);
    pick(list, 0);
    EXPECT_EQ(heard, QByteArrayList{"Darkness=Light"});
    EXPECT_EQ(ppd->markedChoice(QStringLiteral("Darkness")), QStringLiteral("Light"));
    QLabel *label = nullptr;
    for (QLabel *const each : page->findChildren<QLabel *>()) {
        if (each->buddy() == list)
            label = each;
    }
    ASSERT_TRUE(label);
    EXPECT_EQ(label->text(), QStringLiteral("Darkness"));
}

TEST_F(OptionsPageTest, TellsChoicesOfOneTextApart)
{
    open();
    auto *const list = in<QComboBox>("Twins");
    EXPECT_EQ(list->itemText(0), QStringLiteral("Same (First)"));
    EXPECT_EQ(list->itemText(1), QStringLiteral("Same (Second)"));
}

TEST_F(OptionsPageTest, SwitchesAreBoxesOnlyWhenTheyAreOnOrOff)
{
    open();
    auto *const turbo = in<QCheckBox>("Turbo");
    ASSERT_TRUE(turbo);
    EXPECT_EQ(turbo->toolTip(), QStringLiteral("<qt>Careful</qt>"));
    tick(turbo);
    tick(turbo);
    EXPECT_EQ(heard, (QByteArrayList{"Turbo=True", "Turbo=False"}));
    EXPECT_FALSE(in<QCheckBox>("Feed"));
    EXPECT_TRUE(in<QComboBox>("Feed"));
}

TEST_F(OptionsPageTest, TicksSeveralInThePpdsOrder)
{
    open();
    chooseGroup(1);
    EXPECT_EQ(control("Marks")->findChildren<QCheckBox *>().size(), 3);
    EXPECT_EQ(in<QGroupBox>("Marks")->title(), QStringLiteral("Marks"));
    tick(boxOf("Marks", "Text & date"));
    tick(boxOf("Marks", "Crop marks"));
    tick(boxOf("Marks", "Text & date"));
    tick(boxOf("Marks", "Crop marks"));
    EXPECT_EQ(heard, (QByteArrayList{"Marks=Text", "Marks=Crop,Text", "Marks=Crop", "Marks=None"}));
    heard.clear();
    tick(boxOf("Extras", "Seal"));
    tick(boxOf("Extras", "Seal"));
    EXPECT_EQ(heard, (QByteArrayList{"Extras=", "Extras=Seal"}));
}

TEST_F(OptionsPageTest, AFreeNumberIsEnteredWithinItsLimits)
{
    open();
    pick(in<QComboBox>("Darkness"), 3);
    EXPECT_EQ(heard.last(), QByteArray("Darkness=Custom.10"));
    auto *const level = in<dialog::NumberField>("Darkness", "Level");
    ASSERT_TRUE(level && level->isVisible());
    EXPECT_EQ(level->accessibleName(), QStringLiteral("Level (percent)"));
    level->setFocus();
    level->selectAll();
    QTest::keyClicks(level, QStringLiteral("95"));
    EXPECT_EQ(heard.last(), QByteArray("Darkness=Custom.10"));
    QTest::keyClicks(level, QStringLiteral("0"));
    EXPECT_EQ(heard.last(), QByteArray("Darkness=Custom.90"));
    EXPECT_EQ(level->value(), 90);
    pick(in<QComboBox>("Darkness"), 1);
    EXPECT_EQ(heard.last(), QByteArray("Darkness=Normal"));
    EXPECT_FALSE(level->isVisible());
}

TEST_F(OptionsPageTest, ATextCountsFromWhenItIsLongEnough)
{
    open();
    chooseGroup(1);
    pick(in<QComboBox>("Stamp"), 1);
    auto *const words = in<QLineEdit>("Stamp", "Words");
    ASSERT_TRUE(words && words->isVisible());
    QTest::keyClicks(words, QStringLiteral("A"));
    EXPECT_TRUE(heard.isEmpty());
    bool told = false;
    for (const QLabel *const label : control("Stamp")->findChildren<QLabel *>())
        told = told ||
               (label->isVisible() && label->text().contains(QStringLiteral("\"Words\" needs at least 2")));
    EXPECT_TRUE(told);
    EXPECT_TRUE(words->accessibleDescription().contains(QStringLiteral("needs at least 2")));
    // Another option may be chosen meanwhile.
    tick(boxOf("Marks", "Fold marks"));
    EXPECT_TRUE(words->isVisible());
    EXPECT_EQ(words->text(), QStringLiteral("A"));
    heard.clear();
    QTest::keyClicks(words, QStringLiteral(" {b}, \"c\" and more"));
    EXPECT_EQ(heard.last(), QByteArray("Stamp={Words=\"A b, \\\"c\\\" and\"}"));
    EXPECT_EQ(words->text(), QStringLiteral("A b, \"c\" and"));
    EXPECT_EQ(words->accessibleDescription(), QString());
    pick(in<QComboBox>("Stamp"), 0);
    EXPECT_EQ(heard.last(), QByteArray("Stamp=Off"));
}

TEST_F(OptionsPageTest, SeveralParametersGoTogether)
{
    open();
    chooseGroup(1);
    pick(in<QComboBox>("Offset"), 1);
    auto *const left = in<dialog::LengthField>("Offset", "Left");
    auto *const key = in<QLineEdit>("Offset", "Key");
    ASSERT_TRUE(left && key);
    EXPECT_EQ(key->echoMode(), QLineEdit::Password);
    left->setFocus();
    left->selectAll();
    QTest::keyClicks(left, QStringLiteral("12.35"));
    EXPECT_TRUE(heard.isEmpty());
    QTest::keyClicks(key, QStringLiteral("a01b23"));
    EXPECT_EQ(heard.last(),
              QByteArray("Offset={Left=12.35mm Gain=0 Key=0123 Secret=\"\" Bend=0.1 Back=0.1}"));
    // The lower limit of 10 points, rounded to what can be entered within the limits.
    left->selectAll();
    QTest::keyClicks(left, QStringLiteral("1"));
    QTest::keyClick(left, Qt::Key_Tab);
    EXPECT_GE(left->length().number(), 10);
    EXPECT_NEAR(left->minimum(), 3.53, 1e-9);
}

TEST_F(OptionsPageTest, LengthsAreInInchesWhereTheseAreUsed)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    open();
    chooseGroup(1);
    pick(in<QComboBox>("Offset"), 1);
    auto *const left = in<dialog::LengthField>("Offset", "Left");
    EXPECT_EQ(left->suffix(), QStringLiteral(" in"));
    EXPECT_EQ(left->maximum(), 2);
    left->selectAll();
    QTest::keyClicks(left, QStringLiteral("0.5"));
    QTest::keyClicks(in<QLineEdit>("Offset", "Key"), QStringLiteral("0123"));
    EXPECT_TRUE(heard.last().startsWith("Offset={Left=12.7mm ")) << heard.last().toStdString();
    QLocale::setDefault(before);
}

TEST_F(OptionsPageTest, ShowsQuietlyWhatIsMarked)
{
    open();
    chooseGroup(1);
    mark("Darkness", "Custom.42");
    mark("Turbo", "True");
    mark("Marks", "Fold,Text");
    mark("Stamp", "Custom.hello");
    EXPECT_EQ(in<QComboBox>("Darkness")->currentText(), QStringLiteral("Own darkness\u2026"));
    EXPECT_EQ(in<dialog::NumberField>("Darkness", "Level")->value(), 42);
    EXPECT_TRUE(in<QCheckBox>("Turbo")->isChecked());
    EXPECT_FALSE(boxOf("Marks", "Crop marks")->property("checked").toBool());
    EXPECT_TRUE(boxOf("Marks", "Fold marks")->property("checked").toBool());
    EXPECT_EQ(in<QLineEdit>("Stamp", "Words")->text(), QStringLiteral("hello"));
    mark("Darkness", "Dark");
    EXPECT_FALSE(in<dialog::NumberField>("Darkness", "Level")->isVisible());
    EXPECT_TRUE(heard.isEmpty());
}

TEST_F(OptionsPageTest, TheWheelMovesThePageAndNoChoice)
{
    open();
    auto *const list = in<QComboBox>("Feed");
    in<QComboBox>("Darkness")->setFocus();
    QWheelEvent wheel(QPointF(5, 5), list->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(list, &wheel);
    EXPECT_EQ(list->currentIndex(), 0);
    EXPECT_TRUE(heard.isEmpty());
}

TEST_F(OptionsPageTest, OneGroupNeedsNoList)
{
    open({QStringLiteral("Marks"), QStringLiteral("Stamp"), QStringLiteral("Offset"),
          QStringLiteral("Extras")});
    EXPECT_FALSE(groups()->isVisible());
    open({}, largeOptionsPpd(0, 0));
    EXPECT_EQ(groups()->count(), 0);
    bool told = false;
    for (const QLabel *const label : page->findChildren<QLabel *>())
        told = told || (label->isVisible() && label->text().contains(QStringLiteral("no other options")));
    EXPECT_TRUE(told);
}

TEST_F(OptionsPageTest, OnlyTheGroupThatIsSeenIsBuilt)
{
    ppd = std::make_unique<host::PpdFile>(openPpd(sandbox, largeOptionsPpd(200, 50)));
    page = std::make_unique<OptionsPage>(*ppd, QStringList(), nullptr);
    EXPECT_TRUE(page->findChildren<QComboBox *>().isEmpty());
    page->show();
    const auto isBuilt = [this] { return page->findChildren<QComboBox *>().size() >= 100; };
    EXPECT_TRUE(waitUntil(isBuilt));
    turnEventLoop();
    EXPECT_EQ(page->findChildren<QComboBox *>().size(), 100);
}

TEST_F(OptionsPageTest, OtherEventsAreHandledWhileManyOptionsAreBuilt)
{
    ppd = std::make_unique<host::PpdFile>(openPpd(sandbox, largeOptionsPpd(3000, 4)));
    page = std::make_unique<OptionsPage>(*ppd, QStringList(), nullptr);
    page->resize(520, 420);
    const auto areBuilt = [this] {
        return page->findChild<QWidget *>(QStringLiteral("Option1499")) != nullptr;
    };
    page->show();
    ASSERT_FALSE(areBuilt());
    int turns = 0;
    QTimer turn;
    QObject::connect(&turn, &QTimer::timeout, &turn, [&] { turns += areBuilt() ? 0 : 1; });
    turn.start(0);
    EXPECT_TRUE(waitUntil(areBuilt));
    EXPECT_GT(turns, 0);
    turnEventLoop();
    int before = -1;
    const int left = page->findChild<QWidget *>(QStringLiteral("Option0"))->mapTo(page.get(), QPoint()).x();
    // In the order in which they were made: looking each up by its name takes longer than making them.
    int option = 0;
    for (const dialog::OptionControl *const each : page->findChildren<dialog::OptionControl *>()) {
        const QPoint place = each->mapTo(page.get(), QPoint());
        ASSERT_EQ(each->keyword(), "Option" + QByteArray::number(option++));
        ASSERT_TRUE(each->isVisible());
        ASSERT_GT(place.y(), before) << option;
        ASSERT_EQ(place.x(), left) << option;
        before = place.y();
    }
    EXPECT_EQ(option, 1500);
}

TEST_F(OptionsPageTest, LongTextsFitWithoutScrollingSideways)
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QApplication::setLayoutDirection(direction);
        open({}, optionsPpd(), QStringLiteral("de"));
        tick(in<QCheckBox>("Turbo"));
        pick(in<QComboBox>("Darkness"), 2);
        for (const QScrollArea *const area : page->findChildren<QScrollArea *>())
            EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }
}
