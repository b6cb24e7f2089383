// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "JobOptions.h"

namespace host {

/// Whether the choice gives values of its own to an option that takes them, "Custom.12" or
/// "{Left=12mm Words=on}", each within the limits that the PPD names. Not for papers.
bool isFreeChoice(const PpdFile &ppd, const NamedValue &choice);

} // namespace host
