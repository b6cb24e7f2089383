// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Episode.h"

#include <functional>

namespace walk {

/// Makes a failing episode as short and as plain as it can while it still fails: leaves out requests, then
/// members of requests, then parts of the printer, until nothing more can go.
class Shrinker {
public:
    using Fails = std::function<bool(const Episode &)>;

    /// The function runs an episode from the start and returns whether it still fails.
    explicit Shrinker(Fails fails)
        : m_fails(std::move(fails))
    {
    }

    Episode shrink(Episode failing);

private:
    bool keepIfFailing(const Episode &candidate);
    bool shrinkRequests();
    bool shrinkMembers();
    bool shrinkMarks();
    bool shrinkOptions();
    bool shrinkChoices();
    bool shrinkAttributes();

    Fails m_fails;
    Episode m_best;
};

} // namespace walk
