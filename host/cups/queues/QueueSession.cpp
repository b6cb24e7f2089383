// SPDX-License-Identifier: Apache-2.0
#include "QueueSession.h"

#include "LpOptions.h"

#include <QCoreApplication>
#include <QTimer>

namespace host {
inline namespace cups {
inline namespace queues {

namespace {

struct QueueSessionText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::queues::QueueSession)
};

/// The interval after which a server that could not be reached is queried again.
constexpr std::chrono::seconds retryInterval{3};

bool isOutOfReach(const CupsError &error)
{
    return error.kind == CupsErrorKind::Unreachable || error.kind == CupsErrorKind::Silent;
}

} // namespace

QueueSession::QueueSession(CupsServer server, const std::optional<QString> &wanted, QObject *parent)
    : QObject(parent)
    , m_server(std::move(server))
    , m_requested(wanted ? wanted : LpOptions::read().defaultName())
    , m_destinations(m_server, m_requested)
    , m_loader(m_server)
{
    connect(&m_destinations, &DestinationList::changed, this, [this] {
        chooseRequested();
        Q_EMIT destinationsChanged();
    });
    connect(&m_destinations, &DestinationList::refreshed, this, &QueueSession::listReceived);
    connect(&m_destinations, &DestinationList::failed, this, &QueueSession::listFailed);
    connect(&m_loader, &PpdLoader::loaded, this,
            [this](const QString &, const std::shared_ptr<PpdFile> &ppd) {
                m_ppd.emplace(std::move(*ppd));
                setPpdState(PpdState::Current);
            });
    connect(&m_loader, &PpdLoader::remembered, this,
            [this](const QString &, const std::shared_ptr<PpdFile> &ppd) {
                m_ppd.emplace(std::move(*ppd));
                setPpdState(PpdState::Cached);
            });
    connect(&m_loader, &PpdLoader::unchanged, this, [this] { setPpdState(PpdState::Current); });
    connect(&m_loader, &PpdLoader::absent, this, [this] {
        m_ppd.reset();
        setPpdState(PpdState::Absent);
    });
    connect(&m_loader, &PpdLoader::failed, this, [this](const QString &, const CupsError &error) {
        setPpdState(PpdState::Failed, error);
        report(error);
    });
    chooseRequested();
}

void QueueSession::start(Discovery discovery)
{
    m_hasStarted = true;
    m_isSettled = false;
    m_listError.reset();
    m_server.resetRefusals();
    m_discovery = discovery;
    m_destinations.refresh(discovery);
    if (m_chosen)
        setChosen(*m_chosen);
}

void QueueSession::retry()
{
    start(m_discovery);
    Q_EMIT stateChanged();
}

std::optional<QString> QueueSession::chosenName() const
{
    return m_chosen ? m_chosen->name() : m_requested;
}

void QueueSession::choose(const QString &name)
{
    const Destination *const found = m_destinations.find(name);
    if (!found)
        return;
    m_userHasChosen = true;
    m_server.resetRefusals();
    if (!m_chosen || m_chosen->name() != found->name())
        setChosen(*found);
}

void QueueSession::chooseRequested()
{
    if (m_chosen) {
        // The list is newer than the chosen destination.
        const Destination *const same = m_destinations.find(m_chosen->name());
        if (same && same->name() == m_chosen->name())
            updateState(*same);
    }
    if (m_userHasChosen || (m_chosen && m_isInUse()))
        return;
    const Destination *const found =
        m_requested ? m_destinations.find(*m_requested) : m_destinations.defaultDestination();
    if (found && (!m_chosen || m_chosen->name() != found->name()))
        setChosen(*found);
}

bool QueueSession::isPpdUnreachable() const
{
    return m_ppdError && isOutOfReach(*m_ppdError);
}

void QueueSession::report(const CupsError &error)
{
    m_isOutOfReach = m_isOutOfReach || isOutOfReach(error);
    Q_EMIT failed(error);
}

void QueueSession::listFailed(const CupsError &error)
{
    m_isSettled = true;
    m_listError = error;
    report(error);
    Q_EMIT settled();
    // The state of a chosen queue is queried continuously, which reports when the server responds again.
    if (!m_chosen && isOutOfReach(error))
        QTimer::singleShot(retryInterval, this, [this] { m_destinations.refresh(m_discovery); });
}

void QueueSession::recover()
{
    if (!std::exchange(m_isOutOfReach, false))
        return;
    if (m_destinations.isStale())
        m_destinations.refresh(m_discovery);
    if (isPpdUnreachable())
        m_loader.load(*m_chosen);
    Q_EMIT recovered();
}

void QueueSession::listReceived()
{
    m_listError.reset();
    settle();
    if (!m_chosen && std::exchange(m_isOutOfReach, false))
        Q_EMIT recovered();
}

void QueueSession::settle()
{
    m_isSettled = true;
    // The server has no queue for a discovered printer before it is used.
    const bool isGone = m_chosen && !m_chosen->isDiscovered && !m_destinations.find(m_chosen->name());
    if (isGone || (!m_chosen && m_requested))
        Q_EMIT failed(noSuchDestination());
    // Without any default, the first destination is chosen.
    if (!m_chosen && !m_requested && !m_destinations.destinations().empty())
        setChosen(m_destinations.destinations().front());
    if (m_chosen)
        m_destinations.remember(m_chosen->name());
    Q_EMIT settled();
}

CupsError QueueSession::noSuchDestination() const
{
    return {CupsErrorKind::NotFound,
            QueueSessionText::tr("The print server \"%1\" has no queue or class \"%2\".")
                .arg(m_server.displayName(), chosenName().value_or(QString()))};
}

void QueueSession::updateState(const Destination &destination)
{
    if (*m_chosen == destination)
        return;
    const bool hasOtherDefaults = m_chosen->queueOptions != destination.queueOptions ||
                                  m_chosen->userOptions != destination.userOptions;
    const bool isReconfigured = m_chosen->configured != destination.configured;
    m_chosen = destination;
    Q_EMIT stateChanged();
    // The response of a running query already contains the administrator's changes.
    const bool isAskedFor = m_ppdState == PpdState::Asked || m_ppdState == PpdState::Cached;
    if (isReconfigured && m_hasStarted && !isAskedFor)
        m_loader.load(destination);
    if (!hasOtherDefaults)
        return;
    // The PPD's marks contain the defaults of a job, so they are set again in a new PPD.
    m_ppd = m_loader.cached(destination.queue);
    if (m_ppd)
        Q_EMIT ppdChanged();
    else if (m_hasStarted && !isAskedFor)
        m_loader.load(destination, PpdLoader::LargeCached::Wanted);
}

void QueueSession::updateFromQuery(Destination news)
{
    // The query of one queue reports neither whether it is the default nor how it was found.
    news.isDefault = m_chosen->isDefault;
    news.isDiscovered = m_chosen->isDiscovered;
    m_destinations.update(news);
    updateState(news);
    recover();
}

void QueueSession::setChosen(const Destination &destination)
{
    const bool isAnother = !m_chosen || m_chosen->name() != destination.name();
    m_chosen = destination;
    if (isAnother) {
        m_ppd = m_loader.cached(destination.queue);
        m_ppdState = m_ppd ? PpdState::Cached : PpdState::Asked;
        m_ppdError.reset();
        m_destinations.remember(destination.name());
    }
    if (m_hasStarted) {
        const bool isUnknown = m_ppdState == PpdState::Asked;
        m_loader.load(destination,
                      isUnknown ? PpdLoader::LargeCached::Wanted : PpdLoader::LargeCached::Known);
        m_monitor = std::make_unique<QueueMonitor>(m_server, destination.queue, destination.instance);
        connect(m_monitor.get(), &QueueMonitor::changed, this, &QueueSession::updateFromQuery);
        connect(m_monitor.get(), &QueueMonitor::failed, this, [this](const CupsError &error) {
            // A discovered printer has no queue while it is not used.
            const bool isMissing = error.kind == CupsErrorKind::NotFound;
            if (!isMissing || !m_chosen->isDiscovered)
                report(isMissing ? noSuchDestination() : error);
        });
    }
    if (isAnother)
        Q_EMIT chosenChanged();
}

void QueueSession::setPpdState(PpdState knowledge, const std::optional<CupsError> &error)
{
    m_ppdState = knowledge;
    m_ppdError = error;
    Q_EMIT ppdChanged();
}

std::optional<PpdFile> QueueSession::takePpd()
{
    return std::exchange(m_ppd, std::nullopt);
}

} // namespace queues
} // namespace cups
} // namespace host
