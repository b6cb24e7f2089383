// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobOptions.h"

namespace host {
inline namespace cups {
inline namespace jobs {

/// Returns whether the choice consists of free values for an option that accepts them, "Custom.12" or
/// "{Left=12mm Words=on}", each within the limits of the PPD. Not for papers.
bool isCustomChoice(const PpdFile &ppd, const NamedValue &choice);

} // namespace jobs
} // namespace cups
} // namespace host
