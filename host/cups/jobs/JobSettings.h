// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/queues/Destination.h>
#include <host/documents/PageChoices.h>

namespace host {

/// IPP's numbers.
enum class Orientation { Portrait = 3, Landscape = 4, ReverseLandscape = 5, ReversePortrait = 6 };

/// What the job says beside the printer's options; nothing stands for the queue's own setting.
struct JobSettings {
    std::optional<int> copies = {};
    std::optional<Collate> collate = {};
    /// "1-3, 5, 8-"; blank for all pages.
    std::optional<QString> pageRanges = {};
    std::optional<PageSet> pageSet = {};
    std::optional<PageOrder> order = {};
    std::optional<Orientation> orientation = {};
    /// As lp takes it after -H: "hold", "resume", "immediate", "HH:MM" in UTC, "night" and so on.
    std::optional<QString> hold = {};
    /// 1 to 100.
    std::optional<int> priority = {};

    bool operator==(const JobSettings &) const = default;
};

/// The settings under their IPP names, with the values that lp gives them.
std::vector<NamedValue> settingValues(const JobSettings &settings);

/// Which pages come out, how often and in which order, if a job to the destination says nothing of it: as the
/// user's lpoptions have it, or else the queue. Orientation, hold and priority are left out.
JobSettings defaultPageSettings(const Destination &destination);

/// The wishes, and where they say nothing of pages and copies, the defaults.
JobSettings withDefaults(JobSettings wishes, const JobSettings &defaults);

/// The pages of documents of so many pages each that come out with the wishes and, where they say nothing,
/// the defaults. Nothing in both stands for what print servers do by themselves: one copy of all pages, and
/// of several copies all of one page together. Copies are brought within 1 to mostCopies. An error when a
/// page is wished for that no document has, when no page is left, and when the job would have more than
/// mostLabels.
Result<PageChoices, PageRangeError> choosePages(const JobSettings &wishes, const JobSettings &defaults,
                                                const std::vector<int> &pageCounts);

} // namespace host
