// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SummaryPage.h"

#include <host/PanelSession.h>
#include <host/PrintJob.h>

#include <QDialog>

class QLabel;
class QPushButton;
class QTabWidget;

namespace dialog {

class Banner;
class PageOptions;
class PagePreview;
class PanelPage;
class PaperChooser;
class StripPreview;

/// What a print dialog is opened for.
struct PrintRequest {
    std::shared_ptr<host::DialogState> state;
    std::unique_ptr<host::LabelDocument> document;
    host::PpdPaper paper;
    /// The bundle with its panels, of which the first is shown and its view is loaded; null when there is
    /// none, and then why.
    std::unique_ptr<host::PanelSession> panels;
    QString panelProblem;
    /// The keywords that the panels take care of.
    QStringList claimedKeywords;
};

/// The print dialog: paper and pages, the printer's own panel, the strip as it will come out, and a
/// summary. Everything is live: what the panel or the user changes is seen on the strip at once.
class PrintDialog : public QDialog {
    Q_OBJECT

public:
    /// Sends a job; answers what went wrong, or nothing. Called when the user prints.
    using Sender = std::function<std::optional<QString>(const host::PrintJob &)>;

    PrintDialog(PrintRequest request, Sender sender, QWidget *parent = nullptr);
    ~PrintDialog() override;

    /// Prints as the Print button does: panels save and are asked, then the job is sent. Answers whether the
    /// dialog is done; otherwise problem() says why not, and everything stays as set.
    bool print();
    /// Why the last print() failed; empty when it did not.
    const QString &problem() const { return m_problem; }
    /// The summary of all settings as they are now.
    std::vector<SummarySection> summary() const;

    void accept() override;
    void done(int result) override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void build();
    QWidget *buildChoices();
    void buildPages();
    void buildPanel();
    void changePaper();
    void applyPaper();
    /// Everything that shows the job is refreshed once, when control returns to the event loop.
    void refreshLater();
    void refresh();
    void setFigures(const QString &text);
    void pageShown();
    bool askPanels();
    void showProblem(const QString &problem);
    SummarySection panelSummary() const;

    PrintRequest m_request;
    Sender m_sender;
    QString m_problem;
    bool m_refreshPending = false;
    std::unique_ptr<host::LabelRenderer> m_renderer;
    std::unique_ptr<host::PrintJob> m_job;

    Banner *m_panelBanner = nullptr;
    Banner *m_problemBanner = nullptr;
    PaperChooser *m_papers = nullptr;
    PageOptions *m_pageOptions = nullptr;
    QTabWidget *m_tabs = nullptr;
    PanelPage *m_panelPage = nullptr;
    PagePreview *m_pagePreview = nullptr;
    SummaryPage *m_summaryPage = nullptr;
    StripPreview *m_strip = nullptr;
    QLabel *m_figures = nullptr;
    QPushButton *m_printButton = nullptr;
};

} // namespace dialog
