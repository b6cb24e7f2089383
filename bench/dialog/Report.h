// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Measurement.h"

#include <QByteArray>

namespace bench {

/// The ratio of two measurements of the same run, and its target.
struct Ratio {
    QString name;
    double value = 0.0;
    /// The max value that meets the target; absent for a ratio that is only reported.
    std::optional<double> target;

    bool isMet() const { return !target || value <= *target; }
};

/// The results of a whole bench: a table for people, JSON for programs.
class Report {
public:
    explicit Report(const std::vector<Measurement> &measurements);

    QByteArray table() const;
    QByteArray json() const;
    /// All targets are met and the panel was there at each first painting with a filled cache.
    bool isGood() const;

private:
    const Measurement *find(const QString &program, const QString &conditions, int queues) const;
    void addRatio(const QString &name, const Measurement *one, const Measurement *other,
                  std::vector<double> Measurement::*values, std::optional<double> target);

    const std::vector<Measurement> &m_measurements;
    std::vector<Ratio> m_ratios;
};

} // namespace bench
