// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <dialog/job/SummaryPage.h>
#include <host/cups/server/CupsServer.h>
#include <host/setup/SetupJob.h>

#include <QTabWidget>

#include <functional>

namespace dialog {
inline namespace job {
class JobPage;
class TicketPage;
} // namespace job
} // namespace dialog

namespace dialog {
inline namespace widgets {
class LazyPage;
} // namespace widgets
} // namespace dialog

namespace dialog {
inline namespace options {
class OptionsPage;
} // namespace options
} // namespace dialog

namespace dialog {
inline namespace window {

class PagePreview;
class PanelPage;

/// The pages of the dialog: the printer's panels and its other options, which are replaced with the printer,
/// and the pages that every printer has.
class DialogPages : public QTabWidget {
    Q_OBJECT

public:
    /// The document and the server are not owned and must outlive the widget. If the server is null, the
    /// pages "Job" and "What will be sent" are omitted.
    DialogPages(const host::LabelDocument &document, const host::CupsServer *server, QWidget *parent);
    ~DialogPages() override;

    /// Shows the pages of the printer. The setup is not owned and must exist until detachSetup() is called.
    void attachSetup(host::PrinterSetup &setup);
    /// Releases the panel's view and removes all pages of the printer.
    void detachSetup();

    /// Shows labels that this renderer draws. It is not owned and must exist until the next call.
    void setRenderer(const host::LabelRenderer &renderer);
    /// Sets the job's name, orientation, hold and priority that the "Job" page shows when it is created.
    void showJob(const host::JobRequest &request) { m_job = request; }
    /// Shows another orientation on the "Job" page.
    void showOrientation(host::Orientation orientation);
    /// Writes these values, with the user's changes, to the request. Without a server they are unchanged.
    void writeJobTo(host::JobRequest &request) const;
    /// Shows the conflicts below the options that they involve, and those of the panel's options above the
    /// panel.
    void setConflicts(const std::vector<host::Conflict> &conflicts);
    /// Sets the functions whose results the pages "Summary" and "What will be sent" show when they are in
    /// front.
    void setSummary(std::function<std::vector<SummarySection>()> summary) { m_summary = std::move(summary); }
    /// The function returns null while no job can be sent.
    void setTicket(std::function<const host::JobTicket *()> ticket) { m_ticket = std::move(ticket); }
    /// Refreshes the page in front.
    void refresh();
    /// Notifies the panel that its page is in front; does nothing if it is not.
    void notifyFront();
    /// Notifies the panel that the dialog is about to close.
    void notifyClosing(QWidget *window);

Q_SIGNALS:
    /// Emitted when the user has chosen a printer option, which is marked already, or has changed a setting
    /// of the job.
    void chosen();

private:
    void addPanels();
    PanelPage *frontPanel() const;
    void addOptions();
    QWidget *makeOptionsPage(QWidget *parent);
    QWidget *makeJobPage(QWidget *parent);
    void makeRoom(int titleWidth);
    void saveFocus();
    void restoreFocus();

    const host::CupsServer *m_server;
    host::PrinterSetup *m_setup = nullptr;
    /// The pages of the panels, in the order of the tabs.
    std::vector<PanelPage *> m_panelPages;
    LazyPage *m_optionsPlace = nullptr;
    /// The page that comes to the front with the pages of a printer. The page that the user looks at stays in
    /// front when they are replaced.
    enum class Front { Panel, Options, Other };
    Front m_front = Front::Panel;
    /// The number of the panel that was in front, counted from 0.
    std::size_t m_frontPanel = 0;
    /// The group of options that was shown, if any, and the name of the control that had the focus.
    std::optional<QString> m_group;
    QString m_focused;
    PagePreview *m_pagePreview;
    // Null until they are first shown.
    OptionsPage *m_optionsPage = nullptr;
    JobPage *m_jobPage = nullptr;
    SummaryPage *m_summaryPage = nullptr;
    TicketPage *m_ticketPage = nullptr;
    /// The initial values of the "Job" page.
    host::JobRequest m_job;
    std::function<std::vector<SummarySection>()> m_summary;
    std::function<const host::JobTicket *()> m_ticket;
    /// The conflicts of the last setConflicts().
    std::vector<host::Conflict> m_conflicts;
};

} // namespace window
} // namespace dialog
