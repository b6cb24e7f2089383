// SPDX-License-Identifier: Apache-2.0
// What happens after "Print" is pressed: checking, the question about conflicts, sending, canceling.
#include "PrintDialog.h"

#include "WaitingText.h"

#include <dialog/job/ErrorBanner.h>
#include <dialog/job/SendBar.h>
#include <dialog/options/ConflictBanner.h>
#include <dialog/options/ConflictQuestion.h>
#include <host/labels/BlankMeasurer.h>
#include <host/setup/Preflight.h>

#include <QDialogButtonBox>
#include <QPushButton>

namespace dialog {
inline namespace window {

bool PrintDialog::isMeasured() const
{
    // Includes pages whose blank is not removed.
    return !m_plan || m_renderer->measurer()->isIdle();
}

bool PrintDialog::isReadyToSend() const
{
    return m_pageCheck.isDone() && (isMeasured() || !m_sender.needsStrip());
}

void PrintDialog::printWhenReady()
{
    if (std::exchange(m_printsWhenReady, false))
        accept();
}

host::Result<void, QString> PrintDialog::prepare()
{
    if (!m_keeper.setup())
        return waitingText(m_keeper.session());
    if (const auto checked = m_document->checkForPrinting(); !checked)
        return checked.error().message;
    refresh();
    if (m_sender.needsStrip())
        finishMeasuring();
    if (m_ticket && m_ticket->panel.error)
        return *m_ticket->panel.error;
    if (m_pagesError)
        return *m_pagesError;
    return m_ticket ? host::checkDrawing(*m_ticket, *m_document) : host::Result<void, QString>();
}

void PrintDialog::finishMeasuring()
{
    if (!m_plan || m_plan->isMeasured())
        return;
    m_renderer->measurer()->finish();
    refresh();
}

bool PrintDialog::isPrepared()
{
    // The virtual printer draws all pages: none may be impossible to draw.
    if (m_sender.needsStrip() && !isMeasured())
        m_renderer->measurer()->finish();
    const host::Result<void, QString> prepared = prepare();
    m_errorBanner->setSendError(prepared ? std::nullopt : std::optional(prepared.error()));
    if (!prepared)
        stayOpen();
    return static_cast<bool>(prepared);
}

void PrintDialog::print()
{
    if (isPrepared())
        send();
}

void PrintDialog::send()
{
    m_isSending = true;
    m_content->setEnabled(false);
    m_printButton->setEnabled(false);
    m_sendBar->begin(m_jobRequest.title);
    const host::PpdFile *const ppd = m_keeper.setup()->ppdOrNull();
    m_sender.send({*m_ticket, *m_document, ppd ? std::optional(ppd->path()) : std::nullopt,
                   m_plan ? &*m_plan : nullptr, m_renderer.get()});
}

void PrintDialog::stayOpen()
{
    m_isSending = false;
    m_printsWhenReady = false;
    m_content->setEnabled(true);
    m_buttons->setEnabled(true);
    m_sendBar->end();
    refresh();
}

void PrintDialog::accept()
{
    if (m_isSending)
        return;
    // Apply pending changes first: they decide whether the strip has to be measured.
    if (m_refreshPending)
        refresh();
    if (!m_printButton->isEnabled()) {
        // Printing has become impossible while a long document was checked after "Print" was pressed.
        m_sendBar->end();
        return;
    }
    if (isVisible() && !isReadyToSend()) {
        // The document has thousands of pages; the window stays responsive while they are checked and
        // measured.
        m_printsWhenReady = true;
        m_pageCheck.start();
        if (!m_sender.needsStrip())
            m_pageCheck.hurry();
        m_sendBar->begin(m_jobRequest.title);
        return;
    }
    if (!isPrepared())
        return;
    const QString conflicts = m_conflictBanner->message();
    if (conflicts.isEmpty() || confirmConflicts(conflicts, this))
        send();
    else
        stayOpen();
}

void PrintDialog::reject()
{
    m_printsWhenReady = false;
    if (!m_isSending) {
        QDialog::reject();
        return;
    }
    // Cancel the job before closing, so that no part of it stays on the server.
    m_closesAfterSending = true;
    m_sendBar->showCanceling();
    m_buttons->setEnabled(false);
    m_sender.cancel();
}

} // namespace window
} // namespace dialog
