// SPDX-License-Identifier: Apache-2.0
#include "Shrinker.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using walk::Episode;

TEST(Shrinker, LeavesWhatTheFailureNeeds)
{
    Episode episode;
    for (const char *keyword : {"KvMirror", "KvHalfCut", "KvChainPrint"})
        episode.printer.options.push_back(model::switchOption(keyword, keyword, false));
    episode.printer.options.push_back(model::countOption("KvCutLabel", "Cut", 1, 300, 1));
    episode.printer.tapeType = "DZ";
    episode.printer.papers = {"24mm", "FL01"};
    episode.requests.append({{"op", "open"}, {"marks", QJsonArray{1, 2, 3}}, {"language", "de"}});
    for (int number = 0; number < 40; ++number)
        episode.requests.append({{"op", "step"}, {"value", number}, {"force", true}});
    const auto has = [](const Episode &candidate, int value) {
        return std::ranges::any_of(candidate.requests, [value](const QJsonObject &request) {
            return request["op"] == "step" && request["value"] == value;
        });
    };
    int judged = 0;
    walk::Shrinker shrinker([&](const Episode &candidate) {
        ++judged;
        const auto *counts = candidate.printer.option("KvCutLabel");
        return has(candidate, 7) && has(candidate, 31) && counts && counts->choices.size() >= 17 &&
               candidate.requests[0]["marks"].toArray().contains(2);
    });
    const auto shortest = shrinker.shrink(episode);
    EXPECT_EQ(shortest.requests, (QList<QJsonObject>{{{"op", "open"}, {"marks", QJsonArray{2}}},
                                                     {{"op", "step"}, {"value", 7}},
                                                     {{"op", "step"}, {"value", 31}}}));
    ASSERT_EQ(shortest.printer.options.size(), 1u);
    EXPECT_EQ(shortest.printer.options[0].choices.size(), 17u);
    EXPECT_FALSE(shortest.printer.tapeType);
    EXPECT_TRUE(shortest.printer.papers.isEmpty());
    EXPECT_LT(judged, 400);
}

} // namespace
