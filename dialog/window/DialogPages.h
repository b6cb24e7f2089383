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
class SentPage;
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

/// The dialog's pages: the printer's panel and its other options, which come and go with the printer, and
/// those that every printer has.
class DialogPages : public QTabWidget {
    Q_OBJECT

public:
    /// The document is borrowed. Without a server there is no page of what will be sent.
    DialogPages(const host::LabelDocument &document, const host::CupsServer *server, QWidget *parent);
    ~DialogPages() override;

    /// Shows the pages of the printer, which is borrowed until dropSetup().
    void takeSetup(host::PrinterSetup &setup);
    /// Gives back the panel's view and takes off all that belongs to the printer.
    void dropSetup();

    /// Labels as the renderer draws them; borrowed until the next call.
    void setRenderer(const host::LabelRenderer &renderer);
    /// Job name, orientation, hold and priority, as they are shown; without a server they are left as they
    /// are.
    void showJob(const host::JobDraft &draft) { m_job = draft; }
    void writeJobTo(host::JobDraft &draft) const;
    /// Shows the conflicts at the options that they are about, and above the panel those that its options
    /// are part of.
    void setConflicts(const std::vector<host::Conflict> &conflicts);
    /// What the summary and the page of what will be sent show when they are in front.
    void setSummary(std::function<std::vector<SummarySection>()> summary) { m_summary = std::move(summary); }
    /// The ticket is null while nothing can be sent.
    void setTicket(std::function<const host::JobTicket *()> ticket) { m_ticket = std::move(ticket); }
    /// Refreshes the page in front.
    void refresh();
    /// Tells the panel that its page comes to the front, if it does.
    void announceFront();
    /// The dialog is about to close.
    void announceClosing(QWidget *window);

Q_SIGNALS:
    /// The user has chosen a printer option, which is marked already, or has set something for the job.
    void chosen();

private:
    void addPanel(PDEPanel &panel);
    void addOptions();
    QWidget *makeOptionsPage(QWidget *parent);
    QWidget *makeJobPage(QWidget *parent);
    void makeRoom(int titleWidth);
    void rememberUse();
    void restoreUse();

    const host::CupsServer *m_server;
    host::PrinterSetup *m_setup = nullptr;
    PanelPage *m_panelPage = nullptr;
    LazyPage *m_optionsPlace = nullptr;
    /// Which page comes to the front with a printer's pages: whoever looks at one stays there when they are
    /// replaced.
    enum class Front { Panel, Options, Other };
    Front m_front = Front::Panel;
    /// The group of options and the control that were in use.
    QString m_group;
    QString m_focused;
    PagePreview *m_pagePreview;
    // Null until they are shown.
    OptionsPage *m_optionsPage = nullptr;
    JobPage *m_jobPage = nullptr;
    SummaryPage *m_summaryPage = nullptr;
    SentPage *m_sentPage = nullptr;
    /// What the page of the job begins with.
    host::JobDraft m_job;
    std::function<std::vector<SummarySection>()> m_summary;
    std::function<const host::JobTicket *()> m_ticket;
    /// As setConflicts() received them last.
    std::vector<host::Conflict> m_conflicts;
};

} // namespace window
} // namespace dialog
