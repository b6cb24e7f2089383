// SPDX-License-Identifier: Apache-2.0
#include "PanelPage.h"

#include <dialog/options/ConflictNote.h>
#include <platform/NotificationCenter.h>

#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

namespace dialog {
inline namespace window {

namespace {

/// The notification for which a panel waits if it needs more room than the dialog had. Its view is the
/// sender.
const QString viewIsLaidOut = QStringLiteral("NSViewDidUpdateTrackingAreasNotification");

} // namespace

PanelPage::PanelPage(host::HostedPanel &panel, QWidget *parent)
    : QWidget(parent)
    , m_panel(panel)
    , m_view(panel.view())
{
    if (!m_view)
        return;
    m_view->hide();
    m_view->setParent(this);
    // As when it is shown: a view whose size the panel has not set gets the size of its layout.
    if (!m_view->testAttribute(Qt::WA_Resized))
        m_view->adjustSize();
}

void PanelPage::addContents()
{
    m_frame = new QWidget;
    m_scrolled = new QScrollArea(this);
    m_note = new ConflictNote(this);
    if (m_view) {
        m_view->setParent(m_frame);
        m_view->move(0, 0);
        m_view->show();
    }
    m_scrolled->setFrameShape(QFrame::NoFrame);
    m_scrolled->setWidget(m_frame);
    m_scrolled->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    // The note has the same background as the panel.
    setAutoFillBackground(true);
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin, nullptr, this);
    m_note->setContentsMargins(margin, margin, margin, 0);
    m_note->setSentences(m_conflicts);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_note);
    layout->addWidget(m_scrolled, 1);
    addHelp(layout);
    fitView();
    // The layout would show them only after the page has been painted empty.
    for (QObject *const each : children()) {
        if (auto *const widget = qobject_cast<QWidget *>(each); widget && widget != m_note)
            widget->show();
    }
}

void PanelPage::addHelp(QLayout *layout)
{
    const std::optional<QString> text = m_panel.helpText();
    if (!text)
        return;
    auto *const button = new QPushButton(tr("Help"), this);
    button->setAutoDefault(false);
    layout->addWidget(button);
    layout->setAlignment(button, Qt::AlignLeft);
    connect(button, &QPushButton::clicked, this, [this, text] {
        // Not modal, so that the user can follow the help in the dialog.
        auto *const help =
            new QMessageBox(QMessageBox::Information, m_panel.title(), *text, QMessageBox::Close, window());
        help->setTextFormat(Qt::PlainText);
        help->setAttribute(Qt::WA_DeleteOnClose);
        help->setModal(false);
        help->show();
    });
}

PanelPage::~PanelPage()
{
    if (!m_view)
        return;
    m_view->hide();
    m_view->setParent(nullptr);
}

QSize PanelPage::viewSize() const
{
    // A view that is larger than the screen is scrolled.
    return m_view ? m_view->size().boundedTo(screen()->availableSize() * 4 / 5) : QSize();
}

QSize PanelPage::minimumSizeHint() const
{
    return m_frame ? QWidget::minimumSizeHint() : viewSize();
}

void PanelPage::fitView()
{
    if (!m_view || !m_frame) {
        updateGeometry();
        return;
    }
    // The panel lays out its view itself; the page only provides the room that the view needs.
    m_frame->setFixedSize(m_view->size());
    m_scrolled->setMinimumSize(viewSize());
}

void PanelPage::postLaidOut() const
{
    if (m_view && m_frame)
        platform::NotificationCenter::defaultCenter().post(viewIsLaidOut, m_view);
}

void PanelPage::showEvent(QShowEvent *event)
{
    if (!m_frame)
        addContents();
    QWidget::showEvent(event);
    postLaidOut();
}

void PanelPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    postLaidOut();
}

void PanelPage::setConflicts(const QStringList &sentences)
{
    m_conflicts = sentences;
    if (m_note)
        m_note->setSentences(m_conflicts);
}

} // namespace window
} // namespace dialog
