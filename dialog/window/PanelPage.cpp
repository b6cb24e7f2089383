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
    , m_frame(new QWidget)
    , m_scrolled(new QScrollArea(this))
    , m_note(new ConflictNote(this))
{
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
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_note);
    layout->addWidget(m_scrolled, 1);
    addHelp(layout);
    fitView();
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

void PanelPage::fitView()
{
    if (!m_view)
        return;
    // The panel lays out its view itself; the page only provides the room that the view needs.
    m_frame->setFixedSize(m_view->size());
    // A view that is larger than the screen is scrolled.
    const int frame = 2 * m_scrolled->frameWidth();
    const QSize room = screen()->availableSize() * 4 / 5;
    m_scrolled->setMinimumSize((m_view->size() + QSize(frame, frame)).boundedTo(room));
}

void PanelPage::postLaidOut() const
{
    if (m_view)
        platform::NotificationCenter::defaultCenter().post(viewIsLaidOut, m_view);
}

void PanelPage::showEvent(QShowEvent *event)
{
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
    m_note->setSentences(sentences);
}

} // namespace window
} // namespace dialog
