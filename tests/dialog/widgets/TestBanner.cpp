// SPDX-License-Identifier: Apache-2.0
// Messages of any length leave the window as it is.
#include <dialog/widgets/Banner.h>

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>
#include <QToolTip>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

QString sentences(int count)
{
    QStringList all;
    for (int i = 1; i <= count; ++i)
        all.append(
            QStringLiteral("\"Print quality %1: Very high\" and \"Speed %1: Very fast\" conflict.").arg(i));
    return all.join(u'\n');
}

QString remedy(int changes)
{
    QStringList all;
    for (int i = 1; i <= changes; ++i)
        all.append(QStringLiteral("set \"Print quality %1\" to \"Medium & fair\"").arg(i));
    return all.join(QStringLiteral(", "));
}

class BannerTest : public testing::Test {
protected:
    BannerTest()
    {
        auto *const layout = new QVBoxLayout(&window);
        layout->addWidget(new QTextEdit(&window), 1);
        banner = new dialog::Banner(&window);
        layout->addWidget(banner);
        window.resize(600, 500);
    }

    void show(int conflicts, int changes)
    {
        banner->setMessage(sentences(conflicts), remedy(changes));
        window.show();
        QApplication::processEvents();
    }

    int lines() const
    {
        const auto *const text = banner->findChild<QScrollArea *>();
        return text->height() / text->widget()->fontMetrics().lineSpacing();
    }

    QScrollBar *bar() const { return banner->findChild<QScrollArea *>()->verticalScrollBar(); }
    QPushButton *button() const { return banner->findChild<QPushButton *>(); }

    QWidget window;
    dialog::Banner *banner;
};

} // namespace

TEST_F(BannerTest, NoMessageMakesTheWindowLarger)
{
    for (const bool isOpenBefore : {false, true}) {
        for (const int conflicts : {1, 3, 6, 60}) {
            window.setVisible(isOpenBefore);
            show(conflicts, qMin(conflicts, 6));
            EXPECT_EQ(window.size(), QSize(600, 500)) << conflicts;
            EXPECT_LT(window.minimumSizeHint().width(), 400) << conflicts;
            EXPECT_LT(banner->height(), 130) << conflicts;
            EXPECT_TRUE(banner->rect().contains(button()->geometry())) << conflicts;
        }
    }
}

TEST_F(BannerTest, AShortMessageIsWholeAndALongOneIsScrolled)
{
    show(1, 1);
    EXPECT_EQ(lines(), 1);
    EXPECT_EQ(bar()->maximum(), 0);
    show(3, 1);
    EXPECT_EQ(lines(), 3);
    EXPECT_EQ(bar()->maximum(), 0);
    EXPECT_EQ(banner->findChild<QScrollArea *>()->focusPolicy(), Qt::NoFocus);
    show(60, 1);
    EXPECT_EQ(lines(), 4);
    EXPECT_GT(bar()->maximum(), 0);
    EXPECT_EQ(banner->message(), sentences(60));
    // By keys too.
    banner->findChild<QScrollArea *>()->setFocus();
    QTest::keyClick(banner->findChild<QScrollArea *>(), Qt::Key_PageDown);
    EXPECT_GT(bar()->value(), 0);
    // Another message is read from its beginning.
    show(59, 1);
    EXPECT_EQ(bar()->value(), 0);
}

TEST_F(BannerTest, AMessageInANarrowWindowTakesMoreLines)
{
    show(1, 1);
    window.resize(320, 500);
    QApplication::processEvents();
    EXPECT_EQ(lines(), 2);
    window.resize(600, 500);
    QApplication::processEvents();
    EXPECT_EQ(lines(), 1);
}

TEST_F(BannerTest, ALongRemedyIsElidedAndCanBeReadAndHeard)
{
    show(1, 1);
    EXPECT_EQ(button()->width(), button()->sizeHint().width());
    EXPECT_EQ(button()->text(), QStringLiteral("set \"Print quality 1\" to \"Medium && fair\""));
    show(6, 6);
    EXPECT_LT(button()->width(), button()->sizeHint().width());
    EXPECT_EQ(button()->text().count(QStringLiteral("Print quality")), 6);
    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), button()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(button(), &help);
    // Quotation marks are shown as such.
    EXPECT_TRUE(QToolTip::text().startsWith(QStringLiteral("<qt>")));
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("Print quality 6")))
        << QToolTip::text().toStdString();
    bool isClicked = false;
    QObject::connect(banner, &dialog::Banner::remedyClicked, &window, [&] { isClicked = true; });
    QTest::mouseClick(button(), Qt::LeftButton);
    EXPECT_TRUE(isClicked);
}

TEST_F(BannerTest, ALongMessageIsThereFromTheBeginning)
{
    banner->setMessage(sentences(3));
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(lines(), 3);
    QFont large = window.font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    banner->setFont(large);
    QApplication::processEvents();
    EXPECT_EQ(lines(), 4);
}
