// SPDX-License-Identifier: Apache-2.0
#include "PrintRun.h"

#include "CommandChecks.h"
#include "CommandRequest.h"
#include "HeadlessRun.h"
#include "LeftJobsRun.h"
#include "ServerRun.h"
#include "SignalWatch.h"
#include "TerminalPassword.h"
#include "TerminalTrust.h"

#include <dialog/job/DocumentPasswordDialog.h>
#include <dialog/job/JobWindow.h>
#include <dialog/job/PasswordDialog.h>
#include <dialog/job/QueueSender.h>
#include <dialog/job/TrustDialog.h>
#include <dialog/job/VirtualSender.h>
#include <dialog/window/Screenshot.h>

#include <QApplication>
#include <QJsonDocument>
#include <QTimer>
#include <QWindow>

namespace programs {
inline namespace kvprint {

namespace {

struct PrintRunText {
    Q_DECLARE_TR_FUNCTIONS(programs::kvprint::PrintRun)
};

/// The run has no window.
void askOnTerminalFor(host::CupsServer &server)
{
    server.askPassword = askOnTerminal();
    server.askTrust = askTrustOnTerminal();
}

/// Waits until the window is painted before other work starts that would slow it down.
void waitForPainting(const QWidget &window)
{
    // Some desktops delay the painting of a window, for instance on another workspace.
    constexpr std::chrono::milliseconds longest{200};
    bool isLate = false;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, [&] { isLate = true; });
    timer.start(longest);
    while (!isLate && window.isVisible() && !window.windowHandle()->isExposed())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace

PrintRun::PrintRun(CommandLine command, Console console)
    : m_command(std::move(command))
    , m_console(std::move(console))
{
}

std::unique_ptr<host::LabelDocument> PrintRun::openDocument()
{
    const bool hasWindow = !m_command.noDialog && m_command.task == Task::Print;
    auto document = host::LabelDocument::open(
        m_command.documents.isEmpty() ? QStringList{QStringLiteral("-")} : m_command.documents,
        hasWindow ? host::DocumentPasswordSource(dialog::askDocumentPasswordWithDialog)
                  : askDocumentPasswordOnTerminal());
    if (document)
        return std::move(document).value();
    m_console.printError(document.error().message);
    return nullptr;
}

dialog::RequestedSettings PrintRun::requestedSettings() const
{
    return {m_command.settings, m_command.title, {}};
}

std::unique_ptr<host::PrinterSetup> PrintRun::openPrinter()
{
    auto ppd = host::PpdFile::open(*m_command.ppd);
    if (!ppd) {
        m_console.printError(ppd.error().message);
        return nullptr;
    }
    auto setup = std::make_unique<host::PrinterSetup>(host::Destination(), std::move(ppd).value(),
                                                      setupRequest(m_command), panelSource(m_command));
    if (!CommandChecks(m_command, m_console).accepts(*setup))
        return nullptr;
    if (!setup->paper()) {
        m_console.printError(PrintRunText::tr("The PPD file \"%1\" defines no paper").arg(*m_command.ppd));
        return nullptr;
    }
    return setup;
}

ExitStatus PrintRun::runVirtual()
{
    std::unique_ptr<host::PrinterSetup> setup = openPrinter();
    std::unique_ptr<host::LabelDocument> document = setup ? openDocument() : nullptr;
    if (!document)
        return ExitStatus::Failed;
    host::SetupKeeper keeper(std::move(setup));
    dialog::VirtualSender sender(m_command.output);
    dialog::PrintDialog dialog(std::move(document), keeper, sender, requestedSettings());
    return CommandChecks(m_command, m_console)
        .statusOf(showVirtual(dialog, sender, *keeper.setup()), *keeper.setup());
}

bool PrintRun::canPrintAtOnce(dialog::PrintDialog &dialog, const host::PrinterSetup &setup) const
{
    if (const auto prepared = dialog.prepare(); !prepared) {
        m_console.printError(prepared.error());
        return false;
    }
    return CommandChecks(m_command, m_console).accepts(*dialog.ticket(), setup);
}

ExitStatus PrintRun::showVirtual(dialog::PrintDialog &dialog, dialog::VirtualSender &sender,
                                 const host::PrinterSetup &setup)
{
    dialog.show();
    // Layout and first painting happen here, so that the picture is complete.
    QApplication::processEvents();
    if (!takeScreenshot(dialog))
        return ExitStatus::Failed;
    const bool printsAtOnce = m_command.noDialog && m_command.task == Task::Print;
    if ((printsAtOnce || m_command.task != Task::Print) && !canPrintAtOnce(dialog, setup))
        return ExitStatus::Failed;
    if (m_command.task != Task::Print) {
        printSummary(dialog.summary());
        return ExitStatus::Printed;
    }
    if (printsAtOnce) {
        sender.setScreenshotFunction([&] { return dialog::completePicture(dialog); });
        dialog.print();
        if (const std::optional<QString> &error = dialog.error()) {
            m_console.printError(*error);
            dialog.done(QDialog::Rejected);
            return ExitStatus::Failed;
        }
    } else if (dialog.exec() != QDialog::Accepted) {
        return ExitStatus::Canceled;
    }
    printSummary(dialog.summary());
    m_console.out(PrintRunText::tr("The label strip was written to:") + u'\n');
    m_console.out(*sender.folder() + u'\n');
    return ExitStatus::Printed;
}

ExitStatus PrintRun::runOnQueue()
{
    std::unique_ptr<host::LabelDocument> document = openDocument();
    if (!document)
        return ExitStatus::Failed;
    host::CupsServer server = cupsServer(m_command);
    if (m_command.noDialog || m_command.task != Task::Print) {
        askOnTerminalFor(server);
        LeftJobsRun(m_command, m_console).report();
        return HeadlessRun(m_command, m_console, server, std::move(document)).run();
    }

    // Closes the dialog as the user would, which cancels a job that is being sent.
    SignalWatch watch;
    QObject::connect(&watch, &SignalWatch::caught, qApp, &QApplication::closeAllWindows);
    const auto canceled = [&] {
        const std::optional<int> signal = watch.signal();
        return signal ? statusOfSignal(*signal) : ExitStatus::Canceled;
    };
    dialog::PrintDialog *window = nullptr;
    server.askPassword = [&](const host::PasswordRequest &request) {
        dialog::askWithDialog(window)(request);
    };
    server.askTrust = [&](const host::TrustRequest &request) { dialog::askTrustWithDialog(window)(request); };
    host::QueueSession session(server, m_command.destination);
    host::SetupKeeper keeper(session, panelSource(m_command), setupRequest(m_command));
    dialog::QueueSender sender(server);
    dialog::PrintDialog dialog(std::move(document), keeper, sender, requestedSettings());
    window = &dialog;
    dialog.show();
    waitForPainting(dialog);
    session.start(host::Discovery::Yes);
    QApplication::processEvents();
    if (!dialog.isVisible())
        return dialog.result() == QDialog::Accepted ? follow(dialog, sender, server) : canceled();
    if (!takeScreenshot(dialog))
        return ExitStatus::Failed;
    if (dialog.exec() != QDialog::Accepted)
        return canceled();
    return follow(dialog, sender, server);
}

ExitStatus PrintRun::follow(dialog::PrintDialog &dialog, const dialog::QueueSender &sender,
                            const host::CupsServer &server)
{
    CommandChecks(m_command, m_console).printRequestId(sender);
    dialog::JobWindow window(server, sender.lastJob()->queue, sender.lastJob()->id, dialog.title());
    window.exec();
    if (const auto &status = window.status()) {
        if (status->state == host::JobState::Aborted) {
            m_console.printError(status->sentences().join(u' '));
            return ExitStatus::Failed;
        }
        // The window has closed before the message could be read, as after each printed job.
        if (status->isPurged && status->state == host::JobState::Completed)
            m_console.printError(status->sentences().join(u' '));
        if (status->state == host::JobState::Canceled)
            return ExitStatus::Canceled;
    }
    const bool withoutPanel = dialog.hasPanelErrors();
    return withoutPanel ? ExitStatus::PrintedWithoutPanel : ExitStatus::Printed;
}

bool PrintRun::takeScreenshot(dialog::PrintDialog &dialog)
{
    if (!m_command.screenshot)
        return true;
    const auto saved = dialog::saveScreenshot(dialog, *m_command.screenshot);
    if (!saved)
        m_console.printError(saved.error().message);
    return static_cast<bool>(saved);
}

void PrintRun::printSummary(const std::vector<host::SummarySection> &summary)
{
    m_console.out(m_command.json ? QString::fromUtf8(QJsonDocument(host::summaryJson(summary)).toJson())
                                 : host::summaryInPlainText(summary));
}

ExitStatus PrintRun::run()
{
    if (m_command.task == Task::List || m_command.task == Task::ChangeJob) {
        host::CupsServer server = cupsServer(m_command);
        askOnTerminalFor(server);
        return ServerRun(m_command, m_console, server).run();
    }
    if (m_command.task == Task::CancelLeft || m_command.task == Task::ReleaseLeft) {
        host::CupsServer server = cupsServer(m_command);
        askOnTerminalFor(server);
        return LeftJobsRun(m_command, m_console).settle(server);
    }
    return m_command.ppd ? runVirtual() : runOnQueue();
}

} // namespace kvprint
} // namespace programs
