// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Kvprint.h"

#include <QMap>
#include <QTemporaryDir>

#include <random>

/// How many of the program's later allocations fail.
enum class Failing {
    Once,
    Since, ///< all later ones, too
};

/// Runs the program with an allocation that fails, at many points one after the other. They are the same for
/// the same KV_ALLOCATIONS_SEED; KV_ALLOCATIONS_POINTS says how many there are.
class AllocationSweep {
public:
    /// The sample when the environment does not say how many.
    explicit AllocationSweep(int points);

    /// The number of allocations of a run in which none fails.
    quint64 count(const Kvprint &kvprint, const QStringList &words);
    /// Runs the program with the allocation of this number failing.
    Outcome run(const Kvprint &kvprint, const QStringList &words, quint64 number, Failing failing);

    /// Numbers up to the count. A third is dense at the start, a third at the end, where the job is sent, and
    /// a third is random.
    std::vector<quint64> numbers(quint64 count);
    /// Counts an ending for the report, by the program's message.
    void note(const Outcome &outcome);
    /// Prints the seed and the number of runs for each ending.
    ~AllocationSweep();

    AllocationSweep(const AllocationSweep &) = delete;
    AllocationSweep &operator=(const AllocationSweep &) = delete;

private:
    QTemporaryDir m_folder;
    int m_points = 0;
    quint64 m_seed = 0;
    std::mt19937_64 m_random;
    QMap<QByteArray, int> m_endings;
};
