// SPDX-License-Identifier: Apache-2.0

#include <dialog/paper/CustomPaperFields.h>
#include <dialog/paper/PaperChooser.h>
#include <dialog/widgets/LengthField.h>
#include <dialog/widgets/LinkButton.h>
#include <tests/samples/OptionsPpd.h>
#include <tests/samples/SamplePdf.h>
#include <tests/samples/SamplePpd.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using dialog::LengthField;
using dialog::PaperChooser;

namespace {

class PaperChooserTest : public testing::Test {
protected:
    void open(const QByteArray &text = tapePpd())
    {
        ppd = std::make_unique<host::PpdFile>(openPpd(sandbox, text));
        chooser = std::make_unique<PaperChooser>(*ppd, ppd->markedPaper().value(), nullptr);
        spy = std::make_unique<QSignalSpy>(chooser.get(), &PaperChooser::paperChosen);
        chooser->resize(320, 420);
        chooser->show();
        QApplication::processEvents();
    }

    QListWidget *list() const { return chooser->findChild<QListWidget *>(); }
    QPushButton *link() const { return chooser->findChild<dialog::LinkButton *>(); }
    QLineEdit *search() const
    {
        for (QLineEdit *const edit : chooser->findChildren<QLineEdit *>()) {
            if (edit->accessibleName() == QStringLiteral("Search papers"))
                return edit;
        }
        return nullptr;
    }

    LengthField *field(const char *name) const
    {
        for (LengthField *const each : chooser->findChildren<LengthField *>()) {
            if (each->accessibleName() == QLatin1String(name))
                return each;
        }
        return nullptr;
    }

    QStringList shown() const
    {
        QStringList texts;
        for (int row = 0; row < list()->count(); ++row) {
            if (!list()->item(row)->isHidden())
                texts.append(list()->item(row)->text());
        }
        return texts;
    }

    void click(const char *text) const
    {
        QListWidgetItem *const item = list()->findItems(QString::fromUtf8(text), Qt::MatchExactly).value(0);
        ASSERT_TRUE(item) << text;
        list()->scrollToItem(item);
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, list()->visualItemRect(item).center());
        QApplication::processEvents();
    }

    static void type(LengthField *into, const char *text)
    {
        into->setFocus();
        into->selectAll();
        QTest::keyClicks(into, QLatin1String(text));
        QTest::keyClick(into, Qt::Key_Tab);
    }

    Sandbox sandbox;
    std::unique_ptr<host::PpdFile> ppd;
    std::unique_ptr<PaperChooser> chooser;
    std::unique_ptr<QSignalSpy> spy;
};

QByteArray withoutFreeSizes(QByteArray text)
{
    text.replace("*CustomPageSize True", "*% no free sizes");
    text.replace("*ParamCustomPageSize", "*%");
    return text.replace("*VariablePaperSize: True", "*VariablePaperSize: False");
}

} // namespace

TEST_F(PaperChooserTest, ShowsPapersByWidthWithTheirExactSizes)
{
    open();
    EXPECT_EQ(shown(), (QStringList{"Custom size\u2026", "12 mm wide", "Tape 12 mm x 60 mm", "24 mm wide",
                                    "Tape 24 mm x 60 mm", "52 mm wide", "Labels 52 mm x 75 mm",
                                    "Removable 52 mm x 75 mm"}));
    EXPECT_EQ(list()->currentItem()->text(), QStringLiteral("Tape 24 mm x 60 mm"));
    EXPECT_EQ(list()->currentItem()->toolTip(), QStringLiteral("<qt>W24H60<br>24 mm wide, 60 mm long</qt>"));
    click("12 mm wide");
    EXPECT_EQ(spy->count(), 0);
    EXPECT_EQ(chooser->chosen().name, QByteArray("W24H60"));
}

TEST_F(PaperChooserTest, KeysPassOverHeadingsAndTwinsStayTwo)
{
    open();
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Down);
    EXPECT_EQ(chooser->chosen().name, QByteArray("DC52x75"));
    QTest::keyClick(list(), Qt::Key_Down);
    EXPECT_EQ(chooser->chosen().name, QByteArray("DC52x75R"));
    EXPECT_EQ(spy->count(), 2);
}

