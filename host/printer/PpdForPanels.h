// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PpdFile.h"

namespace host {

/// Hands out what libcups opened to those who hand it on: the protocol of panels is made of it. Nobody else
/// asks for it, so that a libcups without PPDs concerns the Ppd classes only.
class PpdForPanels {
public:
    /// Lives as long as the PPD. Never null.
    static ppd_file_t *handle(const PpdFile &ppd) { return ppd.handle(); }
};

} // namespace host
