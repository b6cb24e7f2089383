// SPDX-License-Identifier: Apache-2.0
#include "OptionsPageFixture.h"

TEST_F(OptionsPageTest, ConflictsStandAtTheControlsAndGroups)
{
    open();
    const int choices = in<QComboBox>("Darkness")->count();
    tick(in<QCheckBox>("Turbo"));
    EXPECT_EQ(warning("Turbo"), QString());
    pick(in<QComboBox>("Darkness"), 2);
    const QString sentence = QStringLiteral("\"Darkness: Dark\" and \"Turbo: Fast\" conflict.");
    EXPECT_EQ(warning("Turbo"), sentence);
    EXPECT_EQ(warning("Darkness"), sentence);
    EXPECT_EQ(in<QComboBox>("Darkness")->accessibleDescription(), sentence);
    EXPECT_EQ(in<QCheckBox>("Turbo")->accessibleDescription(), sentence);
    EXPECT_FALSE(groups()->item(0)->icon().isNull());
    EXPECT_TRUE(groups()->item(1)->icon().isNull());
    // The conflict does not remove any choice.
    EXPECT_EQ(in<QComboBox>("Darkness")->count(), choices);
    EXPECT_TRUE(in<QCheckBox>("Turbo")->isEnabled());

    pick(in<QComboBox>("Darkness"), 1);
    EXPECT_EQ(warning("Turbo"), QString());
    EXPECT_EQ(in<QCheckBox>("Turbo")->accessibleDescription(), QString());
    EXPECT_TRUE(groups()->item(0)->icon().isNull());
}

TEST_F(OptionsPageTest, AConflictInAGroupNotYetOpenedIsSeenThere)
{
    open();
    ppd->mark(QStringLiteral("Marks"), QStringLiteral("Crop"));
    pick(in<QComboBox>("Darkness"), 0);
    EXPECT_FALSE(groups()->item(1)->icon().isNull());
    EXPECT_TRUE(groups()->item(1)->toolTip().contains(QStringLiteral("Crop marks")));
    EXPECT_FALSE(control("Marks"));
    chooseGroup(1);
    EXPECT_TRUE(warning("Marks").contains(QStringLiteral("Darkness: Light")));
}

TEST_F(OptionsPageTest, AConflictingChoiceOfTwoCanBeMended)
{
    open();
    mark("Turbo", "True");
    mark("Darkness", "Dark");
    const auto remedy = host::Constraints(*ppd).remedy();
    ASSERT_TRUE(remedy);
    for (const auto &change : remedy->changes)
        ppd->mark(change.keyword, change.choice);
    update();
    EXPECT_EQ(warning("Turbo"), QString());
}
