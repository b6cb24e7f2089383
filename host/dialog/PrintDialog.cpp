// SPDX-License-Identifier: Apache-2.0
#include "PrintDialog.h"

#include "Banner.h"
#include "PageOptions.h"
#include "PagePreview.h"
#include "PanelPage.h"
#include "PaperChooser.h"
#include "StripPreview.h"

#include <host/CutPlanWords.h>

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QShowEvent>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace dialog {

PrintDialog::PrintDialog(PrintRequest request, Sender sender, QWidget *parent)
    : QDialog(parent)
    , m_request(std::move(request))
    , m_sender(std::move(sender))
{
    setWindowTitle(tr("Print %1").arg(QFileInfo(m_request.document->path()).fileName()));
    build();
    applyPaper();
    buildPanel();
    refresh();
}

PrintDialog::~PrintDialog()
{
    // The panel's view must leave before its panel goes, and taking its page away changes the front page.
    disconnect(m_tabs, nullptr, this, nullptr);
    if (m_request.panels) {
        m_request.panels->host().setDidChangeHook({});
        m_request.panels->host().setPanelViewDidResizeHook({});
    }
    delete m_panelPage;
}

void PrintDialog::build()
{
    m_panelBanner = new Banner(this);
    m_problemBanner = new Banner(this);
    m_tabs = new QTabWidget(this);
    m_tabs->setAccessibleName(tr("Options, preview and summary"));
    m_strip = new StripPreview(this);
    m_figures = new QLabel(this);
    m_figures->setWordWrap(true);
    m_figures->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    auto *const buttons = new QDialogButtonBox(this);
    m_printButton = buttons->addButton(tr("&Print"), QDialogButtonBox::AcceptRole);
    m_printButton->setDefault(true);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);

    auto *const upper = new QHBoxLayout;
    upper->addWidget(buildChoices());
    upper->addWidget(m_tabs, 1);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_panelBanner);
    layout->addLayout(upper, 1);
    layout->addWidget(m_strip);
    layout->addWidget(m_figures);
    layout->addWidget(m_problemBanner);
    layout->addWidget(buttons);
    buildPages();
    m_panelBanner->setMessage(m_request.panelProblem);

    connect(m_papers, &PaperChooser::paperChosen, this, &PrintDialog::changePaper);
    connect(m_pageOptions, &PageOptions::changed, this, &PrintDialog::refreshLater);
    connect(m_tabs, &QTabWidget::currentChanged, this, &PrintDialog::pageShown);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QWidget *PrintDialog::buildChoices()
{
    auto *const choices = new QWidget(this);
    auto *const printer = new QLabel(m_request.state->ppd().printerName(), choices);
    QFont bold = printer->font();
    bold.setBold(true);
    printer->setFont(bold);
    printer->setWordWrap(true);
    printer->setTextFormat(Qt::PlainText);
    printer->setAccessibleName(tr("Printer: %1").arg(printer->text()));
    m_papers = new PaperChooser(m_request.state->ppd(), m_request.paper, choices);
    m_pageOptions = new PageOptions(m_request.document->pageCount(), choices);
    auto *const layout = new QVBoxLayout(choices);
    layout->setContentsMargins({});
    layout->addWidget(printer);
    layout->addWidget(m_papers, 1);
    layout->addWidget(m_pageOptions);
    return choices;
}

void PrintDialog::buildPages()
{
    m_pagePreview = new PagePreview(*m_request.document, m_tabs);
    m_summaryPage = new SummaryPage(m_tabs);
    m_tabs->addTab(m_pagePreview, tr("Page pre&view"));
    m_tabs->addTab(m_summaryPage, tr("&Summary"));
}

void PrintDialog::buildPanel()
{
    PDEPanel *const panel = m_request.panels ? m_request.panels->firstPanel() : nullptr;
    if (!panel)
        return;
    m_panelPage = new PanelPage(*panel, m_tabs);
    m_request.panels->host().setDidChangeHook([this] { refreshLater(); });
    m_request.panels->host().setPanelViewDidResizeHook([this] { m_panelPage->fitView(); });
    QString error;
    if (!panel->restoreValuesAndReturnError(&error))
        showProblem(error);
    const QSignalBlocker quiet(m_tabs);
    QString title = panel->panelName();
    m_tabs->insertTab(0, m_panelPage, title.replace(u'&', QStringLiteral("&&")));
    m_tabs->setCurrentIndex(0);
}

void PrintDialog::changePaper()
{
    m_request.paper = m_papers->chosen();
    applyPaper();
    m_request.state->postPaperDidChange();
    refresh();
}

void PrintDialog::applyPaper()
{
    const host::PpdPaper &paper = m_request.paper;
    const QString name = QString::fromUtf8(paper.name);
    platform::Paper chosen;
    chosen.name = name;
    chosen.height = paper.size.height();
    m_request.state->setPaper(chosen);
    m_request.state->changeOption(QStringLiteral("PageSize"), name, nullptr);
    // What shows the old labels lets go of them first.
    m_strip->clear();
    m_job.reset();
    auto renderer = std::make_unique<host::LabelRenderer>(*m_request.document, paper.size);
    m_pagePreview->setRenderer(*renderer);
    m_renderer = std::move(renderer);
}

