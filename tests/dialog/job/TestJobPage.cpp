// SPDX-License-Identifier: Apache-2.0
#include <dialog/job/HoldTime.h>
#include <dialog/job/JobPage.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTimeEdit>
#include <QTimeZone>

#include <gtest/gtest.h>

using dialog::JobPage;
using host::JobSettings;
using host::Orientation;

namespace {

class JobPageTest : public testing::Test {
protected:
    JobPageTest()
    {
        page.show();
        QApplication::processEvents();
    }

    /// The field behind the label of that text.
    template<typename Field>
    Field *at(const char *text) const
    {
        for (const QLabel *const label : page.findChildren<QLabel *>()) {
            if (label->text().remove(u'&') == QLatin1String(text))
                return qobject_cast<Field *>(label->buddy());
        }
        return nullptr;
    }

    void pick(const char *label, const char *text) const
    {
        auto *const list = at<QComboBox>(label);
        ASSERT_TRUE(list) << label;
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Home);
        while (list->currentText() != QLatin1String(text) && list->currentIndex() + 1 < list->count())
            QTest::keyClick(list, Qt::Key_Down);
        EXPECT_EQ(list->currentText(), QLatin1String(text));
    }

    JobPage page{nullptr};
};

QDateTime berlin(const QDate &date, const QTime &time)
{
    return {date, time, QTimeZone("Europe/Berlin")};
}

} // namespace

TEST(HoldTime, IsTheServersTimeOfTheNextSuchMoment)
{
    const QDate summer(2024, 7, 1);
    const QDate winter(2024, 1, 15);
    const QDate springs(2024, 3, 30); // the clocks change in the night that follows
    struct Row {
        QDateTime now;
        QTime local;
        const char *hold;
    };
    const Row rows[] = {
        {berlin(summer, {10, 0}), {14, 30}, "12:30"},       {berlin(summer, {10, 0}), {1, 0}, "23:00"},
        {berlin(winter, {10, 0}), {14, 30}, "13:30"},       {berlin(winter, {10, 0}), {0, 15}, "23:15"},
        {berlin(springs, {20, 0}), {22, 0}, "21:00"},       {berlin(springs, {20, 0}), {9, 0}, "07:00"},
        {berlin(winter, {10, 0}), {14, 30, 5}, "13:30:05"},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(dialog::holdFromLocalTime(row.local, row.now), QLatin1String(row.hold))
            << row.now.toString().toStdString();
        EXPECT_EQ(dialog::localTimeFromHold(QLatin1String(row.hold), row.now), row.local) << row.hold;
    }
    for (const char *const hold : {"hold", "night", "", "25:00", "12", "12:00 PM", "-1:00"})
        EXPECT_FALSE(dialog::localTimeFromHold(QLatin1String(hold), rows[0].now)) << hold;
}

TEST_F(JobPageTest, NothingStandsForTheQueuesOwnSettings)
{
    const JobSettings settings = page.settings();
    EXPECT_FALSE(settings.orientation || settings.hold || settings.priority || settings.copies ||
                 settings.collate);
    EXPECT_FALSE(settings.pageRanges);
    EXPECT_EQ(at<QSpinBox>("Priority")->text(), QStringLiteral("Queue default"));
}

TEST_F(JobPageTest, EveryChoiceIsTheWordThatLpTakes)
{
    const std::pair<const char *, const char *> holds[] = {
        {"Now", "resume"},
        {"When it is released", "hold"},
        {"During the day", "day-time"},
        {"In the evening", "evening"},
        {"At night", "night"},
        {"In the second shift", "second-shift"},
        {"In the third shift", "third-shift"},
        {"At the weekend", "weekend"},
    };
    for (const auto &[text, hold] : holds) {
        pick("When to print", text);
        EXPECT_EQ(page.settings().hold, QLatin1String(hold));
    }
    const std::pair<const char *, Orientation> orientations[] = {
        {"Portrait", Orientation::Portrait},
        {"Landscape", Orientation::Landscape},
        {"Reverse landscape", Orientation::ReverseLandscape},
        {"Reverse portrait", Orientation::ReversePortrait},
    };
    for (const auto &[text, orientation] : orientations) {
        pick("Orientation", text);
        EXPECT_EQ(page.settings().orientation, orientation);
    }
    pick("When to print", "Queue default");
    pick("Orientation", "Printer default");
    EXPECT_FALSE(page.settings().hold || page.settings().orientation);
}

