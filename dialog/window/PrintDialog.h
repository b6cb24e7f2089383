// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <dialog/job/JobSender.h>
#include <dialog/job/SummaryPage.h>
#include <host/labels/PageCheck.h>
#include <host/labels/PageThread.h>
#include <host/setup/SetupKeeper.h>

#include <QDialog>

class QDialogButtonBox;
class QPushButton;

namespace dialog {
inline namespace widgets {
class FittedLabel;
} // namespace widgets
} // namespace dialog

namespace dialog {
inline namespace options {
class ConflictBanner;
} // namespace options
} // namespace dialog

namespace dialog {
inline namespace job {
class ErrorBanner;
class SendBar;
} // namespace job
} // namespace dialog

namespace dialog {
inline namespace window {

class ChoicesColumn;
class DialogPages;
class PanelBanner;
class PanelWatch;
class PreflightBanner;
class StripPreview;

/// What was requested for the job in addition to the printer; the initial state of the dialog.
struct RequestedSettings {
    /// Absent values stand for the printer's defaults.
    host::JobSettings settings = {};
    /// The name of the job; absent for that of the document.
    std::optional<QString> title = {};
    /// An error that a banner shows when the dialog opens; absent if there is none.
    std::optional<QString> error = {};
};

/// The print dialog: printer, paper and pages, the printer's own panel, a preview of the strip, and a
/// summary. All of it is updated immediately when the panel, the user or the print server changes something.
class PrintDialog : public QDialog {
    Q_OBJECT

public:
    /// The keeper and the sender are not owned and must outlive the dialog.
    PrintDialog(std::shared_ptr<const host::LabelDocument> document, host::SetupKeeper &keeper,
                JobSender &sender, const RequestedSettings &requested, QWidget *parent = nullptr);
    ~PrintDialog() override;

    /// Prints like the "Print" button, but does not ask about conflicts: passes the ticket to the sender.
    /// When the sender has sent it, the dialog is accepted. Otherwise error() describes the error, and all
    /// settings are kept.
    void print();
    /// Prepares the job for sending without sending it. Returns the message of the error that prevents it.
    host::Result<void, QString> prepare();
    /// Waits until the lengths of all labels have been measured, for output that depends on them.
    void finishMeasuring();
    /// Returns the message of the error of the last print(); absent if there is none.
    const std::optional<QString> &error() const;
    /// Returns whether a job is being sent, or will be sent as soon as its document is checked.
    bool isSending() const { return m_isSending || m_printsWhenReady; }
    /// Returns the ticket that would be sent now; absent while no printer is known.
    const std::optional<host::Ticket> &ticket() const { return m_ticket; }
    /// Returns the job's name.
    const QString &title() const { return m_jobRequest.title; }
    /// Returns whether a panel of the printer cannot be shown.
    bool hasPanelErrors() const;
    /// Returns the summary of all current settings; empty while no printer is known.
    std::vector<SummarySection> summary() const;

    /// Asks about conflicts and sends the job; a long document is checked first. The dialog closes when the
    /// job has been sent.
    void accept() override;
    /// Closes the dialog; a job that is being sent is canceled first.
    void reject() override;
    /// Notifies the panel and closes the dialog.
    void done(int result) override;

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void build(const RequestedSettings &requested);
    void connectAll();
    void attachSetup();
    void detachSetup();
    void changePaper();
    void applyLayout();
    /// Refreshes everything that shows the job, once, when control returns to the event loop.
    void refreshLater();
    void refresh();
    /// Whether all pages of the job are measured.
    bool isMeasured() const;
    /// Returns whether the document is checked and, if the sender needs it, the strip is measured.
    bool isReadyToSend() const;
    void printWhenReady();
    void refreshStrip();
    void refreshPreflight();
    void applyRemedy(const host::NamedValue &option);
    void refreshMessages();
    /// Refreshes if the settings that the panel would save differ from those of the ticket.
    void checkPanel();
    void pageShown();
    /// Prepares the job. If that fails, shows the error, enables the dialog again and returns false.
    bool isPrepared();
    void send();
    /// Restores the state before "Print" was pressed, without printing.
    void stayOpen();

    std::shared_ptr<const host::LabelDocument> m_document;
    /// Declared before everything that draws and measures with it.
    host::PageThread m_pageThread{*m_document};
    host::PageCheck m_pageCheck{*m_document, m_pageThread};
    host::SetupKeeper &m_keeper;
    JobSender &m_sender;
    bool m_refreshPending = false;
    /// A question of the panel or of the dialog is open.
    bool m_isBlocked = false;
    bool m_isSending = false;
    bool m_closesAfterSending = false;
    bool m_printsWhenReady = false;
    host::JobRequest m_jobRequest;
    std::unique_ptr<host::LabelRenderer> m_renderer;
    /// The ticket that would be sent now; absent while no printer is known. Everything that the dialog shows
    /// is derived from it.
    std::optional<host::Ticket> m_ticket;
    /// The cut plan of the ticket; absent if there is no paper, or while the chosen pages are not valid.
    std::optional<host::CutPlan> m_plan;
    /// Why the chosen pages cannot be printed; absent if they can be.
    std::optional<QString> m_pagesError;

    QWidget *m_content = nullptr;
    PanelBanner *m_panelBanner = nullptr;
    ConflictBanner *m_conflictBanner = nullptr;
    ErrorBanner *m_errorBanner = nullptr;
    ChoicesColumn *m_choices = nullptr;
    DialogPages *m_pages = nullptr;
    PanelWatch *m_panelWatch = nullptr;
    StripPreview *m_stripPreview = nullptr;
    FittedLabel *m_planText = nullptr;
    PreflightBanner *m_preflightBanner = nullptr;
    SendBar *m_sendBar = nullptr;
    QDialogButtonBox *m_buttons = nullptr;
    QPushButton *m_printButton = nullptr;
};

} // namespace window
} // namespace dialog
