// SPDX-License-Identifier: Apache-2.0
#include "PaperGroups.h"

#include <dialog/widgets/LengthUnit.h>
#include <host/base/Length.h>

#include <QCoreApplication>

#include <algorithm>
#include <numeric>

namespace dialog {
inline namespace paper {

namespace {

struct PaperGroupsText {
    Q_DECLARE_TR_FUNCTIONS(dialog::paper::PaperGroups)
};

/// In points. PPDs round widths in different ways.
constexpr host::Millimetres sameWidth(0.3);

} // namespace

std::vector<PaperGroup> groupPapers(const std::vector<host::PpdPaper> &papers)
{
    std::vector<std::size_t> byWidth(papers.size());
    std::iota(byWidth.begin(), byWidth.end(), std::size_t{0});
    const auto width = [&](std::size_t index) { return host::Points(papers[index].size.width()); };
    std::ranges::stable_sort(byWidth, {}, width);

    std::vector<PaperGroup> groups;
    host::Points narrowest;
    for (const std::size_t index : byWidth) {
        if (groups.empty() || width(index) - narrowest > host::Points(sameWidth)) {
            narrowest = width(index);
            groups.emplace_back();
        }
        groups.back().papers.push_back(index);
    }
    if (groups.size() == 1 || groups.size() == papers.size())
        return {};
    for (PaperGroup &group : groups) {
        std::ranges::sort(group.papers);
        group.title = PaperGroupsText::tr("%1 wide", "papers of that width")
                          .arg(roundLength(width(group.papers.front())));
    }
    return groups;
}

} // namespace paper
} // namespace dialog