void PrintDialog::refreshLater()
{
    if (m_refreshPending)
        return;
    m_refreshPending = true;
    QTimer::singleShot(0, this, &PrintDialog::refresh);
}

void PrintDialog::refresh()
{
    m_refreshPending = false;
    m_strip->clear();
    auto choices = m_pageOptions->choices();
    m_printButton->setEnabled(static_cast<bool>(choices));
    if (!choices) {
        m_job.reset();
        setFigures(choices.error().message);
        return;
    }
    m_job = std::make_unique<host::PrintJob>(*m_request.state, *m_request.document, *m_renderer,
                                             m_request.paper, std::move(choices).value());
    m_strip->setPlan(m_job->plan(), *m_renderer);
    setFigures(host::cutPlanFigures(m_job->plan()) + u'\n' +
               host::cutPlanSentences(m_job->plan()).join(u' '));
    if (m_tabs->currentWidget() == m_summaryPage)
        m_summaryPage->setSections(summary());
}

void PrintDialog::setFigures(const QString &text)
{
    m_figures->setText(text);
    // A window does not grow by itself when a text takes another line; a line in reserve keeps it from
    // growing at every click.
    const int reserve = 3 * m_figures->fontMetrics().lineSpacing();
    const int needed = isVisible() ? m_figures->heightForWidth(m_figures->width()) : 0;
    m_figures->setMinimumHeight(qMax(reserve, needed));
}

void PrintDialog::pageShown()
{
    if (m_panelPage && m_tabs->currentWidget() == m_panelPage)
        m_panelPage->panel().willShow();
    refresh();
    if (m_tabs->currentWidget() == m_summaryPage)
        m_summaryPage->setSections(summary());
}

void PrintDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        pageShown();
}

bool PrintDialog::askPanels()
{
    if (!m_panelPage)
        return true;
    PDEPanel &panel = m_panelPage->panel();
    QString error;
    if (!panel.saveValuesAndReturnError(&error)) {
        showProblem(tr("\"%1\" cannot save its settings: %2").arg(panel.panelName(), error));
        return false;
    }
    if (!panel.shouldPrint()) {
        showProblem(tr("\"%1\" does not let the job be printed with these settings.").arg(panel.panelName()));
        return false;
    }
    return true;
}

bool PrintDialog::print()
{
    showProblem(QString());
    if (!askPanels())
        return false;
    // Saving may have changed what is recorded.
    refresh();
    if (!m_job) {
        showProblem(m_pageOptions->choices().error().message);
        return false;
    }
    if (const std::optional<QString> problem = m_sender(*m_job)) {
        showProblem(*problem);
        return false;
    }
    return true;
}

void PrintDialog::accept()
{
    if (print())
        QDialog::accept();
}

void PrintDialog::done(int result)
{
    if (m_panelPage)
        m_panelPage->panel().printWindowWillClose(this);
    QDialog::done(result);
}

void PrintDialog::showProblem(const QString &problem)
{
    m_problem = problem;
    m_problemBanner->setMessage(problem);
}

std::vector<SummarySection> PrintDialog::summary() const
{
    std::vector<SummarySection> sections;
    SummarySection own{tr("Printing"), {}};
    own.lines.emplace_back(tr("Document"), QFileInfo(m_request.document->path()).fileName());
    own.lines.emplace_back(tr("Printer"), m_request.state->ppd().printerName());
    own.lines.emplace_back(tr("Paper"), m_request.paper.text);
    own.lines.emplace_back(tr("Pages"), m_pageOptions->pagesInWords());
    if (m_job)
        own.lines.emplace_back(tr("Copies"), QLocale().toString(m_job->choices().copies));
    sections.push_back(std::move(own));
    if (m_panelPage)
        sections.push_back(panelSummary());
    if (m_job) {
        SummarySection strip{tr("Label strip"), {}};
        const host::CutPlan &plan = m_job->plan();
        strip.lines.emplace_back(tr("Labels"),
                                 QLocale().toString(static_cast<qulonglong>(plan.labels().size())));
        strip.lines.emplace_back(tr("Pieces"),
                                 QLocale().toString(static_cast<qulonglong>(plan.pieces().size())));
        strip.lines.emplace_back(tr("Tape"), host::lengthInWords(plan.tapeUsed()));
        strip.lines.emplace_back(tr("Cuts"), host::cutPlanSentences(plan).join(u' '));
        sections.push_back(std::move(strip));
    }
    return sections;
}

SummarySection PrintDialog::panelSummary() const
{
    SummarySection section{m_panelPage->panel().panelName(), {}};
    const QVariantMap info = m_panelPage->panel().summaryInfo().value_or(QVariantMap());
    for (const QString &title : info.value(PDESummaryDisplayOrderKey).toStringList()) {
        // A line that the PPD gives no name says nothing to anybody.
        if (!title.isEmpty())
            section.lines.emplace_back(title, info.value(title).toString());
    }
    return section;
}

} // namespace dialog
