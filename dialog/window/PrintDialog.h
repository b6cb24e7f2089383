// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <dialog/job/JobSender.h>
#include <dialog/job/SummaryPage.h>
#include <host/documents/PageCheck.h>
#include <host/documents/PageThread.h>
#include <host/setup/SetupKeeper.h>

#include <QDialog>

class QDialogButtonBox;
class QPushButton;

namespace dialog {
inline namespace widgets {
class Banner;
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
class ProblemBanner;
class SendBar;
} // namespace job
} // namespace dialog

namespace dialog {
inline namespace window {

class ChoicesColumn;
class DialogPages;
class PanelWatch;
class StripPreview;

/// What the dialog opens with, beside the printer.
struct DialogWishes {
    host::JobSettings settings = {};
    /// Nothing for the document's name.
    std::optional<QString> title = {};
    /// Told in a banner from the beginning.
    QString problem = {};
};

/// The print dialog: printer, paper and pages, the printer's own panel, the strip as it will come out, and a
/// summary. Everything is live: what the panel, the user or the print server changes is seen at once.
class PrintDialog : public QDialog {
    Q_OBJECT

public:
    /// Keeper and sender are borrowed.
    PrintDialog(std::shared_ptr<const host::LabelDocument> document, host::SetupKeeper &keeper,
                JobSender &sender, const DialogWishes &wishes, QWidget *parent = nullptr);
    ~PrintDialog() override;

    /// Prints as the Print button does: the ticket is handed to the sender. When that has sent it, the dialog
    /// is accepted; otherwise problem() says why not, and everything stays as set. Conflicts are not asked
    /// about.
    void print();
    /// Readies the job for sending without sending it; why that cannot be done, or nothing.
    std::optional<QString> prepare();
    /// Waits until the lengths of all labels are known, for runs whose output depends on them.
    void finishMeasuring();
    /// Why the last print() failed; empty when it did not.
    const QString &problem() const;
    /// Whether a job is on its way, or will be as soon as its document is checked.
    bool isSending() const { return m_isSending || m_printsWhenReady; }
    /// What would be sent now; absent while no printer is known.
    const std::optional<host::Ticket> &ticket() const { return m_ticket; }
    /// The job's name.
    const QString &title() const { return m_draft.title; }
    /// Whether the printer has cut options, but there is no panel for them.
    bool hasPanelProblem() const;
    /// The summary of all settings as they are now; empty while no printer is known.
    std::vector<SummarySection> summary() const;

    void accept() override;
    void reject() override;
    void done(int result) override;

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void build(const DialogWishes &wishes);
    void connectAll();
    void takeSetup();
    void dropSetup();
    void changePaper();
    void applyPaper();
    /// Everything that shows the job is refreshed once, when control returns to the event loop.
    void refreshLater();
    void refresh();
    /// Whether the document is checked and, for a sender that needs it, the strip measured.
    bool isReadyToSend() const;
    void printWhenReady();
    void refreshStrip();
    void refreshMessages();
    /// Refreshes when the panel would save something else than the ticket says.
    void lookAtPanel();
    void pageShown();
    /// Readies the job; when it cannot be, says why and leaves the dialog as it was.
    bool isPrepared();
    void send();
    /// Nothing is printed; everything is as it was before Print was pressed.
    void stayOpen();

    std::shared_ptr<const host::LabelDocument> m_document;
    /// Before all that draws and measures with it.
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
    host::JobDraft m_draft;
    std::unique_ptr<host::LabelRenderer> m_renderer;
    /// What would be sent now; absent while no printer is known. Everything that is shown is made from it.
    std::optional<host::Ticket> m_ticket;
    /// The ticket's plan of cuts; absent without a paper, and while the pages to print are not valid.
    std::optional<host::CutPlan> m_plan;
    /// Why the chosen pages cannot be printed; empty when they can.
    QString m_pagesError;

    QWidget *m_content = nullptr;
    Banner *m_panelBanner = nullptr;
    ConflictBanner *m_conflictBanner = nullptr;
    ProblemBanner *m_problemBanner = nullptr;
    ChoicesColumn *m_choices = nullptr;
    DialogPages *m_pages = nullptr;
    PanelWatch *m_panelWatch = nullptr;
    StripPreview *m_stripPreview = nullptr;
    FittedLabel *m_figures = nullptr;
    SendBar *m_sendBar = nullptr;
    QDialogButtonBox *m_buttons = nullptr;
    QPushButton *m_printButton = nullptr;
};

} // namespace window
} // namespace dialog
