// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Coverage.h"
#include "Dice.h"
#include "Episode.h"

#include <programs/kvpanel/PanelDriver.h>
#include <tests/model/DriverModel.h>

#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <optional>

namespace walk {

/// Where the panel and its model differed.
struct Divergence {
    /// The number of the request in the episode, from 0.
    int request = 0;
    /// What the model expected and what the panel did instead, a line each.
    QStringList differences;
};

/// Drives the real panel and its model side by side and compares them after every request: the reply first,
/// then the panel's whole state.
class Walker {
public:
    /// Returns the description of a printer for the model; a wrong description must be detected.
    using Telling = std::function<model::PrinterDescription(const model::PrinterDescription &)>;

    explicit Walker(const QString &bundleFolder, Telling tell = {});

    /// Runs the episode; absent when panel and model agree to its end.
    std::optional<Divergence> run(const Episode &episode);

    /// Makes up an episode of so many requests on the printer, running it on the way; adds the requests to
    /// the episode as it goes, the one that diverges last.
    std::optional<Divergence> explore(Episode &episode, int length, Dice &dice);

    /// The number of requests compared with the model so far.
    int steps() const { return m_steps; }
    const Coverage &coverage() const { return m_coverage; }

private:
    void begin(const model::PrinterDescription &printer);
    std::optional<Divergence> step(int number, QJsonObject request);
    QString localized(const QString &key);

    QTemporaryDir m_folder;
    PanelDriver m_driver;
    Telling m_tell;
    std::unique_ptr<model::DriverModel> m_model;
    QString m_language;
    QMap<QString, QString> m_texts;
    Coverage m_coverage;
    int m_steps = 0;
};

} // namespace walk
