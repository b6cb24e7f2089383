// SPDX-License-Identifier: Apache-2.0
#include "DialogPages.h"

#include "PagePreview.h"
#include "PanelPage.h"
#include "SentPage.h"

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
    if (m_server) {
        m_sentPage = new SentPage(this);
        addTab(m_sentPage, tr("&What will be sent"));
    }
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
    PDEPanel *const panel = setup.panel();
    if (!panel)
        return;
    const QSignalBlocker quiet(this);
    m_panelPage = new PanelPage(*panel, this);
    setup.panelHost()->setPanelViewDidResizeHook([this] { m_panelPage->fitView(); });
    QString title = panel->panelName();
    insertTab(0, m_panelPage, title.replace(u'&', QStringLiteral("&&")));
    setCurrentIndex(0);
}

void DialogPages::dropSetup()
{
    if (m_setup && m_setup->panelHost())
        m_setup->panelHost()->setPanelViewDidResizeHook({});
    const QSignalBlocker quiet(this);
    delete m_panelPage;
    m_panelPage = nullptr;
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
}

void DialogPages::announceClosing(QWidget *window)
{
    if (m_panelPage)
        m_panelPage->panel().printWindowWillClose(window);
}

} // namespace dialog
