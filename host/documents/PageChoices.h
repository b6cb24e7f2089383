// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PrintOrder.h"

#include <vector>

namespace host {
inline namespace documents {

/// Which pages come out, how often and in which order.
struct PageChoices {
    /// The pages to print, counted from 0 through all documents, in order.
    std::vector<int> pages;
    int copies = 1;
    Collate collate = Collate::Yes;
    PageOrder order = PageOrder::Normal;
};

} // namespace documents
} // namespace host
