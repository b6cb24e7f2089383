// SPDX-License-Identifier: Apache-2.0
#include "SetupKeeper.h"

#include <algorithm>

namespace host {
inline namespace setup {

SetupKeeper::SetupKeeper(std::unique_ptr<PrinterSetup> setup, QObject *parent)
    : QObject(parent)
    , m_setup(std::move(setup))
{
    watchPanels();
}

SetupKeeper::SetupKeeper(QueueSession &session, PanelSource panelSource, SetupRequest requested,
                         QObject *parent)
    : QObject(parent)
    , m_session(&session)
    , m_panelSource(std::move(panelSource))
    , m_requested(std::move(requested))
{
    connect(&session, &QueueSession::chosenChanged, this, &SetupKeeper::changeQueue);
    connect(&session, &QueueSession::ppdChanged, this, &SetupKeeper::changePpd);
    connect(&session, &QueueSession::stateChanged, this, [this] {
        if (m_setup && m_setup->destination().name() == m_session->chosen()->name())
            m_setup->setDestination(*m_session->chosen());
    });
    session.setIsInUse([this] { return userHasSet(); });
    if (session.chosen())
        changeQueue();
}

SetupKeeper::~SetupKeeper()
{
    if (m_session)
        m_session->setIsInUse([] { return false; });
}

bool SetupKeeper::userHasSet() const
{
    const auto isSame = [](const JobChoice &one, const JobChoice &other) {
        return one.name == other.name && one.value == other.value;
    };
    // A new PPD may have them in another order.
    return m_setup && !std::ranges::is_permutation(m_setup->choicesNow(), m_firstChoices, isSame);
}

void SetupKeeper::release()
{
    m_isHeld = false;
    const bool ppdIsLate = std::exchange(m_ppdIsLate, false);
    if (std::exchange(m_failureIsLate, false))
        dropFailedPanels();
    if (std::exchange(m_queueIsLate, false))
        changeQueue();
    else if (ppdIsLate)
        changePpd();
}

void SetupKeeper::watchPanels()
{
    // The hook is called in the middle of an operation of the panel.
    m_setup->setPanelFailedHook(
        [this] { QMetaObject::invokeMethod(this, &SetupKeeper::dropFailedPanels, Qt::QueuedConnection); });
}

void SetupKeeper::dropFailedPanels()
{
    if (!m_setup || m_setup->panelFailures().empty())
        return;
    if (m_isHeld) {
        m_failureIsLate = true;
        return;
    }
    Q_EMIT setupAboutToEnd();
    for (const BundleError &error : m_setup->panelErrors()) {
        if (error.kind == BundleErrorKind::Failed)
            m_panelSource.exclude(error.folder, error);
    }
    m_setup->dropFailedPanels();
    Q_EMIT setupChanged();
}

void SetupKeeper::reloadPanels()
{
    if (!m_setup)
        return;
    Q_EMIT setupAboutToEnd();
    m_setup->reloadPanels();
    watchPanels();
    Q_EMIT setupChanged();
}

void SetupKeeper::changeQueue()
{
    if (m_isHeld) {
        m_queueIsLate = true;
        return;
    }
    end();
    if (std::optional<PpdFile> ppd = m_session->takePpd())
        replace(std::move(ppd));
    else if (isUsableWithoutPpd())
        replace(std::nullopt);
    else
        Q_EMIT setupChanged();
}

void SetupKeeper::changePpd()
{
    if (m_isHeld) {
        m_ppdIsLate = true;
        return;
    }
    std::optional<PpdFile> ppd = m_session->takePpd();
    // A response "not modified" contains no PPD, and after an error the previous PPD remains.
    const bool lostIts = m_session->ppdState() == PpdState::Absent && m_setup && m_setup->hasPpd();
    if (!ppd && !lostIts && (m_setup || !isUsableWithoutPpd()))
        return;
    end();
    replace(std::move(ppd));
}

bool SetupKeeper::isUsableWithoutPpd() const
{
    // A PPD that cannot be read must not keep its queue from printing.
    const PpdState knowledge = m_session->ppdState();
    const bool isUnusable = knowledge == PpdState::Failed && m_session->ppdError() &&
                            m_session->ppdError()->kind == CupsErrorKind::Rejected;
    return knowledge == PpdState::Absent || isUnusable;
}

void SetupKeeper::end()
{
    if (!m_setup)
        return;
    m_hadUsersChoices = userHasSet();
    Q_EMIT setupAboutToEnd();
    m_choicesOfQueues[m_setup->destination().name()] = m_setup->choicesAndRejected();
    m_setup.reset();
}

void SetupKeeper::replace(std::optional<PpdFile> ppd)
{
    SetupRequest requested = m_requested;
    const auto before = m_choicesOfQueues.find(m_session->chosen()->name());
    if (before != m_choicesOfQueues.end()) {
        requested.choices = before->second;
        requested.paper.reset();
    }
    const bool isAnother = before == m_choicesOfQueues.end();
    m_setup = std::make_unique<PrinterSetup>(*m_session->chosen(), std::move(ppd), requested, m_panelSource);
    watchPanels();
    Q_EMIT setupChanged();
    // Saved after the panels are shown, because panels record the choices that they find.
    if (isAnother || !m_hadUsersChoices)
        m_firstChoices = m_setup->choicesNow();
}

} // namespace setup
} // namespace host
