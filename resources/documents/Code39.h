// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

namespace documents {

/// One bar or space of a bar code.
struct BarCodeElement {
    bool bar = false;
    /// In units of a narrow element.
    double width = 1.0;
};

/// The text as a Code 39 bar code, with its start and stop signs: digits, capital letters, blanks and
/// - . $ / + %. Other characters are left out, as the code has none for them.
std::vector<BarCodeElement> code39(const QString &text);

} // namespace documents