TEST_F(PaperChooserTest, TheChosenPaperStaysHighlightedWhereverOneClicks)
{
    open();
    chooser->resize(320, 700);
    QApplication::processEvents();
    const auto isHighlighted = [this](const char *text) {
        return list()->currentItem()->text() == QLatin1String(text) && list()->currentItem()->isSelected() &&
               list()->selectedItems().size() == 1;
    };
    const auto press = [this](const QPoint &place, Qt::KeyboardModifiers modifiers) {
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, modifiers, place);
        QApplication::processEvents();
    };
    const QPoint empty(20, list()->viewport()->height() - 5);
    ASSERT_FALSE(list()->itemAt(empty));
    const auto placeOf = [this](const char *text) {
        return list()
            ->visualItemRect(list()->findItems(QLatin1String(text), Qt::MatchExactly).value(0))
            .center();
    };
    for (const Qt::KeyboardModifiers modifiers : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier}) {
        for (const QPoint &place : {empty, placeOf("Tape 24 mm x 60 mm"), placeOf("12 mm wide")}) {
            press(place, modifiers);
            EXPECT_TRUE(isHighlighted("Tape 24 mm x 60 mm")) << modifiers << " " << place.y();
        }
    }
    EXPECT_EQ(spy->count(), 0);
    press(placeOf("Tape 12 mm x 60 mm"), Qt::ControlModifier);
    EXPECT_TRUE(isHighlighted("Tape 12 mm x 60 mm"));
    EXPECT_EQ(chooser->chosen().name, QByteArray("W12H60"));
    QTest::keyClick(list(), Qt::Key_Down, Qt::ControlModifier);
    EXPECT_TRUE(isHighlighted("Tape 24 mm x 60 mm"));
    EXPECT_EQ(chooser->chosen().name, QByteArray("W24H60"));
}

TEST_F(PaperChooserTest, PapersOfOneTextAreToldApartByName)
{
    open(tapePpd().replace("DC52x75R/Removable 52 mm", "DC52x75R/Labels 52 mm"));
    EXPECT_TRUE(shown().contains(QStringLiteral("Labels 52 mm x 75 mm (DC52x75R)")));
    EXPECT_TRUE(shown().contains(QStringLiteral("Labels 52 mm x 75 mm (DC52x75)")));
}

TEST_F(PaperChooserTest, ASearchKeepsTheHeadingsOfWhatItFinds)
{
    QByteArray text = tapePpd();
    QByteArray choices;
    for (int i = 10; i < 20; ++i) {
        choices += "*PageSize X" + QByteArray::number(i) + ": \"\"\n";
        text += "*PaperDimension X" + QByteArray::number(i) + ": \"100 200\"\n";
    }
    text.replace("*CloseUI: *PageSize\n", choices + "*CloseUI: *PageSize\n");
    open(text);
    ASSERT_TRUE(search() && search()->isVisible());
    QTest::keyClicks(search(), QStringLiteral("52 remov"));
    EXPECT_EQ(shown(), (QStringList{"Custom size\u2026", "52 mm wide", "Removable 52 mm x 75 mm"}));
    EXPECT_EQ(chooser->chosen().name, QByteArray("W24H60"));
    EXPECT_EQ(spy->count(), 0);
    // It stays while another printer's papers come.
    chooser->setPpd(*ppd, ppd->paper("W12H60").value());
    EXPECT_EQ(shown().size(), 3);
    EXPECT_EQ(chooser->chosen().name, QByteArray("W12H60"));
    search()->clear();
    EXPECT_EQ(shown().size(), list()->count());
}

TEST_F(PaperChooserTest, AFreeSizeIsExactAndWithinTheLimits)
{
    open();
    EXPECT_FALSE(field("Paper width")->isVisible());
    click("Custom size\u2026");
    // The last paper is the beginning.
    EXPECT_EQ(chooser->chosen().name, QByteArray("Custom.24x60mm"));
    type(field("Paper width"), "12.35");
    type(field("Paper length"), "87.01");
    EXPECT_EQ(chooser->chosen().name, QByteArray("Custom.12.35x87.01mm"));
    EXPECT_EQ(chooser->chosen().text, QStringLiteral("Custom, 12.35 \u00d7 87.01 mm"));
    const std::optional<host::PpdPaper> read = ppd->paper(chooser->chosen().name);
    ASSERT_TRUE(read);
    EXPECT_NEAR(read->size.width(), 12.35 * mm, 0.005 * mm);
    EXPECT_NEAR(read->size.height(), 87.01 * mm, 0.005 * mm);
    EXPECT_EQ(chooser->chosen().margins, read->margins);
    // 17 to 70 points.
    const auto before = spy->count();
    type(field("Paper width"), "99");
    EXPECT_EQ(field("Paper width")->value(), 9);
    type(field("Paper width"), "2");
    EXPECT_GE(field("Paper width")->value(), 6);
    EXPECT_TRUE(ppd->paper(chooser->chosen().name));
    EXPECT_GT(spy->count(), before);
    click("Tape 24 mm x 60 mm");
    EXPECT_FALSE(field("Paper width")->isVisible());
    EXPECT_EQ(chooser->chosen().name, QByteArray("W24H60"));
}

