// SPDX-License-Identifier: Apache-2.0
#include "HeadlessRun.h"

#include "CommandChecks.h"
#include "CommandRequest.h"

#include <dialog/job/QueueSender.h>
#include <dialog/window/PrintDialog.h>
#include <dialog/window/Screenshot.h>
#include <host/cups/queues/LpOptions.h>
#include <host/setup/JobReport.h>
#include <host/setup/JobSummary.h>
#include <host/setup/Preflight.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QJsonDocument>
#include <QTimer>

namespace programs {
inline namespace kvprint {

namespace {

struct HeadlessRunText {
    Q_DECLARE_TR_FUNCTIONS(programs::kvprint::HeadlessRun)
};

/// The time within which printers on the network that have no queue yet announce themselves.
constexpr std::chrono::milliseconds discoveryTimeout{1500};

bool isPpdKnown(const host::QueueSession &session)
{
    return session.ppdState() != host::PpdState::Asked && session.ppdState() != host::PpdState::Cached;
}

/// Runs the event loop until the condition is true, a signal is received, or the timeout expires. Returns
/// whether the condition is true.
bool waitUntil(host::QueueSession &session, SignalWatch &watch, const std::function<bool()> &holds,
               std::optional<std::chrono::milliseconds> timeout = std::nullopt)
{
    QEventLoop loop;
    const auto look = [&] {
        if (holds())
            loop.quit();
    };
    QObject::connect(&session, &host::QueueSession::settled, &loop, look);
    QObject::connect(&session, &host::QueueSession::chosenChanged, &loop, look);
    QObject::connect(&session, &host::QueueSession::ppdChanged, &loop, look);
    QObject::connect(&watch, &SignalWatch::caught, &loop, &QEventLoop::quit);
    if (timeout)
        QTimer::singleShot(*timeout, &loop, &QEventLoop::quit);
    if (!holds() && !watch.signal())
        loop.exec();
    return holds();
}

} // namespace

HeadlessRun::HeadlessRun(const CommandLine &command, const Console &console, host::CupsServer server,
                         std::shared_ptr<const host::LabelDocument> document)
    : m_command(command)
    , m_console(console)
    , m_server(std::move(server))
    , m_document(std::move(document))
{
}

host::PrinterSetup *HeadlessRun::waitForSetup(host::QueueSession &session, host::SetupKeeper &keeper)
{
    std::optional<host::CupsError> failure;
    QObject::connect(&session, &host::QueueSession::failed, &keeper,
                     [&](const host::CupsError &error) { failure = error; });
    session.start(host::Discovery::No);
    waitUntil(session, m_signals,
              [&] { return session.isSettled() && (!session.chosen() || isPpdKnown(session)); });
    const bool mayBeDiscovered =
        !session.chosen() && failure && failure->kind == host::CupsErrorKind::NotFound;
    if (mayBeDiscovered) {
        session.start(host::Discovery::Yes);
        const auto isThere = [&] { return session.chosen().has_value(); };
        if (waitUntil(session, m_signals, isThere, discoveryTimeout)) {
            failure.reset();
            // The server queries the printer's capabilities before it creates the PPD.
            waitUntil(session, m_signals, [&] { return isPpdKnown(session); });
        }
    }
    if (m_signals.signal())
        return nullptr;
    if (!failure && !session.chosen())
        failure = host::CupsError{
            host::CupsErrorKind::NotFound,
            HeadlessRunText::tr("The print server \"%1\" has no destinations").arg(m_server.displayName())};
    // The dialog would show which other queue it chooses; without it, the user would not see where labels go.
    const bool isAnyQueue = !m_command.destination && !host::LpOptions::read().defaultName() &&
                            !session.destinations().defaultDestination();
    if (!failure && isAnyQueue)
        failure = host::CupsError{
            host::CupsErrorKind::NotFound,
            HeadlessRunText::tr("The print server \"%1\" has no default destination; specify one with \"-d\"")
                .arg(m_server.displayName())};
    if (failure)
        m_console.printError(failure->message);
    // Without a usable PPD, what would be printed is not known.
    const bool mayGoOn = !failure || (m_command.force && failure->kind == host::CupsErrorKind::Rejected);
    return mayGoOn ? keeper.setup() : nullptr;
}

bool HeadlessRun::canPrintDocument() const
{
    const auto pages = host::choosePages(m_command.settings, {}, m_document->pageCounts());
    if (!pages) {
        m_console.printError(pages.error().message);
        return false;
    }
    const auto checked = m_document->checkForPrinting();
    if (!checked)
        m_console.printError(checked.error().message);
    return static_cast<bool>(checked);
}

std::optional<host::JobRequest> HeadlessRun::makeJobRequest(const host::PrinterSetup &setup) const
{
    auto pages = host::choosePages(m_command.settings, defaultPageSettings(setup.destination()),
                                   m_document->pageCounts());
    if (!pages) {
        m_console.printError(pages.error().message);
        return std::nullopt;
    }
    return host::JobRequest{m_command.settings, m_command.title.value_or(host::defaultTitle(*m_document)),
                            std::move(pages).value()};
}

bool HeadlessRun::takeScreenshot(host::SetupKeeper &keeper) const
{
    if (!m_command.screenshot)
        return true;
    dialog::QueueSender sender(m_server);
    dialog::PrintDialog dialog(m_document, keeper, sender, {m_command.settings, m_command.title, {}});
    dialog.show();
    QCoreApplication::processEvents();
    const auto saved = dialog::saveScreenshot(dialog, *m_command.screenshot);
    if (!saved)
        m_console.printError(saved.error().message);
    return static_cast<bool>(saved);
}

ExitStatus HeadlessRun::run()
{
    // A document that cannot be printed is reported without waiting for a server.
    if (!canPrintDocument())
        return ExitStatus::Failed;
    host::QueueSession session(m_server, m_command.destination);
    host::SetupKeeper keeper(session, panelSource(m_command), setupRequest(m_command));
    host::PrinterSetup *const setup = waitForSetup(session, keeper);
    // From here on the setup stays the same, whatever the server reports.
    QObject::disconnect(&session, nullptr, &keeper, nullptr);
    if (const std::optional<int> signal = m_signals.signal())
        return endedBy(*signal);
    const CommandChecks checks(m_command, m_console);
    if (!setup || !checks.accepts(*setup) || !takeScreenshot(keeper))
        return ExitStatus::Failed;
    const std::optional<host::JobRequest> request = makeJobRequest(*setup);
    if (!request)
        return ExitStatus::Failed;
    const host::Ticket ticket = host::ticketFor(*setup, *m_document, *request);
    return checks.accepts(ticket, *setup) ? checks.statusOf(finish(*setup, ticket), *setup)
                                          : ExitStatus::Failed;
}

ExitStatus HeadlessRun::finish(const host::PrinterSetup &setup, const host::Ticket &ticket)
{
    const auto print = [&](const auto &json, const QString &text) {
        m_console.out(m_command.json ? QString::fromUtf8(QJsonDocument(json).toJson()) : text);
        return ExitStatus::Printed;
    };
    if (m_command.task == Task::Print)
        return send(ticket);
    const host::LabelRenderer renderer(*m_document, host::shownLayout(&ticket, &setup, *m_document));
    std::optional<host::CutPlan> plan;
    if (ticket.paper)
        plan = host::makePlan(ticket, *m_document, renderer);
    if (m_command.task == Task::DryRun) {
        const std::vector<host::PreflightNote> notes =
            plan ? host::preflight(ticket, *m_document, renderer, *plan, setup.ppd().papers())
                 : std::vector<host::PreflightNote>();
        return print(host::ticketJson(m_server, ticket, notes),
                     host::ticketInPlainText(m_server, ticket, notes));
    }
    if (m_command.task == Task::Summary) {
        const auto summary = host::summarize(ticket, setup, plan ? &*plan : nullptr);
        return print(host::summaryJson(summary), host::summaryInPlainText(summary));
    }
    return send(ticket);
}

ExitStatus HeadlessRun::endedBy(int signal) const
{
    m_console.printError(HeadlessRunText::tr("Stopped by a signal; nothing was printed."));
    return statusOfSignal(signal);
}

ExitStatus HeadlessRun::send(const host::Ticket &ticket)
{
    if (const auto checked = host::checkDrawing(ticket, *m_document); !checked) {
        m_console.printError(checked.error());
        return ExitStatus::Failed;
    }
    dialog::QueueSender sender(m_server);
    QEventLoop loop;
    std::optional<QString> error;
    QObject::connect(&sender, &dialog::JobSender::sent, &loop, &QEventLoop::quit);
    QObject::connect(&sender, &dialog::JobSender::failed, &loop, [&](const QString &text) {
        error = text;
        loop.quit();
    });
    QObject::connect(&sender, &dialog::JobSender::canceled, &loop, &QEventLoop::quit);
    QObject::connect(&m_signals, &SignalWatch::caught, &sender, &dialog::JobSender::cancel);
    if (const std::optional<int> signal = m_signals.signal())
        return endedBy(*signal);
    sender.send({ticket, *m_document, {}});
    loop.exec();
    const std::optional<int> signal = m_signals.signal();
    if (error) {
        m_console.printError(*error);
        return signal ? statusOfSignal(*signal) : ExitStatus::Failed;
    }
    // Only a signal cancels a job here.
    if (!sender.lastJob())
        return signal ? endedBy(*signal) : ExitStatus::Canceled;
    CommandChecks(m_command, m_console).printRequestId(sender);
    return ExitStatus::Printed;
}

} // namespace kvprint
} // namespace programs
