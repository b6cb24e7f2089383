// SPDX-License-Identifier: Apache-2.0
#include "Refusals.h"

#include <gtest/gtest.h>

namespace {

const QString invalidCharacter = PDEFormatter::invalidCharacterNotification;
const QString formatError = PDEFormatter::formatErrorNotification;

std::unique_ptr<PDEFormatter> numberField(std::int32_t maxLength, std::int32_t minimum, std::int32_t maximum)
{
    auto formatter = PDEFormatter::initWithStyle(2);
    formatter->setMaxLength(maxLength);
    formatter->setMinValue(minimum);
    formatter->setMaxValue(maximum);
    return formatter;
}

/// The one refusal that typing the text makes: exactly one beep and one notification.
platform::Notification refusalOfTyping(const PDEFormatter &formatter, const QString &original,
                                       const QString &text)
{
    Refusals choiceErrors;
    EXPECT_FALSE(typed(formatter, original, text)) << qPrintable(original + text);
    EXPECT_EQ(choiceErrors.beeps(), 1u);
    EXPECT_EQ(choiceErrors.notifications.size(), 1u);
    return choiceErrors.notifications.empty() ? platform::Notification{} : choiceErrors.notifications.front();
}

} // namespace

TEST(PDEFormatter, StartsWithEverythingAtZero)
{
    const auto formatter = PDEFormatter::init();
    EXPECT_EQ(formatter->formatString(), QStringLiteral("%@"));
    EXPECT_EQ(formatter->textStyle(), 0);
    EXPECT_EQ(formatter->maxLength(), 0);
    EXPECT_EQ(formatter->maxValue(), 0);
    EXPECT_EQ(formatter->minValue(), 0);
    EXPECT_FALSE(formatter->isValidityMaxValue());
    EXPECT_FALSE(formatter->isValidityMinValue());
    EXPECT_FALSE(formatter->calendarDate());
    EXPECT_FALSE(formatter->calendarLocale());
    EXPECT_TRUE(std::holds_alternative<std::monostate>(formatter->notificationObject()));
    EXPECT_FALSE(formatter->isInvalidCharacter(QString()));
}

TEST(PDEFormatter, ConstructsWithStyleAndFormat)
{
    EXPECT_EQ(PDEFormatter::initWithStyle(-3)->textStyle(), -3);
    EXPECT_EQ(PDEFormatter::initWithStyle(7)->formatString(), QStringLiteral("%@"));
    EXPECT_EQ(PDEFormatter::initWithFormatString(QStringLiteral("%d mm"))->formatString(),
              QStringLiteral("%d mm"));
    EXPECT_EQ(PDEFormatter::initWithFormatString(std::nullopt)->formatString(), QStringLiteral("%@"));
    const auto both = PDEFormatter::initWithFormatString(QString(), 4);
    EXPECT_EQ(both->formatString(), QString());
    EXPECT_EQ(both->textStyle(), 4);
}

TEST(PDEFormatter, CalendarFormatterHasNoFormatUntilOneIsSet)
{
    const auto formatter = PDEFormatter::initWithCalendarDate(std::nullopt, std::nullopt);
    EXPECT_EQ(formatter->textStyle(), 5);
    EXPECT_FALSE(formatter->formatString());
    formatter->setFormatString(std::nullopt);
    EXPECT_EQ(formatter->formatString(), QStringLiteral("%@"));
}

TEST(PDEFormatter, SettingABoundPutsItInForceAndTakingItOutKeepsIt)
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    formatter->setMaxValue(9);
    EXPECT_TRUE(formatter->isValidityMaxValue());
    EXPECT_FALSE(formatter->isValidityMinValue());
    EXPECT_FALSE(typed(*formatter, "1", "0"));
    formatter->setValidityMaxValue(false);
    EXPECT_EQ(formatter->maxValue(), 9);
    EXPECT_TRUE(typed(*formatter, "1", "0"));
    formatter->setMinValue(3);
    EXPECT_TRUE(formatter->isValidityMinValue());
    EXPECT_FALSE(typed(*formatter, "", "2"));
    formatter->setValidityMinValue(false);
    EXPECT_TRUE(typed(*formatter, "", "2"));
    formatter->setValidityMaxValue(true);
    EXPECT_FALSE(typed(*formatter, "1", "0"));
}