TEST_F(PaperChooserTest, EveryFreeSizeAtTheLimitsIsOneThatThePpdHas)
{
    const std::pair<const char *, const char *> limits[] = {
        {"17 70", "28 2835"}, {"17.01 70.07", "1 99999"}, {"24 24", "28 2835"}, {"34.016 34.016", "0.5 40"}};
    for (const auto &[width, length] : limits) {
        QByteArray text = tapePpd();
        text.replace("Width: 1 points 17 70", QByteArray("Width: 1 points ") + width);
        text.replace("Height: 2 points 28 2835", QByteArray("Height: 2 points ") + length);
        open(text);
        click("Custom size\u2026");
        for (LengthField *const each : {field("Paper width"), field("Paper length")}) {
            for (const double value : {each->minimum(), each->maximum()}) {
                each->setValue(value);
                EXPECT_TRUE(ppd->paper(chooser->chosen().name)) << chooser->chosen().name.toStdString();
                EXPECT_NEAR(chooser->chosen().size.width(), field("Paper width")->length().number(), 0.01);
                EXPECT_NEAR(chooser->chosen().size.height(), field("Paper length")->length().number(), 0.01);
            }
        }
    }
}

TEST_F(PaperChooserTest, AFixedWidthIsShownAndCannotBeChanged)
{
    open(tapePpd().replace("Width: 1 points 17 70", "Width: 1 points 34.016 34.016"));
    click("Custom size\u2026");
    EXPECT_TRUE(field("Paper width")->isReadOnly());
    EXPECT_EQ(field("Paper width")->text(), QStringLiteral("12 mm"));
    type(field("Paper length"), "100");
    EXPECT_NEAR(chooser->chosen().size.width(), 34.016, 0.001);
    EXPECT_NEAR(chooser->chosen().size.height(), 100 * mm, 0.001);
}

TEST_F(PaperChooserTest, InchesWhereTheseAreUsed)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    open();
    EXPECT_TRUE(shown().contains(QStringLiteral("0.47 in wide"))) << shown().join(u'|').toStdString();
    click("Custom size\u2026");
    type(field("Paper width"), "0.5");
    type(field("Paper length"), "3.125");
    EXPECT_EQ(chooser->chosen().name, QByteArray("Custom.12.7x79.375mm"));
    EXPECT_EQ(chooser->chosen().text, QStringLiteral("Custom, 0.5 \u00d7 3.125 in"));
    QLocale::setDefault(before);
}

TEST_F(PaperChooserTest, NoFreeSizesWhereThePpdHasNone)
{
    open(withoutFreeSizes(tapePpd()));
    EXPECT_FALSE(shown().contains(QStringLiteral("Custom size\u2026")));
    EXPECT_FALSE(field("Paper width"));
    EXPECT_FALSE(chooser->choose("Custom.20x20mm"));
}

TEST_F(PaperChooserTest, ChoosesByNameQuietly)
{
    open();
    EXPECT_TRUE(chooser->choose("DC52x75R"));
    EXPECT_EQ(list()->currentItem()->text(), QStringLiteral("Removable 52 mm x 75 mm"));
    EXPECT_FALSE(chooser->choose("dc52x75r"));
    EXPECT_FALSE(chooser->choose("Custom.1x1mm"));
    EXPECT_FALSE(chooser->choose("Custom.nonsense"));
    EXPECT_EQ(chooser->chosen().name, QByteArray("DC52x75R"));
    EXPECT_TRUE(chooser->choose("Custom.1.8x5cm"));
    EXPECT_EQ(chooser->chosen().name, QByteArray("Custom.1.8x5cm")) << "the name stays as it was given";
    EXPECT_EQ(list()->currentItem()->text(), QStringLiteral("Custom size\u2026"));
    EXPECT_EQ(field("Paper width")->text(), QStringLiteral("18 mm"));
    EXPECT_EQ(spy->count(), 0);
}

