// SPDX-License-Identifier: Apache-2.0
// The options of lp that place pages, as kvprint obeys them, and what the server's filters then receive.
#include <host/setup/JobLayout.h>

#include <gtest/gtest.h>

namespace host {
namespace {

std::vector<JobOption> optionsOf(const std::vector<NamedValue> &values, Origin origin = Origin::You)
{
    std::vector<JobOption> options;
    for (const NamedValue &each : values)
        options.push_back({each.name, each.value, origin, origin != Origin::Queue});
    return options;
}

PpdPaper tape()
{
    PpdPaper paper;
    paper.size = QSizeF(68, 170);
    paper.margins = QMarginsF(8, 6, 8, 6);
    return paper;
}

TEST(JobLayout, ObeysTheOptionsOfLp)
{
    struct Row {
        std::vector<NamedValue> options;
        Scaling scaling;
        Turning turning;
    };
    const Row rows[] = {
        {{}, Scaling::ShrinkLarge, Turning::Automatic},
        {{{"print-scaling", "auto"}}, Scaling::ShrinkLarge, Turning::Automatic},
        {{{"print-scaling", "auto-fit"}}, Scaling::ShrinkLarge, Turning::Automatic},
        {{{"print-scaling", "fit"}}, Scaling::Fit, Turning::Automatic},
        {{{"print-scaling", "fill"}}, Scaling::Fill, Turning::Automatic},
        {{{"print-scaling", "none"}}, Scaling::ActualSize, Turning::Automatic},
        {{{"print-scaling", "sideways"}}, Scaling::ShrinkLarge, Turning::Automatic},
        {{{"fit-to-page", "true"}, {"print-scaling", "none"}}, Scaling::Fit, Turning::Automatic},
        {{{"fitplot", "Yes"}}, Scaling::Fit, Turning::Automatic},
        {{{"fit-to-page", "false"}}, Scaling::ShrinkLarge, Turning::Automatic},
        {{{"orientation-requested", "3"}}, Scaling::ShrinkLarge, Turning::Upright},
        {{{"orientation-requested", "4"}}, Scaling::ShrinkLarge, Turning::CounterClockwise},
        {{{"orientation-requested", "5"}}, Scaling::ShrinkLarge, Turning::Clockwise},
        {{{"orientation-requested", "6"}}, Scaling::ShrinkLarge, Turning::UpsideDown},
        {{{"orientation-requested", "none"}}, Scaling::ShrinkLarge, Turning::Automatic},
        {{{"landscape", "true"}}, Scaling::ShrinkLarge, Turning::CounterClockwise},
        {{{"landscape", "false"}}, Scaling::ShrinkLarge, Turning::Automatic},
    };
    for (const Row &row : rows) {
        const PageLayout layout = layoutOf(tape(), optionsOf(row.options));
        const std::string what =
            row.options.empty() ? "" : (row.options[0].name + '=' + row.options[0].value).toStdString();
        EXPECT_EQ(layout.scaling, row.scaling) << what;
        EXPECT_EQ(layout.turning, row.turning) << what;
        EXPECT_EQ(layout.paper, tape().size);
        EXPECT_EQ(layout.margins, *tape().margins);
    }
}

TEST(JobLayout, ADefaultPortraitOfTheQueueRequestsNothing)
{
    const std::vector<NamedValue> portrait{{"orientation-requested", "3"}};
    EXPECT_EQ(layoutOf(tape(), optionsOf(portrait, Origin::Queue)).turning, Turning::Automatic);
    EXPECT_EQ(layoutOf(tape(), optionsOf(portrait, Origin::UserDefault)).turning, Turning::Upright);
    const std::vector<NamedValue> landscape{{"orientation-requested", "4"}};
    EXPECT_EQ(layoutOf(tape(), optionsOf(landscape, Origin::Queue)).turning, Turning::CounterClockwise);
}

TEST(JobLayout, AlignsPages)
{
    const PageLayout corner = layoutOf(tape(), optionsOf({{"position", "bottom-left"}}));
    EXPECT_EQ(corner.across, Alignment::Start);
    EXPECT_EQ(corner.along, Alignment::End);
    const PageLayout unknown = layoutOf(tape(), optionsOf({{"position", "outside"}}));
    EXPECT_EQ(unknown.across, Alignment::Center);
    EXPECT_EQ(unknown.along, Alignment::Center);
}

TEST(JobLayout, TheFiltersPrintLaidOutPagesAsTheyAre)
{
    std::vector<JobOption> options = optionsOf({{"PageSize", "24x60mm"},
                                                {"fit-to-page", "true"},
                                                {"landscape", "true"},
                                                {"position", "top"},
                                                {"print-scaling", "fill"}});
    const std::vector<JobOption> queues =
        optionsOf({{"fitplot", "true"}, {"number-up", "4"}, {"orientation-requested", "6"}}, Origin::Queue);
    options.insert(options.end(), queues.begin(), queues.end());
    keepLaidOutPages(options);
    const std::vector<JobOption> expected = {
        {"PageSize", "24x60mm", Origin::You, true},           {"fit-to-page", "false", Origin::Layout, true},
        {"landscape", "false", Origin::Layout, true},         {"position", "center", Origin::Layout, true},
        {"fitplot", "false", Origin::Layout, true},           {"number-up", "1", Origin::Layout, true},
        {"orientation-requested", "3", Origin::Layout, true}, {"print-scaling", "none", Origin::Layout, true},
    };
    EXPECT_EQ(options, expected);
}

TEST(JobLayout, LeavesOtherDefaultsToTheServer)
{
    std::vector<JobOption> options = optionsOf(
        {{"number-up", "1"}, {"orientation-requested", "3"}, {"fit-to-page", "false"}}, Origin::Queue);
    std::vector<JobOption> expected = options;
    expected.push_back({"print-scaling", "none", Origin::Layout, true});
    keepLaidOutPages(options);
    EXPECT_EQ(options, expected);
}

TEST(JobLayout, KnowsWhetherTheFiltersMirror)
{
    EXPECT_TRUE(isMirroredByFilters(optionsOf({{"mirror", "true"}})));
    EXPECT_TRUE(isMirroredByFilters(optionsOf({{"mirror", "on"}})));
    EXPECT_FALSE(isMirroredByFilters(optionsOf({{"mirror", "false"}})));
    EXPECT_FALSE(isMirroredByFilters({}));
}

} // namespace
} // namespace host
