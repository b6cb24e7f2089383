// SPDX-License-Identifier: Apache-2.0
#include "DialogPages.h"

#include "JobPage.h"
#include "OptionsPage.h"
#include "PagePreview.h"
#include "PanelPage.h"
#include "SentPage.h"

#include <QTabBar>

namespace dialog {

DialogPages::DialogPages(const host::LabelDocument &document, const host::CupsServer *server, QWidget *parent)
    : QTabWidget(parent)
    , m_server(server)
    , m_pagePreview(new PagePreview(document, this))
    , m_summaryPage(new SummaryPage(this))
{
    setAccessibleName(tr("Options, preview and summary"));
    addTab(m_pagePreview, tr("Page pre&view"));
    addTab(m_summaryPage, tr("&Summary"));
    if (!m_server)
        return;
    m_jobPage = new JobPage(this);
    m_sentPage = new SentPage(this);
    insertTab(0, m_jobPage, tr("&Job"));
    addTab(m_sentPage, tr("&What will be sent"));
    // A printer's pages mostly come later; the window has their room from the beginning, so that it does not
    // jump under the mouse.
    constexpr int lines = 23;
    makeRoom(tabBar()->sizeHint().width() * 3 / 2);
    setMinimumHeight(lines * fontMetrics().lineSpacing());
    connect(m_jobPage, &JobPage::changed, this, &DialogPages::chosen);
}

DialogPages::~DialogPages()
{
    // The panel's view must leave before its panel goes, and taking its page away changes the front page.
    disconnect();
    dropSetup();
}

void DialogPages::takeSetup(host::PrinterSetup &setup)
{
    m_setup = &setup;
    const QSignalBlocker quiet(this);
    if (setup.hasPpd())
        addOptions();
    if (PDEPanel *const panel = setup.panel())
        addPanel(*panel);
    makeRoom(tabBar()->sizeHint().width());
}

void DialogPages::makeRoom(int titleWidth)
{
    // All titles are in sight, as long as no language makes novels of them.
    const int widest = 120 * fontMetrics().averageCharWidth();
    setMinimumWidth(qMin(titleWidth + tabBar()->fontMetrics().height(), widest));
}

void DialogPages::addPanel(PDEPanel &panel)
{
    m_panelPage = new PanelPage(panel, this);
    m_setup->panelHost()->setPanelViewDidResizeHook([this] { m_panelPage->fitView(); });
    QString title = panel.panelName();
    insertTab(0, m_panelPage, title.replace(u'&', QStringLiteral("&&")));
    setCurrentIndex(0);
}

void DialogPages::addOptions()
{
    m_optionsPage = new OptionsPage(m_setup->ppd(), m_setup->claimedKeywords(), this);
    if (m_optionsPage->isEmpty()) {
        delete m_optionsPage;
        m_optionsPage = nullptr;
        return;
    }
    insertTab(0, m_optionsPage, tr("&Options"));
    m_optionsPage->refresh();
    connect(m_optionsPage, &OptionsPage::chosen, this,
            [this](const QByteArray &keyword, const QByteArray &value) {
                m_setup->choose(keyword, value);
                Q_EMIT chosen();
            });
}

void DialogPages::showJob(const host::JobDraft &draft)
{
    if (!m_jobPage)
        return;
    m_jobPage->setSettings(draft.settings);
    m_jobPage->setTitle(draft.title);
}

void DialogPages::writeJobTo(host::JobDraft &draft) const
{
    if (!m_jobPage)
        return;
    draft.settings = m_jobPage->settings();
    draft.title = m_jobPage->title();
}

void DialogPages::setConflicts(const std::vector<host::Conflict> &conflicts)
{
    if (!m_optionsPage)
        return;
    m_optionsPage->refresh();
    m_optionsPage->setConflicts(conflicts);
}

void DialogPages::dropSetup()
{
    if (m_setup && m_setup->panelHost())
        m_setup->panelHost()->setPanelViewDidResizeHook({});
    const QSignalBlocker quiet(this);
    delete m_panelPage;
    m_panelPage = nullptr;
    delete m_optionsPage;
    m_optionsPage = nullptr;
    m_setup = nullptr;
}

void DialogPages::setRenderer(const host::LabelRenderer &renderer)
{
    m_pagePreview->setRenderer(renderer);
}

void DialogPages::refresh()
{
    if (m_summary && currentWidget() == m_summaryPage)
        m_summaryPage->setSections(m_summary());
    if (!m_sentPage || !m_ticket || currentWidget() != m_sentPage)
        return;
    if (const std::optional<host::JobTicket> ticket = m_ticket())
        m_sentPage->setTicket(*m_server, *ticket);
}

void DialogPages::announceFront()
{
    if (m_panelPage && currentWidget() == m_panelPage)
        m_setup->announcePanel();
    // A panel hands its settings over before the job is printed; whoever looks at what will be sent must see
    // them already. Whether the panel lets the job pass is told when it is printed.
    if (m_setup && m_sentPage && currentWidget() == m_sentPage)
        m_setup->savePanel();
}

void DialogPages::announceClosing(QWidget *window)
{
    if (m_panelPage)
        m_panelPage->panel().printWindowWillClose(window);
}

} // namespace dialog
