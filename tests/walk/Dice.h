// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <initializer_list>
#include <random>

namespace walk {

/// The walk's only source of chance: the same seed gives the same walk on every machine, which the
/// standard library's distributions do not promise.
class Dice {
public:
    explicit Dice(std::uint64_t seed)
        : m_engine(seed)
    {
    }

    /// A number from 0 to count - 1; 0 for an empty range.
    int below(std::size_t count) { return count == 0 ? 0 : static_cast<int>(m_engine() % count); }
    /// True so many times in a hundred.
    bool percent(int chance) { return below(100) < chance; }

    template<typename Container>
    auto pick(const Container &container)
    {
        return *(std::begin(container) + below(static_cast<std::size_t>(std::size(container))));
    }
    template<typename T>
    T pick(std::initializer_list<T> values)
    {
        return *(values.begin() + below(values.size()));
    }

private:
    std::mt19937_64 m_engine;
};

} // namespace walk
