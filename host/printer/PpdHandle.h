// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cups/ppd.h>

#include <memory>

namespace host {
inline namespace printer {

/// Closes a PPD that libcups has opened.
struct PpdClose {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
/// Owns a PPD that libcups has opened.
using PpdHandle = std::unique_ptr<ppd_file_t, PpdClose>;

} // namespace printer
} // namespace host