TEST_F(JobPageTest, ATimeIsTheUsersAndBecomesTheServers)
{
    auto *const time = page.findChild<QTimeEdit *>();
    EXPECT_FALSE(time->isVisible());
    pick("When to print", "At a specific time");
    EXPECT_TRUE(time->isVisible());
    time->setTime({21, 45});
    EXPECT_EQ(page.settings().hold, dialog::holdFromLocalTime({21, 45}, QDateTime::currentDateTime()));
    pick("When to print", "Now");
    EXPECT_FALSE(time->isVisible());
}

TEST_F(JobPageTest, ATimeIsNotTurnedAround)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const JobPage turned(nullptr);
    auto *const time = turned.findChild<QTimeEdit *>();
    time->setTime({13, 30});
    EXPECT_EQ(time->text(), QLocale().toString(QTime(13, 30), QLocale::ShortFormat));
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(JobPageTest, ShowsQuietlyWhatIsSet)
{
    const QSignalSpy spy(&page, &JobPage::changed);
    struct Row {
        const char *hold;
        const char *shown;
        const char *given; ///< back by settings()
    };
    const Row rows[] = {
        {"hold", "When it is released", "hold"},
        {"indefinite", "When it is released", "hold"},
        {"no-hold", "Now", "resume"},
        {"release", "Now", "resume"},
        {"weekend", "At the weekend", "weekend"},
        {"13:37", "At a specific time", "13:37"},
        {"03:07:09", "At a specific time", "03:07:09"},
        {"full-moon", "full-moon", "full-moon"},
    };
    for (const Row &row : rows) {
        JobSettings settings;
        settings.hold = QLatin1String(row.hold);
        settings.orientation = Orientation::ReverseLandscape;
        settings.priority = 77;
        page.setSettings(settings);
        EXPECT_EQ(at<QComboBox>("When to print")->currentText(), QLatin1String(row.shown));
        EXPECT_EQ(page.settings().hold, QLatin1String(row.given));
        EXPECT_EQ(page.settings().orientation, Orientation::ReverseLandscape);
        EXPECT_EQ(page.settings().priority, 77);
    }
    JobSettings first;
    first.hold = QStringLiteral("immediate");
    page.setSettings(first);
    EXPECT_EQ(page.settings().hold, QStringLiteral("resume"));
    EXPECT_EQ(page.settings().priority, 100);
    page.setSettings({});
    EXPECT_FALSE(page.settings().hold || page.settings().orientation || page.settings().priority);
    page.setTitle(QStringLiteral("Labels"));
    EXPECT_EQ(page.title(), QStringLiteral("Labels"));
    EXPECT_EQ(spy.count(), 0);
}

TEST_F(JobPageTest, TellsWhatTheUserChanges)
{
    QSignalSpy spy(&page, &JobPage::changed);
    QTest::keyClicks(at<QLineEdit>("Job name"), QStringLiteral("A"));
    EXPECT_EQ(spy.count(), 1);
    EXPECT_EQ(page.title(), QStringLiteral("A"));
    auto *const priority = at<QSpinBox>("Priority");
    priority->setFocus();
    priority->selectAll();
    QTest::keyClicks(priority, QStringLiteral("42"));
    EXPECT_EQ(page.settings().priority, 42);
    QTest::keyClicks(priority, QStringLiteral("0"));
    EXPECT_EQ(page.settings().priority, 42) << "no more than 100";
    spy.clear();
    pick("When to print", "At a specific time");
    EXPECT_GE(spy.count(), 1);
    spy.clear();
    auto *const time = page.findChild<QTimeEdit *>();
    time->setTime({13, 0});
    time->setFocus();
    QTest::keyClick(time, Qt::Key_Up);
    EXPECT_GE(spy.count(), 1);
    EXPECT_EQ(time->time(), QTime(14, 0));
}

TEST_F(JobPageTest, TimesGoPastMidnight)
{
    pick("When to print", "At a specific time");
    auto *const time = page.findChild<QTimeEdit *>();
    time->setTime({23, 0});
    time->setFocus();
    QSignalSpy spy(&page, &JobPage::changed);
    QTest::keyClick(time, Qt::Key_Up);
    EXPECT_EQ(time->time(), QTime(0, 0));
    EXPECT_EQ(spy.count(), 1);
    QTest::keyClick(time, Qt::Key_Down);
    EXPECT_EQ(time->time(), QTime(23, 0));
    EXPECT_EQ(spy.count(), 2);
}
