// SPDX-License-Identifier: Apache-2.0
// The keystroke check against the plain reference, where the space is small enough to walk through.
#include "KeystrokeReference.h"
#include "Refusals.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace {

constexpr std::array styles{
    std::numeric_limits<std::int32_t>::min(), -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13,
    std::numeric_limits<std::int32_t>::max()};

std::unique_ptr<PDEFormatter> formatterWith(const reference::Settings &settings)
{
    auto formatter = PDEFormatter::initWithStyle(settings.style);
    formatter->setMaxLength(settings.maxLength);
    if (settings.maxValue)
        formatter->setMaxValue(*settings.maxValue);
    if (settings.minValue)
        formatter->setMinValue(*settings.minValue);
    for (const QString &text : settings.invalid)
        formatter->addInvalidCharacter(text);
    return formatter;
}

reference::Verdict verdictOf(const PDEFormatter &formatter, const reference::Edit &edit)
{
    const auto refusal = formatter.refusalOf(edit.partial, PDETextRange{edit.proposedLocation, 0},
                                             edit.original, {edit.originalLocation, 0});
    if (!refusal)
        return {};
    return {false, refusal->notification, refusal->invalidText};
}

std::string described(const reference::Settings &settings, const reference::Edit &edit)
{
    QString codes;
    for (const QChar character : edit.partial)
        codes += QStringLiteral(" U+%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
    return QStringLiteral("style %1, max length %2:%3")
        .arg(settings.style)
        .arg(settings.maxLength)
        .arg(codes)
        .toStdString();
}

} // namespace

TEST(KeystrokeStyles, EveryCharacterAloneInEveryStyle)
{
    for (const std::int32_t style : styles) {
        const reference::Settings settings{style, 0, {}, {}, {}};
        const auto formatter = formatterWith(settings);
        int accepted = 0;
        for (int code = 0; code <= 0xffff; ++code) {
            const reference::Edit edit{QString(QChar(static_cast<char16_t>(code))), 1, QString(), 0};
            const reference::Verdict verdict = verdictOf(*formatter, edit);
            ASSERT_EQ(verdict, reference::check(settings, edit)) << described(settings, edit);
            accepted += verdict.accepted ? 1 : 0;
        }
        RecordProperty("accepted_in_style_" + std::to_string(style), accepted);
    }
}

TEST(KeystrokeStyles, NumberOfAcceptedCharacters)
{
    struct Row {
        std::int32_t style;
        int accepted;
    };
    for (const Row &row :
         {Row{0, 65536}, Row{1, 128}, Row{2, 10}, Row{3, 128}, Row{4, 11}, Row{5, 128}, Row{6, 63},
          Row{7, 69}, Row{8, 16}, Row{9, 24}, Row{10, 95}, Row{11, 82}, Row{12, 128}, Row{-1, 128}}) {
        const auto formatter = PDEFormatter::initWithStyle(row.style);
        int accepted = 0;
        for (int code = 0; code <= 0xffff; ++code) {
            const QString text{QChar(static_cast<char16_t>(code))};
            accepted += formatter->refusalOf(text, PDETextRange{1, 0}, QString(), {0, 0}) ? 0 : 1;
        }
        EXPECT_EQ(accepted, row.accepted) << "style " << row.style;
    }
}

TEST(KeystrokeStyles, PastesOfOneToThreeCharactersFromEveryClass)
{
    const std::array<char16_t, 19> classes{u'0', u'7', u'.', u'A', u'D',    u'Z', u'd',  u'z',   u' ',  u'$',
                                           u':', u'_', u'#', u'~', u'\x01', u'é', u'日', 0xd83d, 0xde00};
    std::vector<QString> pastes;
    for (const char16_t first : classes) {
        pastes.push_back(QString(QChar(first)));
        for (const char16_t second : classes) {
            pastes.push_back(QString(QChar(first)) + QChar(second));
            for (const char16_t third : classes)
                pastes.push_back(QString(QChar(first)) + QChar(second) + QChar(third));
        }
    }
    ASSERT_EQ(pastes.size(), 19u + 19u * 19u + 19u * 19u * 19u);

    for (const std::int32_t style : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}) {
        for (const reference::Settings &settings :
             {reference::Settings{style, 0, {}, {}, {}},
              reference::Settings{
                  .style = style, .maxLength = 3, .maxValue = 50, .minValue = 5, .invalid = {"7", "A."}}}) {
            const auto formatter = formatterWith(settings);
            for (const QString &original : {QString(), QStringLiteral("1.")}) {
                for (const QString &paste : pastes) {
                    const reference::Edit edit{original + paste, original.size() + paste.size(), original,
                                               original.size()};
                    ASSERT_EQ(verdictOf(*formatter, edit), reference::check(settings, edit))
                        << described(settings, edit);
                }
            }
        }
    }
}

TEST(KeystrokeStyles, RefusalIsOneBeepAndOneNotificationWhateverIsPasted)
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    for (const QString &paste :
         {QStringLiteral("x"), QStringLiteral("xyz"), QStringLiteral("日本語"), QString(1000, u'x')}) {
        Refusals choiceErrors;
        EXPECT_FALSE(typed(*formatter, "1", paste));
        EXPECT_EQ(choiceErrors.beeps(), 1u);
        EXPECT_EQ(choiceErrors.notifications.size(), 1u);
    }
    Refusals none;
    EXPECT_TRUE(typed(*formatter, "1", "234"));
    EXPECT_EQ(none.beeps(), 0u);
    EXPECT_TRUE(none.notifications.empty());
}
