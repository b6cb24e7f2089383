// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "WindowWatch.h"

#include <QStringList>

#include <vector>

namespace bench {

/// One row of the results: a program that is opened repeatedly under the same conditions.
struct Measurement {
    QString program;
    /// The behavior of the print server and other conditions: "fast", "slow, empty cache".
    QString conditions;
    int queues = 1;
    QStringList command;
    /// For CUPS_SERVER.
    QByteArray server;
    int runs = 0;
    /// A first run that only fills the machine's caches precedes the measured runs.
    bool warmsUp = true;
    /// The program starts without the files of earlier runs.
    bool hasEmptyCache = false;
    /// The timeout for the window.
    std::chrono::milliseconds timeout{30000};
    /// The window with the panel visible; a null image for a program without a panel.
    QImage complete;
    /// The timeout for the panel after the first painting.
    std::chrono::milliseconds panelTimeout{0};

    /// Milliseconds from the program's start to its first painted window.
    std::vector<double> painted;
    /// To the first painting with the panel.
    std::vector<double> panelPainted;
    /// Processor time of the main thread until then, in milliseconds.
    std::vector<double> busy;
    /// The program's peak memory in MiB, a moment after the first painting.
    std::vector<double> memory;
    /// Runs that have shown no window, or no panel, within the timeout.
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
    /// Opens the program and returns its window after it has settled; a null image when there was no window.
    /// Runs with or without the cache of earlier openings.
    QImage settledPicture(const QStringList &command, const QByteArray &server, bool hasEmptyCache = false);
    /// Opens the program until it has cached both the list of queues and the queue's PPD; false on failure.
    bool fillCache(const QStringList &command, const QByteArray &server);

private:
    QString cacheFolder() const { return m_folder + QStringLiteral("/cache"); }
    QString emptyCacheFolder() const { return m_folder + QStringLiteral("/empty-cache"); }
    /// Without the cache, removes the files of the last program without it.
    QList<QByteArray> environment(const QByteArray &server, bool hasEmptyCache) const;
    QString output() const { return m_folder + QStringLiteral("/output"); }
    void notePanel(Measurement &measurement, const WindowWatch::Painting &first, Clock::time_point start);

    WindowWatch &m_watch;
    QByteArray m_display;
    QString m_folder;
};

} // namespace bench
