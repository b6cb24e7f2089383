// SPDX-License-Identifier: Apache-2.0
#include <host/cups/jobs/ChoiceCheck.h>
#include <tests/samples/OptionsPpd.h>
#include <tests/samples/Sandbox.h>
#include <tests/support/PpdBuilder.h>

#include <gtest/gtest.h>

using host::PpdFile;
using test_support::PpdBuilder;

TEST(ChoiceCheck, NamesWhatThePrinterDoesNotHave)
{
    using host::ChoiceErrorKind;
    const Sandbox sandbox;
    const PpdFile ppd =
        openPpd(sandbox, PpdBuilder()
                             .options({"KvHalfCut", "KvCutLabel"})
                             .option({"Many", "Many", {{"A", ""}, {"B", ""}}, "A", "PickMany"})
                             .paper("small", 68.0, 170.0)
                             .paper("unusable", 0.0, 170.0)
                             .ppd());
    struct Row {
        const char *name;
        const char *value;
        std::optional<ChoiceErrorKind> kind;
    };
    const Row rows[] = {
        {"KvHalfCut", "ON", {}},
        {"KvHalfCut", "on", ChoiceErrorKind::UnknownChoice},
        {"KvHalfCut", "Custom.3", ChoiceErrorKind::UnknownChoice},
        {"kvhalfcut", "ON", ChoiceErrorKind::UnknownOption},
        {"KvMirror", "ON", ChoiceErrorKind::UnknownOption},
        {"Many", "A,B", {}},
        {"Many", "", {}},
        {"Many", "A,C", ChoiceErrorKind::UnknownChoice},
        {"PageSize", "small", {}},
        {"PageSize", "Small", ChoiceErrorKind::UnknownPaper},
        {"PageSize", "A4", ChoiceErrorKind::UnknownPaper},
        {"PageSize", "Custom.30x40mm", ChoiceErrorKind::UnknownPaper},
        {"PageSize", "unusable", ChoiceErrorKind::UnusablePaper},
        {"job-hold-until", "night", {}},
        {"media", "anything", {}},
    };
    for (const Row &row : rows) {
        const auto checked = checkChoice(ppd, {row.name, row.value});
        EXPECT_EQ(checked ? std::nullopt : std::optional(checked.error().kind), row.kind)
            << row.name << "=" << row.value;
        if (!checked) {
            EXPECT_TRUE(checked.error().message.contains(
                QLatin1String(row.kind == ChoiceErrorKind::UnknownOption ? row.name : row.value)));
        }
    }
}

TEST(ChoiceCheck, WhatTheUserHasSetOutlivesAReplacedPpd)
{
    const Sandbox sandbox;
    PpdFile fresh = openPpd(sandbox, PpdBuilder().options({"KvMirror"}).paper("kept", 68.0, 170.0).ppd());
    const host::CarriedChoices carried = carryOverChoices(
        {{"KvMirror", "ON"}, {"KvHalfCut", "ON"}, {"PageSize", "kept"}, {"copies", "2"}}, fresh);
    ASSERT_EQ(carried.kept.size(), 3U);
    ASSERT_EQ(carried.lost.size(), 1U);
    EXPECT_TRUE(carried.lost[0].message.contains(QStringLiteral("KvHalfCut")));
    EXPECT_EQ(fresh.markedChoice(QStringLiteral("KvMirror")), QStringLiteral("ON"));
    EXPECT_EQ(fresh.markedPaper()->name, "kept");
}
