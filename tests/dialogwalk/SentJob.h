// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "StripOracle.h"

namespace dialogwalk {

/// A job that was sent, and what the dialog showed before Print was pressed.
struct SentJob {
    int id = 0;
    OptionTexts shown;
    std::optional<ExpectedStrip> strip;
    /// The printer's description; empty for a queue without one.
    QByteArray ppd;

    /// A queue without a description has no filter that could record.
    bool isRecorded() const { return !ppd.isEmpty(); }
};

} // namespace dialogwalk
