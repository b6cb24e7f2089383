// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PpdFile.h"

namespace host {
inline namespace printer {

/// Gives the panel host access to the ppd_file_t, which is part of the panel protocol. No other code uses it,
/// so that a libcups without PPD support affects only the Ppd classes.
class PpdForPanels {
public:
    /// Returns the PPD as opened by libcups. Owned by the PpdFile; never null.
    static ppd_file_t *handle(const PpdFile &ppd) { return ppd.handle(); }
};

} // namespace printer
} // namespace host
