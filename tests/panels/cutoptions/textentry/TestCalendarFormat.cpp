// SPDX-License-Identifier: Apache-2.0
#include <textentry/CalendarFormat.h>

#include <gtest/gtest.h>

using textentry::descriptionWithCalendarFormat;

namespace {

/// A Sunday before noon in a short month, and a Wednesday after it at the end of a leap year.
const QDateTime sunday(QDate(2023, 2, 5), QTime(0, 4, 9, 7), Qt::OffsetFromUTC, -12600);
const QDateTime wednesday(QDate(2104, 12, 31), QTime(13, 45, 0, 250), Qt::UTC);

} // namespace

TEST(CalendarFormat, EveryDirective)
{
    struct Row {
        const char *format;
        const char *sunday;
        const char *wednesday;
    };
    const Row rows[] = {
        {"%Y", "2023", "2104"},
        {"%y", "23", "04"},
        {"%m", "02", "12"},
        {"%B", "February", "December"},
        {"%b", "Feb", "Dec"},
        {"%d", "05", "31"},
        {"%e", "5", "31"},
        {"%j", "036", "366"},
        {"%A", "Sunday", "Wednesday"},
        {"%a", "Sun", "Wed"},
        {"%w", "0", "3"},
        {"%H", "00", "13"},
        {"%I", "12", "01"},
        {"%p", "AM", "PM"},
        {"%M", "04", "45"},
        {"%S", "09", "00"},
        {"%F", "007", "250"},
        {"%Z", "UTC-03:30", "UTC"},
        {"%z", "-0330", "+0000"},
        {"%x", "02/05/23", "12/31/04"},
        {"%X", "00:04:09", "13:45:00"},
        {"%%", "%", "%"},
        {"%c", "00:04:09 02/05/23", "13:45:00 12/31/04"},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(descriptionWithCalendarFormat(sunday, QString::fromLatin1(row.format), std::nullopt),
                  row.sunday)
            << row.format;
        EXPECT_EQ(descriptionWithCalendarFormat(wednesday, QString::fromLatin1(row.format), std::nullopt),
                  row.wednesday)
            << row.format;
    }
}

TEST(CalendarFormat, DefaultFormatNamesDateTimeAndOffset)
{
    EXPECT_EQ(descriptionWithCalendarFormat(sunday, std::nullopt, std::nullopt),
              QStringLiteral("2023-02-05 00:04:09 -0330"));
}

TEST(CalendarFormat, UnknownDirectivesStandAsWritten)
{
    for (const char *text : {"", "%", "a%", "%Q", "%5d", "%@", "%é", "plain", "%-d"}) {
        const QString format = QString::fromUtf8(text);
        EXPECT_EQ(descriptionWithCalendarFormat(sunday, format, std::nullopt), format);
    }
    EXPECT_EQ(descriptionWithCalendarFormat(sunday, QStringLiteral("%Q%d%%d%"), std::nullopt),
              QStringLiteral("%Q05%d%"));
}

TEST(CalendarFormat, EveryHourOfTheDay)
{
    for (int hour = 0; hour < 24; ++hour) {
        const QDateTime date(QDate(2024, 1, 1), QTime(hour, 0), Qt::UTC);
        const int shown = hour % 12 == 0 ? 12 : hour % 12;
        EXPECT_EQ(descriptionWithCalendarFormat(date, QStringLiteral("%I %p"), std::nullopt),
                  QStringLiteral("%1 %2").arg(shown, 2, 10, QLatin1Char('0')).arg(hour < 12 ? "AM" : "PM"));
    }
}

TEST(CalendarFormat, LocaleGivesNamesAndFormats)
{
    const QVariantMap german{
        {"NSMonthNameArray", QVariantList{"Januar", "Februar"}},
        {"NSShortMonthNameArray", QVariantList{"Jan.", "Feb."}},
        {"NSWeekDayNameArray", QVariantList{"Sonntag"}},
        {"NSShortWeekDayNameArray", QVariantList{"So"}},
        {"NSAMPMDesignation", QVariantList{"vorm.", "nachm."}},
        {"NSDateFormatString", "%d.%m.%Y"},
        {"NSTimeFormatString", "%H.%M Uhr"},
        {"NSTimeDateFormatString", "%a, %x, %X"},
    };
    EXPECT_EQ(descriptionWithCalendarFormat(sunday, QStringLiteral("%A %a %B %b %p"), german),
              QStringLiteral("Sonntag So Februar Feb. vorm."));
    EXPECT_EQ(descriptionWithCalendarFormat(sunday, QStringLiteral("%x|%X|%c"), german),
              QStringLiteral("05.02.2023|00.04 Uhr|So, 05.02.2023, 00.04 Uhr"));
    EXPECT_EQ(descriptionWithCalendarFormat(wednesday, QStringLiteral("%A %B %p"), german),
              QStringLiteral("Wednesday December nachm."))
        << "lists that are too short are filled up in English";
}

TEST(CalendarFormat, LocaleOfOtherTypesIsEnglish)
{
    const QVariantMap strange{{"NSMonthNameArray", "February"},
                              {"NSAMPMDesignation", QVariantList{1, 2}},
                              {"NSDateFormatString", 5},
                              {"NSWeekDayNameArray", QVariantMap{}}};
    EXPECT_EQ(descriptionWithCalendarFormat(sunday, QStringLiteral("%B %p %x %A"), strange),
              QStringLiteral("February AM 02/05/23 Sunday"));
}

TEST(CalendarFormat, LocaleFormatThatNamesItselfHasAnEnd)
{
    const QVariantMap endless{
        {"NSTimeDateFormatString", "<%c>"}, {"NSDateFormatString", "[%X]"}, {"NSTimeFormatString", "(%x)"}};
    EXPECT_EQ(descriptionWithCalendarFormat(sunday, QStringLiteral("%c"), endless), QStringLiteral("<<%c>>"));
    EXPECT_EQ(descriptionWithCalendarFormat(sunday, QStringLiteral("%x"), endless), QStringLiteral("[(%x)]"));
}
