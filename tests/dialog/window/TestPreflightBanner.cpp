// SPDX-License-Identifier: Apache-2.0
// What wastes tape is reported below the strip, and the remedy changes the job.
#include "DialogFixture.h"

#include <dialog/window/PreflightBanner.h>

#include <tests/support/Waiting.h>

#include <set>

using test_support::waitUntil;

namespace {

class PreflightBannerTest : public DialogTest {
protected:
    /// Opens the dialog on pages of these sizes in millimetres; the pages in the set are blank.
    void openPages(const std::vector<QSizeF> &sizes, const std::set<int> &blank = {})
    {
        std::vector<SamplePage> pages;
        for (std::size_t page = 0; page < sizes.size(); ++page) {
            const bool isBlank = blank.contains(static_cast<int>(page));
            pages.push_back({sizes[page] * mm, [isBlank](QPainter &painter) {
                                 if (!isBlank)
                                     painter.fillRect(QRectF(8 * mm, 8 * mm, 6 * mm, 6 * mm), Qt::black);
                             }});
        }
        documentPath = writePdf(sandbox, QStringLiteral("labels.pdf"), pages);
        open();
    }

    dialog::PreflightBanner &banner() const { return *window->findChild<dialog::PreflightBanner *>(); }

    QPushButton *remedy(const QString &text) const
    {
        for (QPushButton *const each : banner().findChildren<QPushButton *>()) {
            if (!each->isHidden() && each->text().contains(text))
                return each;
        }
        return nullptr;
    }
};

TEST_F(PreflightBannerTest, LeavesOutBlankPages)
{
    openPages({QSizeF(60, 24), QSizeF(60, 24), QSizeF(60, 24)}, {1});
    ASSERT_TRUE(waitUntil([this] { return !banner().isHidden(); }));
    EXPECT_EQ(banner().message(), QStringLiteral("Page 2 is blank."));
    click(remedy(QStringLiteral("Leave out blank pages")));
    EXPECT_TRUE(banner().isHidden());
    click(button("Print"));
    ASSERT_TRUE(sender.ticket);
    EXPECT_EQ(sender.sentOption("page-ranges"), "1,3");
}

TEST_F(PreflightBannerTest, TurnsPagesToFit)
{
    requested.settings.orientation = host::Orientation::Portrait;
    openPages({QSizeF(60, 24), QSizeF(60, 24)});
    ASSERT_TRUE(waitUntil([this] { return !banner().isHidden(); }));
    EXPECT_EQ(banner().message(),
              QStringLiteral("Pages 1\u20132 are printed smaller than in the orientation that fits."));
    click(remedy(QStringLiteral("Turn pages to fit")));
    EXPECT_TRUE(banner().isHidden());
    click(button("Print"));
    ASSERT_TRUE(sender.ticket);
    EXPECT_EQ(sender.ticket->layout->turning, host::Turning::Clockwise);
}

TEST_F(PreflightBannerTest, UsesALargerPaper)
{
    openPages({QSizeF(60, 24), QSizeF(70, 50)});
    ASSERT_TRUE(waitUntil([this] { return !banner().isHidden(); }));
    EXPECT_TRUE(banner().message().startsWith(QStringLiteral("Page 2 is larger than the label")))
        << banner().message().toStdString();
    QPushButton *const use = remedy(QStringLiteral("Use "));
    ASSERT_TRUE(use);
    const QString text = use->text();
    click(use);
    EXPECT_TRUE(banner().isHidden());
    click(button("Print"));
    ASSERT_TRUE(sender.ticket && sender.ticket->paper);
    EXPECT_TRUE(text.contains(sender.ticket->paper->text)) << text.toStdString();
    EXPECT_EQ(sender.sentOption("PageSize"), sender.ticket->paper->name);
}

} // namespace
