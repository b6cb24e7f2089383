// SPDX-License-Identifier: Apache-2.0
#include "Measurement.h"

#include "Opening.h"

#include <QDir>
#include <QDirIterator>

#include <algorithm>
#include <cmath>
#include <limits>
#include <thread>

namespace bench {

namespace {

constexpr std::chrono::seconds screenPatience{5};
/// Programs go on loading after the first painting, and their memory peaks then.
constexpr std::chrono::milliseconds memoryTime{300};
constexpr std::chrono::milliseconds settlingTime{2500};
/// Texts of the printer's state come and go; without the panel far more is different.
constexpr double maxDifference = 0.03;

double milliseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

} // namespace

double percentile(std::vector<double> values, double share)
{
    if (values.empty())
        return std::numeric_limits<double>::quiet_NaN();
    std::ranges::sort(values);
    const double place = share * static_cast<double>(values.size() - 1);
    const auto below = static_cast<std::size_t>(std::floor(place));
    const auto above = static_cast<std::size_t>(std::ceil(place));
    return std::lerp(values[below], values[above], place - std::floor(place));
}

double median(std::vector<double> values)
{
    return percentile(std::move(values), 0.5);
}

Measurer::Measurer(WindowWatch &watch, QByteArray display, QString folder)
    : m_watch(watch)
    , m_display(std::move(display))
    , m_folder(std::move(folder))
{
    QDir(m_folder).mkpath(QStringLiteral("runtime"));
    QFile::setPermissions(m_folder + QStringLiteral("/runtime"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QList<QByteArray> Measurer::environment(const QByteArray &server, bool hasEmptyCache) const
{
    if (hasEmptyCache)
        QDir(emptyCacheFolder()).removeRecursively();
    const QByteArray folder = QFile::encodeName(m_folder);
    return {"PATH=" + qgetenv("PATH"),
            "HOME=" + folder,
            "XDG_CACHE_HOME=" + QFile::encodeName(hasEmptyCache ? emptyCacheFolder() : cacheFolder()),
            "XDG_CONFIG_HOME=" + folder + "/config",
            "XDG_RUNTIME_DIR=" + folder + "/runtime",
            "DISPLAY=" + m_display,
            "QT_QPA_PLATFORM=xcb",
            "GDK_BACKEND=x11",
            "LC_ALL=C.UTF-8",
            "CUPS_SERVER=" + server};
}

void Measurer::run(Measurement &measurement, bool isWarmUp)
{
    if (!m_watch.waitForEmptyScreen(Clock::now() + screenPatience))
        qFatal("a window does not go away");
    const Opening opening(measurement.command, environment(measurement.server, measurement.hasEmptyCache),
                          output());
    const auto first = m_watch.waitForPainting(opening.start() + measurement.timeout, hasContent);
    if (isWarmUp)
        return;
    if (!first) {
        ++measurement.withoutWindow;
        return;
    }
    measurement.busy.push_back(opening.processorTime());
    measurement.painted.push_back(milliseconds(first->time - opening.start()));
    if (!measurement.complete.isNull())
        notePanel(measurement, *first, opening.start());
    std::this_thread::sleep_until(first->time + memoryTime);
    measurement.memory.push_back(static_cast<double>(opening.peakMemory()) / 1024.0);
}

void Measurer::notePanel(Measurement &measurement, const WindowWatch::Painting &first,
                         Clock::time_point start)
{
    const auto hasPanel = [&](const QImage &picture) {
        return difference(picture, measurement.complete) <= maxDifference;
    };
    if (hasPanel(first.picture)) {
        measurement.panelPainted.push_back(milliseconds(first.time - start));
        return;
    }
    const auto later = m_watch.waitForPainting(first.time + measurement.panelTimeout, hasPanel);
    if (later)
        measurement.panelPainted.push_back(milliseconds(later->time - start));
    else
        ++measurement.withoutPanel;
}

QImage Measurer::settledPicture(const QStringList &command, const QByteArray &server, bool hasEmptyCache)
{
    m_watch.waitForEmptyScreen(Clock::now() + screenPatience);
    const Opening opening(command, environment(server, hasEmptyCache), output());
    if (!m_watch.waitForPainting(opening.start() + screenPatience, hasContent))
        return {};
    std::this_thread::sleep_for(settlingTime);
    return m_watch.picture();
}

bool Measurer::fillCache(const QStringList &command, const QByteArray &server)
{
    m_watch.waitForEmptyScreen(Clock::now() + screenPatience);
    const auto count = [&](const char *filter) {
        QDirIterator files(cacheFolder() + QStringLiteral("/kvprint"), {QLatin1String(filter)}, QDir::Files,
                           QDirIterator::Subdirectories);
        int result = 0;
        for (; files.hasNext(); files.next())
            ++result;
        return result;
    };
    const int ppds = count("*.ppd");
    const Opening opening(command, environment(server, false), output());
    while (count("*.ppd") == ppds) {
        if (Clock::now() > opening.start() + screenPatience)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    // The list of the queues is kept too, at about the same time; its file may be there from before.
    std::this_thread::sleep_for(settlingTime);
    return count("*.cbor") > 0;
}

} // namespace bench
