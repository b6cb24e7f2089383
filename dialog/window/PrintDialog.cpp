// SPDX-License-Identifier: Apache-2.0
#include "PrintDialog.h"

#include "ChoicesColumn.h"
#include "DialogPages.h"
#include "PanelBanner.h"
#include "PanelWatch.h"
#include "PreflightBanner.h"
#include "StripPreview.h"
#include "WaitingText.h"

#include <dialog/job/ErrorBanner.h>
#include <dialog/job/LeftJobBanner.h>
#include <dialog/job/PageOptions.h>
#include <dialog/job/SendBar.h>
#include <dialog/options/ConflictBanner.h>
#include <dialog/options/ConflictQuestion.h>
#include <dialog/widgets/FittedLabel.h>
#include <host/labels/BlankMeasurer.h>
#include <host/strip/CutPlanText.h>

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>

namespace dialog {
inline namespace window {

PrintDialog::PrintDialog(std::shared_ptr<const host::LabelDocument> document, host::SetupKeeper &keeper,
                         JobSender &sender, const RequestedSettings &requested, QWidget *parent)
    : QDialog(parent)
    , m_document(std::move(document))
    , m_keeper(keeper)
    , m_sender(sender)
{
    m_jobRequest.settings = requested.settings;
    m_jobRequest.title = requested.title.value_or(host::defaultTitle(*m_document));
    setWindowTitle(tr("Print %1").arg(m_document->title()));
    build(requested);
    m_pages->showJob(m_jobRequest);
    connectAll();
    attachSetup();
    m_errorBanner->setSendError(requested.error);
}

PrintDialog::~PrintDialog()
{
    m_pages->disconnect(this);
    detachSetup();
}

void PrintDialog::build(const RequestedSettings &requested)
{
    m_content = new QWidget(this);
    m_panelBanner = new PanelBanner(m_keeper, this);
    m_conflictBanner = new ConflictBanner(m_keeper, this);
    m_errorBanner = new ErrorBanner(this);
    // The tab order leads from here to the pages of the printer and then to the strip.
    m_choices = new ChoicesColumn(*m_document, m_keeper, requested.settings, m_content);
    const host::QueueSession *const session = m_keeper.session();
    m_pages = new DialogPages(*m_document, session ? &session->server() : nullptr, m_content);
    m_panelWatch = new PanelWatch(this);
    m_stripPreview = new StripPreview(m_content);
    // The minimum height keeps the window from growing whenever the text changes.
    m_planText = new FittedLabel(3, 20, this);
    m_preflightBanner = new PreflightBanner(this);
    auto *const leftJobs = session ? new LeftJobBanner(session->server(), this) : nullptr;
    m_sendBar = new SendBar(this);
    m_buttons = new QDialogButtonBox(this);
    m_printButton = m_buttons->addButton(tr("&Print"), QDialogButtonBox::AcceptRole);
    m_printButton->setDefault(true);
    m_buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);

    auto *const upper = new QHBoxLayout;
    upper->addWidget(m_choices);
    upper->addWidget(m_pages, 1);
    auto *const content = new QVBoxLayout(m_content);
    content->setContentsMargins({});
    content->addLayout(upper, 1);
    content->addWidget(m_stripPreview);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_panelBanner);
    layout->addWidget(m_content, 1);
    layout->addWidget(m_planText);
    layout->addWidget(m_preflightBanner);
    layout->addWidget(m_conflictBanner);
    layout->addWidget(m_errorBanner);
    if (leftJobs) {
        layout->addWidget(leftJobs);
        leftJobs->lookForJobs();
    }
    layout->addWidget(m_sendBar);
    layout->addWidget(m_buttons);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void PrintDialog::connectAll()
{
    connect(&m_choices->pages(), &PageOptions::changed, this, &PrintDialog::refreshLater);
    connect(m_choices, &ChoicesColumn::paperChosen, this, &PrintDialog::changePaper);
    connect(m_pages, &QTabWidget::currentChanged, this, &PrintDialog::pageShown);
    connect(m_pages, &DialogPages::chosen, this, &PrintDialog::refreshLater);
    m_pages->setSummary([this] { return summary(); });
    m_pages->setTicket([this] { return m_ticket && !m_pagesError ? &m_ticket->job : nullptr; });
    connect(m_panelWatch, &PanelWatch::touched, this, &PrintDialog::checkPanel);
    connect(&m_pageCheck, &host::PageCheck::done, this, &PrintDialog::refreshLater);
    connect(m_conflictBanner, &ConflictBanner::remedyApplied, this, &PrintDialog::refresh);
    connect(&m_keeper, &host::SetupKeeper::setupAboutToEnd, this, &PrintDialog::detachSetup);
    connect(&m_keeper, &host::SetupKeeper::setupChanged, this, &PrintDialog::attachSetup);
    if (host::QueueSession *const session = m_keeper.session()) {
        m_errorBanner->follow(*session);
        connect(session, &host::QueueSession::settled, this, &PrintDialog::refreshLater);
        connect(session, &host::QueueSession::ppdChanged, this, &PrintDialog::refreshLater);
        connect(session, &host::QueueSession::stateChanged, this, &PrintDialog::refreshLater);
    }
    connect(m_preflightBanner, &PreflightBanner::remedyChosen, this, &PrintDialog::applyRemedy);
    connect(m_sendBar, &SendBar::canceled, &m_sender, &JobSender::cancel);
    connect(m_sendBar, &SendBar::canceled, this, [this] {
        if (!m_isSending)
            stayOpen();
    });
    connect(&m_sender, &JobSender::progressed, m_sendBar, &SendBar::setProgress);
    connect(&m_sender, &JobSender::sent, this, [this] {
        m_isSending = false;
        QDialog::accept();
    });
    connect(&m_sender, &JobSender::failed, this, [this](const QString &error) {
        // An error keeps the window open, for example if the job could not be canceled.
        m_closesAfterSending = false;
        stayOpen();
        m_errorBanner->setSendError(error);
    });
    connect(&m_sender, &JobSender::canceled, this, [this] {
        stayOpen();
        if (std::exchange(m_closesAfterSending, false))
            QDialog::reject();
    });
}

void PrintDialog::attachSetup()
{
    host::PrinterSetup *const setup = m_keeper.setup();
    m_panelBanner->showSetup();
    if (setup) {
        m_pages->attachSetup(*setup);
        setup->setDidChangeHook([this] { refreshLater(); });
        std::vector<QWidget *> views;
        for (host::HostedPanel *const panel : setup->panels()) {
            if (QWidget *const view = panel->view())
                views.push_back(view);
        }
        m_panelWatch->follow(views);
    }
    m_choices->showPapers();
    if (isVisible())
        m_pages->notifyFront();
    refresh();
}

void PrintDialog::detachSetup()
{
    m_panelWatch->follow({});
    m_stripPreview->clear();
    m_plan.reset();
    m_ticket.reset();
    if (m_keeper.setup())
        m_keeper.setup()->setDidChangeHook({});
    m_pages->detachSetup();
    m_conflictBanner->setConflicts({});
}

void PrintDialog::changePaper()
{
    m_keeper.setup()->choosePaper(m_choices->chosenPaper());
    refresh();
}

void PrintDialog::applyLayout()
{
    const host::PageLayout layout =
        host::shownLayout(m_ticket ? &*m_ticket : nullptr, m_keeper.setup(), *m_document);
    if (m_renderer && m_renderer->layout() == layout)
        return;
    // Everything that refers to the old renderer releases it first.
    m_stripPreview->clear();
    m_plan.reset();
    auto renderer = std::make_unique<host::LabelRenderer>(*m_document, layout, m_pageThread);
    connect(renderer->measurer(), &host::BlankMeasurer::measured, this, &PrintDialog::refreshLater);
    m_pages->setRenderer(*renderer);
    m_renderer = std::move(renderer);
}

void PrintDialog::refreshLater()
{
    if (m_refreshPending)
        return;
    m_refreshPending = true;
    QTimer::singleShot(0, this, [this] {
        if (m_refreshPending)
            refresh();
    });
}

void PrintDialog::refresh()
{
    m_refreshPending = false;
    m_stripPreview->clear();
    m_plan.reset();
    host::PrinterSetup *const setup = m_keeper.setup();
    if (setup) {
        // While the panel asks a question, its settings have not changed yet.
        if (!m_isBlocked && !setup->isPanelBusy())
            setup->notePanelInput();
        m_choices->pages().setDefaults(host::defaultPageSettings(setup->destination()));
    }
    const auto choices = m_choices->pages().choices();
    m_pagesError = choices ? std::nullopt : std::optional(choices.error().message);
    m_jobRequest.pages = choices ? choices.value() : host::PageChoices();
    m_pages->writeJobTo(m_jobRequest);
    m_choices->pages().writeTo(m_jobRequest.settings);
    m_ticket = setup ? std::optional(host::ticketFor(*setup, *m_document, m_jobRequest)) : std::nullopt;
    applyLayout();
    m_printButton->setEnabled(setup && choices && !m_isSending);
    refreshStrip();
    refreshPreflight();
    refreshMessages();
    m_pages->refresh();
    if (m_printsWhenReady && isReadyToSend())
        QMetaObject::invokeMethod(this, &PrintDialog::printWhenReady, Qt::QueuedConnection);
}

void PrintDialog::refreshStrip()
{
    if (m_pagesError) {
        m_planText->setMessage(*m_pagesError);
        return;
    }
    if (!m_ticket) {
        m_planText->setMessage(waitingText(m_keeper.session()));
        return;
    }
    m_stripPreview->setVisible(m_ticket->paper.has_value());
    if (!m_ticket->paper) {
        m_planText->setMessage(
            tr("The printer has no description (PPD); its papers and cuts are not known."));
        return;
    }
    m_plan = host::makePlan(*m_ticket, *m_document, *m_renderer);
    m_stripPreview->setPlan(*m_plan, *m_renderer);
    m_planText->setMessage(host::cutPlanFigures(*m_plan) + u'\n' +
                           host::cutPlanDescription(*m_plan).join(u' '));
}

void PrintDialog::refreshPreflight()
{
    std::vector<host::PreflightNote> notes;
    if (m_plan)
        notes =
            host::preflight(*m_ticket, *m_document, *m_renderer, *m_plan, m_keeper.setup()->ppd().papers());
    m_preflightBanner->setNotes(notes);
}

void PrintDialog::applyRemedy(const host::NamedValue &option)
{
    host::PrinterSetup *const setup = m_keeper.setup();
    if (!setup || !setup->hasPpd())
        return;
    if (option.name == host::paperKeyword) {
        if (const std::optional<host::PpdPaper> paper = setup->ppd().paper(option.value))
            setup->choosePaper(*paper);
        m_choices->showPapers();
    } else if (option.name == "orientation-requested") {
        m_pages->showOrientation(static_cast<host::Orientation>(option.value.toInt()));
    } else {
        host::JobSettings settings;
        m_choices->pages().writeTo(settings);
        settings.pageRanges = QString::fromLatin1(option.value);
        m_choices->pages().setSettings(settings);
    }
    refresh();
}

void PrintDialog::refreshMessages()
{
    const std::vector<host::Conflict> conflicts =
        m_ticket ? m_ticket->conflicts : std::vector<host::Conflict>();
    m_pages->setConflicts(conflicts);
    m_choices->setConflicts(conflicts);
    m_conflictBanner->setConflicts(conflicts, m_ticket ? m_ticket->remedy : std::nullopt);
    if (const host::PrinterSetup *const setup = m_keeper.setup())
        m_errorBanner->setChoiceErrors(setup->choiceErrors(), setup->replacedChoices());
}

void PrintDialog::checkPanel()
{
    host::PrinterSetup *const setup = m_keeper.setup();
    if (setup && m_ticket && !setup->isPanelBusy() && setup->panelSettings() != m_ticket->panel)
        refresh();
}

void PrintDialog::pageShown()
{
    m_pages->notifyFront();
    refresh();
}

bool PrintDialog::event(QEvent *event)
{
    // While a question is open, the printer to which it refers is not replaced.
    if (event->type() == QEvent::WindowBlocked) {
        m_isBlocked = true;
        m_keeper.hold();
    }
    if (event->type() == QEvent::WindowUnblocked) {
        m_isBlocked = false;
        QTimer::singleShot(0, this, [this] {
            if (!m_isBlocked)
                m_keeper.release();
        });
    }
    // Checking the pages starts after the first painting, which another thread would slow down.
    if (event->type() == QEvent::Paint)
        m_pageCheck.start();
    return QDialog::event(event);
}

void PrintDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    pageShown();
}

void PrintDialog::done(int result)
{
    m_pages->notifyClosing(this);
    QDialog::done(result);
}

const std::optional<QString> &PrintDialog::error() const
{
    return m_errorBanner->sendError();
}

bool PrintDialog::hasPanelErrors() const
{
    return m_keeper.setup() && !m_keeper.setup()->panelErrors().empty();
}

std::vector<SummarySection> PrintDialog::summary() const
{
    if (!m_keeper.setup() || !m_ticket)
        return {};
    return host::summarize(*m_ticket, *m_keeper.setup(), m_plan ? &*m_plan : nullptr);
}

} // namespace window
} // namespace dialog
