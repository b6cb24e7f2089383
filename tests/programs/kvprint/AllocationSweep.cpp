// SPDX-License-Identifier: Apache-2.0
#include "AllocationSweep.h"

#include <QFile>

#include <gtest/gtest.h>

#include <cmath>
#include <iostream>
#include <set>

namespace {

quint64 numberOr(const char *name, quint64 otherwise)
{
    bool ok = false;
    const quint64 number = qEnvironmentVariable(name).toULongLong(&ok);
    return ok ? number : otherwise;
}

Kvprint withFailingAllocations(const Kvprint &kvprint)
{
    Kvprint prepared = kvprint;
    prepared.preload(QStringLiteral(KV_FAILING_ALLOCATIONS));
    return prepared;
}

} // namespace

AllocationSweep::AllocationSweep(int points)
    : m_points(static_cast<int>(numberOr("KV_ALLOCATIONS_POINTS", static_cast<quint64>(points))))
    , m_seed(numberOr("KV_ALLOCATIONS_SEED", std::random_device{}()))
    , m_random(m_seed)
{
}

AllocationSweep::~AllocationSweep()
{
    std::cout << "KV_ALLOCATIONS_SEED=" << m_seed << " KV_ALLOCATIONS_POINTS=" << m_points << "\n";
    for (auto ending = m_endings.cbegin(); ending != m_endings.cend(); ++ending)
        std::cout << "  " << ending.value() << " x " << ending.key().toStdString() << "\n";
    std::cout << std::flush;
}

quint64 AllocationSweep::count(const Kvprint &kvprint, const QStringList &words)
{
    QFile counter(m_folder.filePath(QStringLiteral("count")));
    EXPECT_TRUE(counter.open(QIODevice::ReadWrite | QIODevice::Truncate));
    EXPECT_TRUE(counter.resize(sizeof(quint64)));
    Kvprint counting = withFailingAllocations(kvprint);
    counting.environment.insert(QStringLiteral("KV_FAIL_COUNT"), counter.fileName());
    const Outcome outcome = counting.run(words);
    EXPECT_EQ(outcome.status, 0) << outcome;
    quint64 count = 0;
    EXPECT_EQ(counter.read(reinterpret_cast<char *>(&count), sizeof count), qint64{sizeof count});
    EXPECT_GT(count, 0U) << outcome;
    return count;
}

Outcome AllocationSweep::run(const Kvprint &kvprint, const QStringList &words, quint64 number,
                             Failing failing)
{
    Kvprint failingOne = withFailingAllocations(kvprint);
    failingOne.environment.insert(QStringLiteral("KV_FAIL_AT"), QString::number(number));
    if (failing == Failing::Since)
        failingOne.environment.insert(QStringLiteral("KV_FAIL_SINCE"), QStringLiteral("1"));
    return failingOne.run(words);
}

std::vector<quint64> AllocationSweep::numbers(quint64 count)
{
    std::set<quint64> numbers;
    const int third = qMax(1, m_points / 3);
    for (int i = 0; i <= third; ++i) {
        const auto distance = static_cast<quint64>(std::pow(static_cast<double>(count), double(i) / third));
        numbers.insert({distance, count + 1 - distance});
    }
    std::uniform_int_distribution<quint64> anywhere(1, count);
    for (int i = 0; i < third; ++i)
        numbers.insert(anywhere(m_random));
    return {numbers.begin(), numbers.end()};
}

void AllocationSweep::note(const Outcome &outcome)
{
    QByteArray ending = "ended by a signal";
    if (outcome.status >= 0)
        ending = "status " + QByteArray::number(outcome.status) + ' ' +
                 (outcome.status == 0 ? QByteArray() : outcome.error.trimmed().split('\n').last());
    ++m_endings[ending];
}