TEST(PDEFormatter, ListOfRefusedTextsKeepsDuplicatesAndRemovesThemTogether)
{
    const auto formatter = PDEFormatter::init();
    formatter->removeInvalidCharacter("a");
    formatter->addInvalidCharacter(std::nullopt);
    EXPECT_FALSE(formatter->isInvalidCharacter(QString()));
    for (const char *text : {"a", "b", "a"})
        formatter->addInvalidCharacter(QString::fromLatin1(text));
    formatter->removeInvalidCharacter("A");
    EXPECT_TRUE(formatter->isInvalidCharacter("a"));
    formatter->removeInvalidCharacter("a");
    EXPECT_FALSE(formatter->isInvalidCharacter("a"));
    EXPECT_TRUE(formatter->isInvalidCharacter("b"));
    EXPECT_FALSE(formatter->isInvalidCharacter("ab"));
}

TEST(PDEFormatter, RangeIsCheckedOnlyWhenTheFieldIsFull)
{
    const auto formatter = numberField(3, 1, 255);
    EXPECT_TRUE(typed(*formatter, "", "2"));
    EXPECT_TRUE(typed(*formatter, "2", "5"));
    EXPECT_TRUE(typed(*formatter, "", "0")) << "below the lower bound, but there is room left";
    EXPECT_TRUE(typed(*formatter, "25", "5"));
    EXPECT_EQ(refusalOfTyping(*formatter, "25", "6").name, formatError);
    const platform::Notification tooLong = refusalOfTyping(*formatter, "255", "1");
    EXPECT_EQ(tooLong.name, invalidCharacter);
    EXPECT_EQ(tooLong.object, formatter.get());
    EXPECT_EQ(tooLong.text, QString());
}

TEST(PDEFormatter, RangeIsCheckedAtOnceWithoutALengthLimit)
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    formatter->setMinValue(10);
    EXPECT_EQ(refusalOfTyping(*formatter, "", "5").name, formatError);
    EXPECT_TRUE(typed(*formatter, "5", "5"));
}

TEST(PDEFormatter, NegativeLengthLimitLetsNothingIn)
{
    const auto formatter = PDEFormatter::init();
    formatter->setMaxLength(-1);
    EXPECT_EQ(refusalOfTyping(*formatter, "", "x").name, invalidCharacter);
}

TEST(PDEFormatter, BoundsBeyondTheEndsOf32BitsClamp)
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    formatter->setMaxValue(2147483647);
    EXPECT_TRUE(typed(*formatter, "2147483647", "9"));
    formatter->setMaxValue(2147483646);
    EXPECT_FALSE(typed(*formatter, "2147483647", "9"));
}

TEST(PDEFormatter, EditsThatDoNotMoveForwardAreNeverChecked)
{
    const auto formatter = numberField(2, 50, 60);
    Refusals choiceErrors;
    const auto edit = [&](const std::optional<QString> &partial, const std::optional<PDETextRange> &proposed,
                          PDETextRange original) {
        return formatter->isPartialStringValid(partial, proposed, QStringLiteral("1234"), original, nullptr);
    };
    EXPECT_TRUE(edit(QStringLiteral("123"), PDETextRange{3, 0}, {4, 0})) << "backspace, still too long";
    EXPECT_TRUE(edit(QStringLiteral("134"), PDETextRange{1, 0}, {1, 0})) << "delete";
    EXPECT_TRUE(edit(QStringLiteral("xyz"), PDETextRange{2, 0}, {2, 2})) << "does not move";
    EXPECT_TRUE(edit(std::nullopt, PDETextRange{9, 0}, {0, 0}));
    EXPECT_TRUE(edit(QString(), PDETextRange{9, 0}, {0, 0}));
    EXPECT_TRUE(edit(QStringLiteral("xyz"), std::nullopt, {0, 0}));
    EXPECT_TRUE(edit(QStringLiteral("xyz"), PDETextRange{9, 0}, {5, 0})) << "nothing was inserted there";
    EXPECT_EQ(choiceErrors.beeps(), 0u);
    EXPECT_TRUE(choiceErrors.notifications.empty());
    EXPECT_FALSE(edit(QStringLiteral("xyz"), PDETextRange{1, 0}, {0, 4}));
}

TEST(PDEFormatter, SecondFullStopIsRefused)
{
    const auto formatter = PDEFormatter::initWithStyle(4);
    EXPECT_EQ(refusalOfTyping(*formatter, "1.5", ".").name, invalidCharacter);
    EXPECT_TRUE(typed(*formatter, "15", "."));
    EXPECT_TRUE(typed(*formatter, "", "."));
    EXPECT_TRUE(typed(*formatter, "1.5", "5"));
}

