// SPDX-License-Identifier: Apache-2.0
// Every combination of boxes that clicks reach, with every ready-made combination on every kind of paper:
// looking at another page, trying another paper and printing leave the job as it is. Without windows, since
// there are so many.
#include "GoOn.h"
#include "Intent.h"
#include "SweptPrinter.h"

#include <platform/PopUpButton.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>

namespace {

using namespace dialogwalk;

struct Family {
    const char *name;
    const char *ppd;
    /// One of each kind.
    std::vector<const char *> papers;
};

void PrintTo(const Family &family, std::ostream *out)
{
    *out << family.name;
}

const Family families[] = {
    {"Tape", "kvelland-lx900.ppd", {"24x60mm", "HS12x50", "FL21x45", "DC24x38", "AV36x89"}},
    {"FewOptions", "kvelland-lx300.ppd", {"12x50mm", "HS12x50", "FL18x40"}},
    {"PaperLabels", "kvelland-dz500.ppd", {"62x100mm", "DC29x90", "AV62x100"}},
};

class SetupSweep : public testing::TestWithParam<Family> {
protected:
    static QString text(const OptionTexts &texts)
    {
        QStringList lines;
        for (auto each = texts.begin(); each != texts.end(); ++each) {
            if (each.key().startsWith("Kv") || each.key() == "PageSize")
                lines.append(QString::fromUtf8(each.key() + '=' + each.value()));
        }
        return lines.join(u' ');
    }

    /// What has changed although no rule of the panel may change it, or without a sentence that says so.
    QStringList unexplained(const OptionTexts &before, const OptionTexts &after)
    {
        const QString told = printer.setup().replacedChoices().join(u' ');
        const host::PpdFile &ppd = printer.setup().ppd();
        QStringList lines;
        for (auto each = before.begin(); each != before.end(); ++each) {
            const QString keyword = QString::fromUtf8(each.key());
            const QString saved = QString::fromUtf8(after.value(each.key()));
            const bool isTold =
                told.contains(u'"' + ppd.optionText(keyword) + QStringLiteral("\" cannot be")) &&
                told.contains(u'"' + ppd.choiceText(keyword, saved) + QStringLiteral("\" is used instead"));
            const bool isRule = isTold && mayBeReplaced(each.key(), after.value("PageSize"));
            if (after.value(each.key()) != each.value() && !isRule)
                lines.append(QStringLiteral("%1 is %2 now").arg(keyword, saved));
        }
        return lines;
    }

    /// Fails when the options differ from those before without a rule and a sentence that says so, when the
    /// boxes show others, or for other reasons, a line each.
    void hold(const char *what, const OptionTexts &before, const QStringList &reasons = {})
    {
        const QStringList lines = unexplained(before, printer.options()) + printer.disagreements() + reasons;
        if (!lines.isEmpty() && faults++ < 5)
            ADD_FAILURE() << what << "\n"
                          << text(before).toStdString() << "\n"
                          << text(printer.options()).toStdString() << "\n"
                          << lines.join(u'\n').toStdString() << "\n"
                          << printer.setup().replacedChoices().join(u'\n').toStdString();
    }

    /// Printing, another page and back, and another paper and back: each leaves the options as they are.
    void leavesTheJob(const char *paper, const char *other)
    {
        const int point = points++;
        if (point % everyPoint != 0)
            return;
        const OptionTexts before = printer.options();
        // Only now and then as files: a strip takes long to write.
        const bool writes = point / everyPoint % 256 == 0;
        hold("printed", before, printer.print(writes ? SweptPrinter::Files::Yes : SweptPrinter::Files::No));
        printer.visitPage();
        hold("another page and back", before);
        printer.choosePaper(other);
        printer.visitPage();
        printer.choosePaper(paper);
        hold("another paper and back", before);
    }

    /// Another paper at each point: trying all of them at each would take minutes. Over the boxes' states
    /// every combination on every paper sees each of the others.
    const char *anotherPaper(const char *paper) const
    {
        const std::vector<const char *> &papers = GetParam().papers;
        const auto own = std::ranges::find(papers, paper) - papers.begin();
        const std::size_t step = 1 + static_cast<std::size_t>(points + points / 512) % (papers.size() - 1);
        return papers[(static_cast<std::size_t>(own) + step) % papers.size()];
    }

    SweptPrinter printer{QStringLiteral(KV_SOURCE_DIR "/resources/ppd/") + QLatin1String(GetParam().ppd)};
    const GoOn goOn;
    /// 1, and more where a build is too slow to check every point.
    const int everyPoint = qMax(1, qEnvironmentVariableIntValue("KV_SETUP_SWEEP_EVERY"));
    int faults = 0;
    int points = 0;
};

INSTANTIATE_TEST_SUITE_P(Families, SetupSweep, testing::ValuesIn(families),
                         [](const auto &family) { return std::string(family.param.name); });

/// One box is clicked from each combination to the next.
TEST_P(SetupSweep, NothingButTheUserChangesTheJob)
{
    const std::vector<QCheckBox *> boxes = printer.panel().boxes();
    const int presets = printer.panel().presets()->count();
    for (const char *const paper : GetParam().papers) {
        printer.choosePaper(paper);
        for (int preset = -1; preset < presets; ++preset) {
            if (preset >= 0 && !printer.isPresetEnabled(preset))
                continue;
            if (preset >= 0)
                printer.choosePreset(preset);
            leavesTheJob(paper, anotherPaper(paper));
            for (std::uint32_t count = 1; count < 1U << boxes.size(); ++count) {
                QCheckBox *const box = boxes[static_cast<std::size_t>(std::countr_zero(count))];
                printer.click(box);
                leavesTheJob(paper, anotherPaper(paper));
            }
        }
    }
    EXPECT_EQ(faults, 0);
    std::cout << points << " points\n";
}

} // namespace
