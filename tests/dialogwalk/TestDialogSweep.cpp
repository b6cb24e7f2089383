// SPDX-License-Identifier: Apache-2.0
// Every ready-made combination on every kind of paper, with boxes in varying states, through real windows:
// looking at another page, trying another paper and printing leave the job as it is, and it is printed as it
// was shown.
#include "Hand.h"
#include "Records.h"
#include "Views.h"

#include <platform/PopUpButton.h>

#include <gtest/gtest.h>

#include <iostream>

namespace {

using namespace dialogwalk;

struct Sweep {
    const char *queue;
    /// One of each kind.
    std::vector<const char *> papers;
};

void PrintTo(const Sweep &sweep, std::ostream *out)
{
    *out << sweep.queue;
}

const Sweep sweeps[] = {
    {"lx", {"24x60mm", "HS12x50", "FL21x45", "DC24x38", "AV36x89"}},
    {"few", {"12x50mm", "HS12x50", "FL18x40"}},
    {"dz", {"62x100mm", "DC29x90", "AV62x100"}},
};

class DialogSweep : public testing::TestWithParam<Sweep> {
protected:
    static void SetUpTestSuite() { server = std::make_unique<WalkedServer>(); }
    static void TearDownTestSuite() { server.reset(); }

    /// Fails when what is shown is not what is sent, or the user's choices are not kept.
    bool holds(const char *what, const QByteArray &paper, int preset)
    {
        const QStringList lines = disagreements(dialog) + intent.broken(dialog);
        EXPECT_EQ(lines, QStringList())
            << what << " with " << paper.constData() << ", combination " << preset;
        return lines.isEmpty();
    }

    /// Clicks those boxes that the number has a bit for and that can be clicked.
    void clickBoxes(std::uint32_t bits)
    {
        const std::vector<QCheckBox *> boxes = dialog.panel().boxes();
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            if (bits >> i & 1U && boxes[i]->isEnabled())
                hand.clickBox(boxes[i]->objectName());
        }
    }

    bool visitPage(const QByteArray &paper, int preset)
    {
        dialog.chooseTab(QStringLiteral("Summary"));
        const bool isSummary = holds("the summary in front", paper, preset);
        dialog.chooseTab(QStringLiteral("What will be sent"));
        const bool isSent = holds("what will be sent in front", paper, preset);
        dialog.chooseTab(QStringLiteral("Cut Options"));
        return holds("another page and back", paper, preset) && isSummary && isSent;
    }

    bool visitPaper(const QByteArray &paper, const QByteArray &other, int preset)
    {
        hand.pickPaper(other);
        const bool isOther = holds("another paper", paper, preset);
        hand.pickPaper(paper);
        return holds("another paper and back", paper, preset) && isOther;
    }

    bool printAndReopen(const QByteArray &paper, int preset)
    {
        EXPECT_TRUE(hand.print());
        EXPECT_TRUE(dialog.reopenWindow());
        return holds("printed and opened again", paper, preset);
    }

    inline static std::unique_ptr<WalkedServer> server;
    WalkedDialog dialog{*server};
    Intent intent;
    Hand hand{dialog, intent};
};

INSTANTIATE_TEST_SUITE_P(Queues, DialogSweep, testing::ValuesIn(sweeps),
                         [](const auto &sweep) { return std::string(sweep.param.queue); });

TEST_P(DialogSweep, NothingButTheUserChangesTheJob)
{
    const std::vector<const char *> &papers = GetParam().papers;
    ASSERT_TRUE(dialog.open(QLatin1String(GetParam().queue)));
    intent.enter(dialog.destination(), dialog.options());
    const int presets = dialog.panel().presets()->count();
    // Each step flips other boxes than the one before; over all of them each box is seen with each other one.
    std::uint32_t bits = 1;
    bool isRight = true;
    for (std::size_t i = 0; isRight && i < papers.size(); ++i) {
        for (int preset = 0; isRight && preset < presets; ++preset) {
            const QByteArray paper = papers[i];
            const QByteArray other =
                papers[(i + 1 + static_cast<std::size_t>(preset) % (papers.size() - 1)) % papers.size()];
            hand.pickPaper(paper);
            hand.pickPreset(preset);
            isRight = holds("the combination", paper, preset);
            bits = bits * 5 + 3;
            clickBoxes(bits >> 2 & 0x1FF);
            isRight = isRight && holds("boxes clicked", paper, preset) && visitPage(paper, preset) &&
                      visitPaper(paper, other, preset) && printAndReopen(paper, preset);
        }
    }
    EXPECT_EQ(disagreementsOnServer(*server, hand.sent()), QStringList());
    std::cout << hand.sent().size() << " jobs\n";
}

} // namespace