TEST(PDEFormatter, OnlyThePreviousTextsFullStopsCount)
{
    const auto formatter = PDEFormatter::initWithStyle(4);
    EXPECT_TRUE(typed(*formatter, "", "1.2.3")) << "a paste into an empty field may bring several";
    EXPECT_FALSE(formatter->isPartialStringValid(QStringLiteral("."), PDETextRange{1, 0},
                                                 QStringLiteral("1.5"), {0, 3}, nullptr))
        << "even one that replaces the full stop that was there";
}

TEST(PDEFormatter, StyleZeroTakesAnythingAndStyleOneOnlyAscii)
{
    EXPECT_TRUE(typed(*PDEFormatter::init(), "", QStringLiteral("日本語é\u0001")));
    const auto ascii = PDEFormatter::initWithStyle(1);
    const platform::Notification accent = refusalOfTyping(*ascii, "", QStringLiteral("é"));
    EXPECT_EQ(accent.name, invalidCharacter);
    EXPECT_EQ(accent.object, ascii.get()) << "Macintosh Roman has it, so no character is named";
    const platform::Notification kanji = refusalOfTyping(*ascii, "", QStringLiteral("日"));
    EXPECT_EQ(kanji.name, invalidCharacter);
    EXPECT_EQ(kanji.object, nullptr);
    EXPECT_EQ(kanji.text, QStringLiteral("日"));
}

TEST(PDEFormatter, RefusedPasteNamesItsLastCharacter)
{
    const auto ascii = PDEFormatter::initWithStyle(1);
    EXPECT_EQ(refusalOfTyping(*ascii, "", QStringLiteral("a日b")).text, QStringLiteral("b"));
    const auto listed = PDEFormatter::init();
    listed->addInvalidCharacter(QStringLiteral("xyz"));
    EXPECT_EQ(refusalOfTyping(*listed, "", "xyz").text, QStringLiteral("z"));
}

TEST(PDEFormatter, ListOfRefusedTextsIsHeldAgainstTheWholeInsertion)
{
    const auto formatter = PDEFormatter::init();
    formatter->addInvalidCharacter(QStringLiteral("a"));
    EXPECT_TRUE(typed(*formatter, "", "ab"));
    EXPECT_TRUE(typed(*formatter, "", "aa"));
    const platform::Notification refused = refusalOfTyping(*formatter, "b", "a");
    EXPECT_EQ(refused.name, invalidCharacter);
    EXPECT_EQ(refused.text, QStringLiteral("a"));
    EXPECT_EQ(refused.object, nullptr);
}

TEST(PDEFormatter, LastFaultOfAPasteGivesTheNotification)
{
    const auto formatter = numberField(0, 0, 9);
    EXPECT_EQ(refusalOfTyping(*formatter, "", "99x").name, invalidCharacter);
    EXPECT_EQ(refusalOfTyping(*formatter, "12", "x9").name, formatError);
    EXPECT_EQ(refusalOfTyping(*formatter, "", "9x9").name, invalidCharacter) << "9x9 is read as 9, in range";
}

TEST(PDEFormatter, BoundsThemselvesAreInRange)
{
    const auto formatter = numberField(0, 5, 7);
    EXPECT_FALSE(typed(*formatter, "", "4"));
    EXPECT_TRUE(typed(*formatter, "", "5"));
    EXPECT_TRUE(typed(*formatter, "", "7"));
    EXPECT_FALSE(typed(*formatter, "", "8"));
}

TEST(PDEFormatter, MaximumIsTestedBeforeMinimum)
{
    const auto crossed = numberField(0, 100, 5);
    EXPECT_EQ(refusalOfTyping(*crossed, "", "7").name, formatError);
    EXPECT_EQ(refusalOfTyping(*crossed, "", "3").name, formatError);
}

TEST(PDEFormatter, NotificationCarriesCharacterThenObjectThenFormatter)
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    EXPECT_EQ(refusalOfTyping(*formatter, "", "x").object, formatter.get());
    formatter->setNotificationObject(QStringLiteral("count"));
    EXPECT_EQ(refusalOfTyping(*formatter, "", "x").text, QStringLiteral("count"));
    EXPECT_EQ(refusalOfTyping(*formatter, "", "x").object, nullptr);
    EXPECT_EQ(refusalOfTyping(*formatter, "", QStringLiteral("日")).text, QStringLiteral("日"));
    const auto owned = std::make_shared<int>(1);
    formatter->setNotificationObject(owned);
    EXPECT_EQ(owned.use_count(), 2);
    EXPECT_EQ(refusalOfTyping(*formatter, "", "x").object, owned.get());
    formatter->setNotificationObject({});
    EXPECT_EQ(owned.use_count(), 1);
    EXPECT_EQ(refusalOfTyping(*formatter, "", "x").object, formatter.get());
}

