// SPDX-License-Identifier: Apache-2.0
#include "DialogPages.h"

#include "PagePreview.h"
#include "PanelPage.h"

#include <dialog/job/JobPage.h>
#include <dialog/job/TicketPage.h>
#include <dialog/options/OptionsPage.h>
#include <dialog/widgets/LazyPage.h>

#include <QApplication>
#include <QStyle>
#include <QStyleOptionTabWidgetFrame>
#include <QTabBar>

#include <algorithm>

namespace dialog {
inline namespace window {

namespace {

/// Returns the object name of the widget with the focus, or of the nearest named widget that contains it;
/// empty if no widget within has the focus.
QString nameOfFocus(const QWidget *within)
{
    const QWidget *each = QApplication::focusWidget();
    if (!within || !within->isAncestorOf(each))
        return {};
    // Qt gives names to the parts of its own widgets.
    while (each != within && (each->objectName().isEmpty() || each->objectName().startsWith(u"qt_")))
        each = each->parentWidget();
    return each == within ? QString() : each->objectName();
}

void focusByName(const QWidget *within, const QString &name)
{
    auto *const named = name.isEmpty() ? nullptr : within->findChild<QWidget *>(name);
    if (!named)
        return;
    QList<QWidget *> candidates = named->findChildren<QWidget *>();
    candidates.prepend(named);
    for (QWidget *const each : candidates) {
        if (each->focusPolicy() & Qt::TabFocus && each->isVisibleTo(within) && each->isEnabled()) {
            each->setFocus();
            return;
        }
    }
}

} // namespace

DialogPages::DialogPages(const host::LabelDocument &document, const host::CupsServer *server, QWidget *parent)
    : QTabWidget(parent)
    , m_server(server)
    , m_pagePreview(new PagePreview(document, this))
{
    setAccessibleName(tr("Options, preview and summary"));
    if (m_server)
        addTab(new LazyPage([this](QWidget *page) { return makeJobPage(page); }, this), tr("&Job"));
    addTab(m_pagePreview, tr("Page pre&view"));
    addTab(new LazyPage([this](QWidget *page) { return m_summaryPage = new SummaryPage(page); }, this),
           tr("&Summary"));
    // If the user opens another page before the printer is known, that page stays in front.
    connect(this, &QTabWidget::currentChanged, this, [this] {
        if (!m_setup)
            m_front = Front::Other;
    });
    if (!m_server)
        return;
    addTab(new LazyPage([this](QWidget *page) { return m_ticketPage = new TicketPage(page); }, this),
           tr("&What will be sent"));
    // The pages of a printer are usually added later. Reserve room for them now, so that the window does not
    // grow while the user operates it.
    constexpr int lines = 23;
    makeRoom(tabBar()->sizeHint().width() * 3 / 2);
    setMinimumHeight(lines * fontMetrics().lineSpacing());
}

QWidget *DialogPages::makeJobPage(QWidget *parent)
{
    m_jobPage = new JobPage(parent);
    m_jobPage->setSettings(m_job.settings);
    m_jobPage->setTitle(m_job.title);
    connect(m_jobPage, &JobPage::changed, this, &DialogPages::chosen);
    return m_jobPage;
}

DialogPages::~DialogPages()
{
    // The panel's view must be released before the panel is destroyed. Removing its page would emit
    // currentChanged().
    const QSignalBlocker quiet(this);
    detachSetup();
}

void DialogPages::attachSetup(host::PrinterSetup &setup)
{
    const bool isInUse = currentWidget() && currentWidget()->isAncestorOf(QApplication::focusWidget());
    if (!m_setup && isInUse)
        m_front = Front::Other;
    m_setup = &setup;
    const QSignalBlocker quiet(this);
    if (setup.hasPpd())
        addOptions();
    addPanels();
    makeRoom(tabBar()->sizeHint().width());
    restoreFocus();
}

void DialogPages::makeRoom(int titleWidth)
{
    // All tab titles are visible, up to a limit for languages with long titles.
    const int widest = 120 * fontMetrics().averageCharWidth();
    const int titles = qMin(titleWidth + tabBar()->fontMetrics().height(), widest);
    // The whole panels are visible, too; they are laid out for their own widths.
    QStyleOptionTabWidgetFrame frame;
    initStyleOption(&frame);
    QSize panel(0, 0);
    for (const PanelPage *const page : m_panelPages)
        panel = panel.expandedTo(page->minimumSizeHint());
    const int around = style()->sizeFromContents(QStyle::CT_TabWidget, &frame, panel, this).width();
    setMinimumWidth(qMax(titles, around));
}

void DialogPages::addPanels()
{
    for (host::HostedPanel *const panel : m_setup->panels()) {
        auto *const page = new PanelPage(*panel, this);
        insertTab(static_cast<int>(m_panelPages.size()), page,
                  panel->title().replace(u'&', QStringLiteral("&&")));
        m_panelPages.push_back(page);
    }
    for (host::PanelHost *const panelHost : m_setup->panelHosts()) {
        panelHost->setPanelViewDidResizeHook([this] {
            for (PanelPage *const page : m_panelPages)
                page->fitView();
            makeRoom(tabBar()->sizeHint().width());
        });
    }
}

PanelPage *DialogPages::frontPanel() const
{
    const auto found = std::ranges::find(m_panelPages, currentWidget());
    return found == m_panelPages.end() ? nullptr : *found;
}

void DialogPages::addOptions()
{
    if (!OptionsPage::hasOptions(m_setup->ppd(), m_setup->claimedKeywords()))
        return;
    m_optionsPlace = new LazyPage([this](QWidget *page) { return makeOptionsPage(page); }, this);
    insertTab(0, m_optionsPlace, tr("&Options"));
}

QWidget *DialogPages::makeOptionsPage(QWidget *parent)
{
    m_optionsPage = new OptionsPage(m_setup->ppd(), m_setup->claimedKeywords(), parent);
    setConflicts(std::vector(m_conflicts));
    connect(m_optionsPage, &OptionsPage::chosen, this,
            [this](const QByteArray &keyword, const QByteArray &value) {
                m_setup->choose(keyword, value);
                Q_EMIT chosen();
            });
    return m_optionsPage;
}

void DialogPages::showOrientation(host::Orientation orientation)
{
    m_job.settings.orientation = orientation;
    if (!m_jobPage)
        return;
    host::JobSettings settings = m_jobPage->settings();
    settings.orientation = orientation;
    m_jobPage->setSettings(settings);
}

void DialogPages::writeJobTo(host::JobRequest &request) const
{
    request.settings = m_jobPage ? m_jobPage->settings() : m_job.settings;
    request.title = m_jobPage ? m_jobPage->title() : m_job.title;
}

void DialogPages::setConflicts(const std::vector<host::Conflict> &conflicts)
{
    m_conflicts = conflicts;
    for (PanelPage *const page : m_panelPages)
        page->setConflicts(host::sentencesAbout(page->panel().keywords(), conflicts));
    if (!m_optionsPage)
        return;
    m_optionsPage->refresh();
    m_optionsPage->setConflicts(conflicts);
}

void DialogPages::detachSetup()
{
    for (host::PanelHost *const panelHost :
         m_setup ? m_setup->panelHosts() : std::vector<host::PanelHost *>())
        panelHost->setPanelViewDidResizeHook([] {});
    const QSignalBlocker quiet(this);
    if (m_setup)
        saveFocus();
    // Delete the options first: if they came to the front in place of the panel, they would be created.
    delete m_optionsPlace;
    m_optionsPlace = nullptr;
    m_optionsPage = nullptr;
    qDeleteAll(std::exchange(m_panelPages, {}));
    m_setup = nullptr;
}

void DialogPages::saveFocus()
{
    m_group = m_optionsPage ? m_optionsPage->shownGroup() : std::nullopt;
    m_focused = nameOfFocus(currentWidget());
    if (m_optionsPlace && currentWidget() == m_optionsPlace)
        m_front = Front::Options;
    else
        m_front = m_panelPages.empty() || frontPanel() ? Front::Panel : Front::Other;
    const auto front = std::ranges::find(m_panelPages, currentWidget());
    if (front != m_panelPages.end())
        m_frontPanel = static_cast<std::size_t>(front - m_panelPages.begin());
}

void DialogPages::restoreFocus()
{
    if (m_front == Front::Panel && !m_panelPages.empty())
        setCurrentWidget(m_panelPages[m_frontPanel < m_panelPages.size() ? m_frontPanel : 0]);
    if (m_front == Front::Options && m_optionsPlace) {
        setCurrentWidget(m_optionsPlace);
        if (m_optionsPage && m_group)
            m_optionsPage->showGroup(*m_group);
    }
    if (m_front != Front::Other)
        focusByName(currentWidget(), m_focused);
}

void DialogPages::setRenderer(const host::LabelRenderer &renderer)
{
    m_pagePreview->setRenderer(renderer);
}

void DialogPages::refresh()
{
    if (m_summary && m_summaryPage && m_summaryPage->isVisible())
        m_summaryPage->setSections(m_summary());
    if (!m_ticketPage || !m_ticket || !m_ticketPage->isVisible())
        return;
    const host::JobTicket *const ticket = m_ticket();
    // While another printer is being loaded, the contents are out of date.
    m_ticketPage->setEnabled(ticket != nullptr);
    if (ticket)
        m_ticketPage->setTicket(*m_server, *ticket);
}

void DialogPages::notifyFront()
{
    if (const PanelPage *const page = frontPanel())
        m_setup->announce(page->panel());
}

void DialogPages::notifyClosing(QWidget *window)
{
    for (const PanelPage *const page : m_panelPages)
        page->panel().printWindowWillClose(window);
}

} // namespace window
} // namespace dialog
