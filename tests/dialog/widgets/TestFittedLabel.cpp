// SPDX-License-Identifier: Apache-2.0
#include <dialog/widgets/FittedLabel.h>

#include <gtest/gtest.h>

#include <QApplication>

namespace dialog {
namespace {

constexpr int minLines = 1;
constexpr int maxLines = 6;

const QString oneLine = QStringLiteral("Low tape.");
const QString manyWords = QStringLiteral("Half cut and special tape conflict. ").repeated(40);

class FittedLabelTest : public testing::Test {
protected:
    int lines() const { return label.height() / label.fontMetrics().lineSpacing(); }

    FittedLabel label{minLines, maxLines, nullptr};
};

TEST_F(FittedLabelTest, AShorterMessageMakesItLower)
{
    label.resize(400, 10);
    label.show();
    label.setMessage(manyWords);
    EXPECT_EQ(lines(), maxLines);
    label.setMessage(oneLine);
    EXPECT_EQ(lines(), minLines);
}

TEST_F(FittedLabelTest, AWiderLabelIsLower)
{
    label.setMessage(QStringLiteral("Special Tape: On and Cut at End: On conflict."));
    label.resize(60, 10);
    label.show();
    EXPECT_GT(lines(), 3);
    label.resize(1000, label.height());
    EXPECT_EQ(lines(), 1);
}

} // namespace
} // namespace dialog
