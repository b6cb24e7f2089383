// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/queues/Destination.h>
#include <host/documents/PageChoices.h>
#include <host/layout/PageLayout.h>

namespace host {
inline namespace cups {
inline namespace jobs {

/// Orientations with the values of IPP's "orientation-requested".
enum class Orientation { Portrait = 3, Landscape = 4, ReverseLandscape = 5, ReversePortrait = 6 };

/// The settings of a job in addition to the printer's options; absent values stand for the queue's defaults.
struct JobSettings {
    std::optional<int> copies = {};
    std::optional<Collate> collate = {};
    /// "1-3, 5, 8-"; blank for all pages.
    std::optional<QString> pageRanges = {};
    std::optional<PageSet> pageSet = {};
    std::optional<PageOrder> order = {};
    std::optional<Orientation> orientation = {};
    std::optional<Scaling> scaling = {};
    /// In the syntax of the -H option of lp: "hold", "resume", "immediate", "HH:MM" in UTC, "night" and so
    /// on.
    std::optional<QString> hold = {};
    /// 1 to 100; 100 is the highest.
    std::optional<int> priority = {};

    bool operator==(const JobSettings &) const = default;
};

/// Returns the settings by their IPP names, with the values that lp sends.
std::vector<NamedValue> settingValues(const JobSettings &settings);

/// The option of the scaling, and its values (PWG 5100.13).
inline constexpr const char *scalingName = "print-scaling";
std::optional<Scaling> scalingFrom(const QByteArray &value);
QByteArray scalingValue(Scaling scaling);

/// Returns the default pages, copies and order of a job to the destination: those of the user's lpoptions,
/// otherwise those of the queue. Orientation, hold and priority are absent.
JobSettings defaultPageSettings(const Destination &destination);

/// Returns the requested settings, with the defaults for absent pages, copies and order.
JobSettings withDefaults(JobSettings requested, const JobSettings &defaults);

/// Returns the pages that are printed of documents with the given numbers of pages, with the requested
/// settings and, where they are absent, the defaults. A value absent from both stands for the behavior of
/// print servers: one copy of all pages, and several copies uncollated. Copies are limited to 1 to
/// maxCopies. Returns an error if a requested page is in no document, if no page remains, or if the job
/// would have more than maxLabels.
Result<PageChoices, PageRangeError> choosePages(const JobSettings &requested, const JobSettings &defaults,
                                                const std::vector<int> &pageCounts);

} // namespace jobs
} // namespace cups
} // namespace host
