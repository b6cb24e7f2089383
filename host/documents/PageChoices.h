// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PrintOrder.h"

#include <vector>

namespace host {
inline namespace documents {

/// The pages to print, their copies and their order.
struct PageChoices {
    /// The pages, numbered from 0 through all documents, in ascending order.
    std::vector<int> pages;
    int copies = 1;
    Collate collate = Collate::Yes;
    PageOrder order = PageOrder::Normal;
};

} // namespace documents
} // namespace host