TEST_F(PaperChooserTest, AMarkedFreeSizeIsReadBack)
{
    open();
    ppd->mark(QStringLiteral("PageSize"), QStringLiteral("Custom.18x50mm"));
    ASSERT_TRUE(ppd->markedPaper());
    chooser->setPpd(*ppd, *ppd->markedPaper());
    EXPECT_EQ(field("Paper length")->text(), QStringLiteral("50 mm"));
    EXPECT_EQ(chooser->chosen().name, QByteArray("Custom.18x50mm"));
}

TEST_F(PaperChooserTest, OffersTheDocumentsSizeWhereItFits)
{
    struct Row {
        QSizeF page; ///< in points
        bool freeSizes;
        const char *offered; ///< null when nothing is
    };
    const Row rows[] = {
        {QSizeF(12, 60) * mm, true, "W12H60"},
        {QSizeF(60, 12) * mm, true, "W12H60"},
        {QSizeF(34, 170), true, "W12H60"},
        {QSizeF(75, 52) * mm, true, "DC52x75"},
        {QSizeF(34.4, 170.5), false, "W12H60"}, // as near as it gets
        {QSizeF(34.4, 170.5), true, "Custom.12.1356x60.1486mm"},
        {QSizeF(24.15, 60) * mm, true, "Custom.24.15x60mm"},
        {QSizeF(24.15, 60) * mm, false, nullptr}, // as near as it gets is chosen already
        {QSizeF(68, 170), true, nullptr},
        {QSizeF(24, 60) * mm, true, nullptr}, // chosen already
        {QSizeF(60, 24) * mm, true, nullptr},
        {QSizeF(18, 50) * mm, true, "Custom.18x50mm"},
        {QSizeF(50, 18) * mm, true, "Custom.18x50mm"},
        {QSizeF(18, 50) * mm, false, nullptr},
        {QSizeF(210, 297) * mm, true, nullptr},
        {QSizeF(), true, nullptr},
    };
    for (const Row &row : rows) {
        open(row.freeSizes ? tapePpd() : withoutFreeSizes(tapePpd()));
        chooser->setDocumentPage(row.page);
        QApplication::processEvents();
        ASSERT_EQ(link()->isVisible(), row.offered != nullptr) << row.page.width() / mm;
        if (!row.offered)
            continue;
        QTest::mouseClick(link(), Qt::LeftButton);
        EXPECT_EQ(chooser->chosen().name, QByteArray(row.offered));
        EXPECT_EQ(spy->count(), 1);
        EXPECT_FALSE(link()->isVisible());
    }
    open();
    chooser->setDocumentPage(QSizeF(18, 50.25) * mm);
    EXPECT_EQ(link()->text(), QStringLiteral("Use the document's size: 18 \u00d7 50.25 mm"));
}

TEST_F(PaperChooserTest, EnterChoosesWhatTheSearchHasFound)
{
    open();
    int pressed = 0;
    auto *const button = new QPushButton(chooser.get());
    QObject::connect(button, &QPushButton::clicked, [&] { ++pressed; });
    search()->show();
    QTest::keyClicks(search(), QStringLiteral("52 rem"));
    QTest::keyClick(search(), Qt::Key_Return);
    EXPECT_EQ(chooser->chosen().name, QByteArray("DC52x75R"));
    EXPECT_EQ(spy->count(), 1);
    search()->setText(QStringLiteral("nothing is called this"));
    QTest::keyClick(search(), Qt::Key_Enter);
    EXPECT_EQ(chooser->chosen().name, QByteArray("DC52x75R"));
    EXPECT_EQ(pressed, 0);
}

TEST_F(PaperChooserTest, AReplacedPpdLeavesTheFieldsOfACustomSize)
{
    open(tapePpd());
    chooser->choose("Custom.24x60mm");
    LengthField *const width = field("Paper width");
    ASSERT_TRUE(width);
    const auto other = std::make_unique<host::PpdFile>(openPpd(sandbox, tapePpd()));
    chooser->setPpd(*other, chooser->chosen());
    EXPECT_EQ(field("Paper width"), width);
    EXPECT_TRUE(width->isVisible());
    // Other limits are other fields.
    const host::PpdFile fixed = openPpd(sandbox, withoutFreeSizes(tapePpd()));
    chooser->setPpd(fixed, fixed.markedPaper().value());
    EXPECT_FALSE(field("Paper width"));
}
