// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "WindowWatch.h"

#include <QStringList>

#include <vector>

namespace bench {

/// One line of the results: a program that is opened again and again under the same conditions.
struct Measurement {
    QString program;
    /// The print server's manner and what else is particular: "fast", "slow, empty cache".
    QString conditions;
    int queues = 1;
    QStringList command;
    /// For CUPS_SERVER.
    QByteArray server;
    int runs = 0;
    /// A run that only fills the machine's caches goes before the others.
    bool warmsUp = true;
    /// The program finds nothing that it has kept of earlier runs.
    bool hasEmptyCache = false;
    /// How long a window is waited for.
    std::chrono::milliseconds patience{30000};
    /// The window with the panel on show; a null image for a program that has none to be watched.
    QImage complete;
    /// How long the panel is waited for after the first painting.
    std::chrono::milliseconds panelPatience{0};

    /// Milliseconds from the program's start to its first painted window.
    std::vector<double> painted;
    /// To the first painting with the panel.
    std::vector<double> panelPainted;
    /// Milliseconds that the main thread has kept a processor busy until then.
    std::vector<double> busy;
    /// The program's peak memory in MiB, a moment after the first painting.
    std::vector<double> memory;
    /// Runs that have shown no window, and no panel, within the patience.
    int withoutWindow = 0;
    int withoutPanel = 0;
};

/// The middle of the values, or the mean of the two in the middle; not a number without values.
double median(std::vector<double> values);
/// The value below which the share lies, 0 to 1.
double percentile(std::vector<double> values, double share);

/// Opens the programs of the measurements.
class Measurer {
public:
    /// folder is the home of the programs; what they write goes to "output" in it.
    Measurer(WindowWatch &watch, QByteArray display, QString folder);

    /// One run; the result is added unless the run is to warm up.
    void run(Measurement &measurement, bool isWarmUp);
    /// Opens the program and answers its window when it has been left alone for a while; a null image
    /// when there was no window. With the cache of earlier openings or without.
    QImage settledPicture(const QStringList &command, const QByteArray &server, bool hasEmptyCache = false);
    /// Opens the program until it keeps files of both the queues and the queue's PPD; false if it does not.
    bool fillCache(const QStringList &command, const QByteArray &server);

private:
    QString cacheFolder() const { return m_folder + QStringLiteral("/cache"); }
    QString emptyCacheFolder() const { return m_folder + QStringLiteral("/empty-cache"); }
    /// Without the cache, what the last program without it has kept is thrown away.
    QList<QByteArray> environment(const QByteArray &server, bool hasEmptyCache) const;
    QString output() const { return m_folder + QStringLiteral("/output"); }
    void notePanel(Measurement &measurement, const WindowWatch::Painting &first, Clock::time_point start);

    WindowWatch &m_watch;
    QByteArray m_display;
    QString m_folder;
};

} // namespace bench
