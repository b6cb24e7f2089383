// SPDX-License-Identifier: Apache-2.0
#include "DestinationList.h"

#include "DestinationQuery.h"
#include "QueueCache.h"

#include <algorithm>

namespace host {
inline namespace cups {
inline namespace queues {

namespace {

/// The time within which printers on the network announce themselves.
constexpr std::chrono::seconds discoveryTime{5};

} // namespace

DestinationList::DestinationList(CupsServer server, QObject *parent)
    : QObject(parent)
    , m_server(std::move(server))
    , m_destinations(QueueCache(m_server).destinations())
{
}

DestinationList::DestinationList(CupsServer server, const std::optional<QString> &first, QObject *parent)
    : QObject(parent)
    , m_server(std::move(server))
{
    const QueueCache cache(m_server);
    std::optional<Destination> last = cache.last();
    m_isPartial = last && (first ? last->name() == *first : last->isDefault);
    if (m_isPartial)
        m_destinations.push_back(*std::move(last));
    else
        m_destinations = cache.destinations();
}

void DestinationList::remember(const QString &name)
{
    const auto found = std::find_if(m_destinations.begin(), m_destinations.end(),
                                    [&](const Destination &each) { return each.name() == name; });
    if (m_isStale || found == m_destinations.end())
        return;
    m_background.start([server = m_server, destination = *found](BackgroundTask &) {
        QueueCache(server).storeLast(destination);
    });
}

void DestinationList::refresh(Discovery discovery)
{
    if (m_task)
        m_task->cancel();
    const bool needsOthers = m_isPartial;
    m_task = m_background.start([this, server = m_server, discovery, needsOthers](BackgroundTask &task) {
        // "this" is only used in deliveries, on the main thread and while the object exists.
        if (needsOthers)
            task.deliver([this, known = QueueCache(server).destinations()] { setCachedDestinations(known); });
        const auto ask = [&]() -> Result<std::vector<Destination>, CupsError> {
            Result<CupsConnection, CupsError> connection = CupsConnection::open(server, task);
            return connection ? queryDestinations(connection.value()) : connection.error();
        };
        const Result<std::vector<Destination>, CupsError> answer = ask();
        if (task.isCanceled())
            return;
        if (answer)
            QueueCache(server).storeDestinations(answer.value());
        task.deliver([this, answer] {
            if (answer)
                take(answer.value());
            else
                Q_EMIT failed(answer.error());
        });
        if (discovery == Discovery::Yes)
            discoverDestinations(task, discoveryTime, [&](const Destination &found) {
                task.deliver([this, found] { addDiscovered(found); });
            });
    });
}

void DestinationList::setCachedDestinations(const std::vector<Destination> &destinations)
{
    m_isPartial = false;
    if (!m_isStale || destinations.empty())
        return;
    m_destinations = destinations;
    Q_EMIT changed();
}

void DestinationList::take(std::vector<Destination> destinations)
{
    m_isStale = false;
    // Keeps the discovered printers, which the server does not report.
    for (const Destination &known : m_destinations) {
        const bool isListed = std::any_of(destinations.begin(), destinations.end(),
                                          [&](const Destination &each) { return each.queue == known.queue; });
        if (known.isDiscovered && !isListed)
            destinations.push_back(known);
    }
    if (m_destinations != destinations) {
        m_destinations = std::move(destinations);
        Q_EMIT changed();
    }
    Q_EMIT refreshed();
}

void DestinationList::addDiscovered(const Destination &destination)
{
    // The server may already have a queue for the printer.
    const auto isIt = [&](const Destination &each) { return isSamePrinter(each, destination); };
    if (std::ranges::any_of(m_destinations, isIt))
        return;
    m_destinations.push_back(destination);
    Q_EMIT changed();
}

void DestinationList::update(const Destination &destination)
{
    const auto found = std::ranges::find(m_destinations, destination.name(), &Destination::name);
    if (found != m_destinations.end())
        *found = destination;
}

const Destination *DestinationList::find(const QString &name) const
{
    const auto named = [&](const QString &wanted) -> const Destination * {
        const auto found = std::find_if(m_destinations.begin(), m_destinations.end(),
                                        [&](const Destination &each) { return each.name() == wanted; });
        return found == m_destinations.end() ? nullptr : &*found;
    };
    const Destination *const found = named(name);
    return found ? found : named(splitDestinationName(name).first);
}

const Destination *DestinationList::defaultDestination() const
{
    const auto found = std::find_if(m_destinations.begin(), m_destinations.end(),
                                    [](const Destination &each) { return each.isDefault; });
    return found == m_destinations.end() ? nullptr : &*found;
}

} // namespace queues
} // namespace cups
} // namespace host
