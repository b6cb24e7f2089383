// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/jobs/JobOptions.h>
#include <host/layout/PageLayout.h>

namespace host {
inline namespace setup {

/// Returns the layout that the options of a job request for pages on the paper: "print-scaling" and
/// "orientation-requested" (IPP, PWG 5100.13), and "fit-to-page", "fitplot", "landscape" and "position" of
/// CUPS's filters. A default portrait orientation of the queue does not request anything: cupsd reports it
/// for queues where nothing is set.
PageLayout layoutOf(const PpdPaper &paper, const std::vector<JobOption> &options);

/// Replaces the options that layoutOf() reads, and "number-up", by those with which the server's filters
/// print pages of the paper's size as they are: neither scaled nor turned, one on each label.
void keepLaidOutPages(std::vector<JobOption> &options);

/// Returns whether the server's filters mirror the pages ("mirror").
bool isMirroredByFilters(const std::vector<JobOption> &options);

} // namespace setup
} // namespace host
