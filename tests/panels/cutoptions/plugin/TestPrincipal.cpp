// SPDX-License-Identifier: Apache-2.0
#include "TestPanel.h"

#include <platform/SystemVersion.h>
#include <plugin/KVLXDZOptionsPlugIn.h>
#include <tests/support/PpdBuilder.h>
#include <tests/support/TestDialog.h>

#include <gtest/gtest.h>

using PlugIn = KVLXDZOptions17_2PlugIn13_v400_;
using test_support::PpdBuilder;
using test_support::TestDialog;
using test_support::TestPanel;

namespace {

using Version = std::array<std::optional<int>, 3>;

class PrincipalTest : public testing::Test {
protected:
    void SetUp() override { PlugIn::forgetSystemVersion(); }
    void TearDown() override
    {
        platform::setSystemVersionQuery({});
        PlugIn::forgetSystemVersion();
    }

    void declareVersion(const Version &version)
    {
        platform::setSystemVersionQuery([this, version](const char *selector) -> std::optional<std::int32_t> {
            ++m_queries;
            return version[static_cast<std::size_t>(selector[3] - '1')];
        });
    }

    int m_queries = 0;
    std::shared_ptr<const platform::Bundle> m_bundle =
        platform::Bundle::open(QStringLiteral("/nonexistent"), {});
    std::shared_ptr<TestDialog> m_dialog = std::make_shared<TestDialog>(PpdBuilder().openMarked());
};

} // namespace

TEST_F(PrincipalTest, RunsOnTenPointFiveAndLater)
{
    struct Row {
        Version version;
        bool recentEnough;
    };
    for (const Row &row : std::initializer_list<Row>{{{10, 4, 11}, false},
                                                     {{10, 5, 0}, true},
                                                     {{10, 15, 7}, true},
                                                     {{11, 0, 0}, true},
                                                     {{12, 0, 0}, true},
                                                     {{9, 9, 9}, false},
                                                     {{9, 5, 0}, false},
                                                     {{std::nullopt, std::nullopt, std::nullopt}, false},
                                                     {{std::nullopt, 5, 0}, true},
                                                     {{10, std::nullopt, 0}, false},
                                                     {{11, std::nullopt, std::nullopt}, true}}) {
        PlugIn::forgetSystemVersion();
        declareVersion(row.version);
        EXPECT_EQ(PlugIn::runningOnLeopardOrLater(), row.recentEnough)
            << row.version[0].value_or(-1) << '.' << row.version[1].value_or(-1);
    }
}

TEST_F(PrincipalTest, AsksTheSystemOnce)
{
    declareVersion({11, 0, 0});
    EXPECT_TRUE(PlugIn::runningOnLeopardOrLater());
    EXPECT_EQ(m_queries, 3);
    declareVersion({10, 4, 0});
    EXPECT_TRUE(PlugIn::runningOnLeopardOrLater());
    EXPECT_EQ(m_queries, 3);
}

TEST_F(PrincipalTest, RefusesAnOldSystemAndKeepsNothing)
{
    declareVersion({10, 4, 11});
    PlugIn plugIn([](auto...) { return std::shared_ptr<PDEPanel>(); });
    EXPECT_FALSE(plugIn.initWithBundle(m_bundle.get()));
    EXPECT_EQ(plugIn.bundle(), nullptr);
    PlugIn::forgetSystemVersion();
    declareVersion({10, 5, 0});
    EXPECT_TRUE(plugIn.initWithBundle(m_bundle.get()));
    EXPECT_EQ(plugIn.bundle(), m_bundle.get());
}

TEST_F(PrincipalTest, MakesOnePanelForThePrintDialog)
{
    std::shared_ptr<PDEPluginCallback13_v400_> handedCallback;
    std::shared_ptr<const platform::Bundle> handedBundle;
    PlugIn plugIn([&](auto callback, auto bundle) {
        handedCallback = callback;
        handedBundle = bundle;
        return TestPanel::initWithCallback(callback, bundle);
    });
    ASSERT_TRUE(plugIn.initWithBundle(m_bundle.get()));
    const std::optional<PDEPanelList> panels = plugIn.PDEPanelsForType(PDEPrintDialogType, m_dialog);
    ASSERT_TRUE(panels);
    ASSERT_EQ(panels->size(), 1U);
    EXPECT_EQ(handedCallback, m_dialog);
    EXPECT_EQ(handedBundle, m_bundle);
    const auto second = plugIn.PDEPanelsForType(PDEPrintDialogType, m_dialog);
    ASSERT_TRUE(second);
    EXPECT_NE(second->front(), panels->front()) << "each dialog gets a panel of its own";
}

TEST_F(PrincipalTest, HasNothingForAnotherType)
{
    int made = 0;
    PlugIn plugIn([&](auto...) {
        ++made;
        return std::shared_ptr<PDEPanel>();
    });
    ASSERT_TRUE(plugIn.initWithBundle(m_bundle.get()));
    for (const QString &type : {QString(), QStringLiteral("page setup"), PDEPrintDialogType.toLower()}) {
        const std::optional<PDEPanelList> panels = plugIn.PDEPanelsForType(type, m_dialog);
        ASSERT_TRUE(panels) << type.toStdString();
        EXPECT_TRUE(panels->empty());
    }
    EXPECT_EQ(made, 0);
}

TEST_F(PrincipalTest, APanelThatRefusesGivesNoListAtAll)
{
    PlugIn plugIn([](auto...) { return std::shared_ptr<PDEPanel>(); });
    ASSERT_TRUE(plugIn.initWithBundle(m_bundle.get()));
    EXPECT_EQ(plugIn.PDEPanelsForType(PDEPrintDialogType, m_dialog), std::nullopt);
}