TEST(PDEFormatter, BeepsBeforeItPosts)
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    std::uint64_t beepsWhenPosted = 0;
    const std::uint64_t before = platform::beepCount();
    auto &center = platform::NotificationCenter::defaultCenter();
    center.addObserver(this, invalidCharacter, nullptr,
                       [&](const platform::Notification &) { beepsWhenPosted = platform::beepCount(); });
    EXPECT_FALSE(typed(*formatter, "", "x"));
    center.removeObserver(this);
    EXPECT_EQ(beepsWhenPosted, before + 1);
}

TEST(PDEFormatter, DisplaysValuesThroughTheFormat)
{
    struct Row {
        const char *format;
        std::int32_t style;
        QVariant object;
        const char *text;
    };
    const Row rows[] = {
        {"%@", 0, "abc", "abc"},
        {"%@", 2, "12 mm", "12 mm"},
        {"No. %@", 2, 7, "No. 7"},
        {"%d mm", 2, "12.9x", "12 mm"},
        {"%d mm", 4, "12.9x", "12 mm"},
        {"%03d", 2, 7, "007"},
        {"%d", 2, "abc", "0"},
        {"%d", 4, 12.9, "12"},
        {"%ld", 2, 1e30, "2147483647"},
        {"%x", 2, -1, "ffffffff"},
        {"%d mm", 0, "12", "%d mm"},
        {"%d %@", 2, "12", "%d %@"},
        {"%%", 2, 5, "%"},
        {"mm", 2, 5, "mm"},
        {"%@ and %@", 0, "a", "a and %@"},
        {"%@", 5, "no date set", "no date set"},
        {"%@", 0, QVariant(), "(null)"},
        {"%@", 0, QVariantList({1, "b"}), "(1, b)"},
    };
    for (const Row &row : rows) {
        const auto formatter = PDEFormatter::initWithFormatString(QString::fromLatin1(row.format), row.style);
        EXPECT_EQ(formatter->stringForObjectValue(row.object), QString::fromLatin1(row.text)) << row.format;
    }
}

TEST(PDEFormatter, DisplaysTheDateInsteadOfTheValue)
{
    const QDateTime date(QDate(2024, 2, 9), QTime(13, 5, 7), Qt::OffsetFromUTC, 3600);
    const auto formatter = PDEFormatter::initWithCalendarDate(date, std::nullopt);
    EXPECT_EQ(formatter->stringForObjectValue("x"), QStringLiteral("2024-02-09 13:05:07 +0100"));
    formatter->setFormatString(QStringLiteral("%d.%m."));
    EXPECT_EQ(formatter->stringForObjectValue("x"), QStringLiteral("09.02."));
    formatter->setFormatString(std::nullopt);
    EXPECT_EQ(formatter->stringForObjectValue("x"), QStringLiteral("%@"))
        << "no directive of a calendar format";
    formatter->setTextStyle(1);
    EXPECT_EQ(formatter->stringForObjectValue("x"), QStringLiteral("x"));
    formatter->setTextStyle(5);
    formatter->setCalendarDate(std::nullopt);
    EXPECT_EQ(formatter->stringForObjectValue("x"), QStringLiteral("x"));
}

TEST(PDEFormatter, ObjectValueIsTheDisplayOfTheText)
{
    const auto formatter = PDEFormatter::initWithFormatString(QStringLiteral("%d mm"), 2);
    std::optional<QString> object;
    QString error = QStringLiteral("untouched");
    EXPECT_TRUE(formatter->getObjectValue(&object, std::nullopt, &error));
    EXPECT_FALSE(object);
    EXPECT_TRUE(formatter->getObjectValue(nullptr, QStringLiteral("5"), &error));
    EXPECT_TRUE(formatter->getObjectValue(&object, QStringLiteral("5 and more"), &error));
    EXPECT_EQ(object, QStringLiteral("5 mm"));
    EXPECT_EQ(error, QStringLiteral("untouched"));
}
