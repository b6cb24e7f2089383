// SPDX-License-Identifier: Apache-2.0
#include "DestinationChooser.h"

#include <dialog/widgets/FittedLabel.h>
#include <dialog/widgets/PlainToolTip.h>
#include <host/cups/queues/QueueText.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

namespace dialog {
inline namespace job {

namespace {

QString listText(const host::Destination &destination)
{
    // Several queues may have the same description, and an instance has that of its queue.
    if (destination.description.isEmpty() || destination.description == destination.name())
        return destination.name();
    return QStringLiteral("%1 – %2").arg(destination.name(), destination.description);
}

QString describe(const host::Destination &destination)
{
    QStringList lines;
    if (destination.isClass)
        lines.append(DestinationChooser::tr("Class of printers: %1")
                         .arg(destination.members.join(QStringLiteral(", "))));
    if (!destination.makeAndModel.isEmpty())
        lines.append(destination.makeAndModel);
    if (!destination.location.isEmpty())
        lines.append(destination.location);
    return lines.join(u'\n');
}

QStyle::StandardPixmap icon(host::StateSeverity severity)
{
    switch (severity) {
    case host::StateSeverity::Good:
        return QStyle::SP_MessageBoxInformation;
    case host::StateSeverity::Warning:
        return QStyle::SP_MessageBoxWarning;
    case host::StateSeverity::Error:
        break;
    }
    return QStyle::SP_MessageBoxCritical;
}

} // namespace

DestinationChooser::DestinationChooser(host::QueueSession &session, QWidget *parent)
    : QWidget(parent)
    , m_session(session)
    , m_list(new QComboBox(this))
    , m_icon(new QLabel(this))
    // The minimum height fits the message of a paused queue, so that the papers below do not move when the
    // state changes.
    , m_state(new FittedLabel(3, 6, this))
{
    auto *const label = new QLabel(tr("P&rinter"), this);
    label->setBuddy(m_list);
    m_list->setAccessibleName(tr("Printer"));
    // As wide as the list of papers below, regardless of the length of the printers' descriptions.
    m_list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_list->setMinimumContentsLength(20);
    m_icon->setAlignment(Qt::AlignTop);

    auto *const state = new QHBoxLayout;
    state->addWidget(m_icon);
    state->addWidget(m_state, 1);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(m_list);
    layout->addLayout(state);
    connect(&session, &host::QueueSession::destinationsChanged, this, &DestinationChooser::showDestinations);
    connect(&session, &host::QueueSession::chosenChanged, this, &DestinationChooser::showChosen);
    connect(&session, &host::QueueSession::stateChanged, this, &DestinationChooser::showState);
    connect(&session, &host::QueueSession::settled, this, &DestinationChooser::showState);
    connect(m_list, &QComboBox::activated, this,
            [this](int index) { m_session.choose(m_list->itemData(index).toString()); });
    showDestinations();
}

void DestinationChooser::showDestinations()
{
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    for (const host::Destination &destination : m_session.destinations().destinations()) {
        m_list->addItem(listText(destination), destination.name());
        m_list->setItemData(m_list->count() - 1, plainToolTip(describe(destination)), Qt::ToolTipRole);
    }
    showChosen();
}

void DestinationChooser::showChosen()
{
    const std::optional<QString> name = m_session.chosenName();
    int index = name ? m_list->findData(*name) : -1;
    if (index < 0 && name) {
        // A requested destination that has not been found yet, or an instance that does not exist.
        m_list->insertItem(0, *name, *name);
        index = 0;
    }
    m_list->setCurrentIndex(index);
    // A description may be wider than the list.
    m_list->setToolTip(plainToolTip(m_list->currentText()));
    showState();
}

QString DestinationChooser::stateText() const
{
    const bool isCached = m_session.destinations().isStale();
    const std::optional<host::CupsError> &error = m_session.listError();
    const bool needsPassword = error && error->kind == host::CupsErrorKind::NotAuthorized;
    const bool isUntrusted = error && error->kind == host::CupsErrorKind::Untrusted;
    if (!m_session.chosen())
        return !m_session.isSettled() ? tr("Waiting for the print server\u2026")
               : needsPassword        ? tr("The print server requires a password.")
               : isUntrusted          ? tr("The print server is not trusted.")
               : isCached             ? tr("The print server does not respond.")
                                      : tr("There is no such printer.");
    const QString sentences = host::queueSentences(*m_session.chosen()).join(u' ');
    if (isCached && !m_session.isSettled())
        return tr("Last known state: %1").arg(sentences);
    if (isCached && needsPassword)
        return tr("The print server requires a password. Last known state: %1").arg(sentences);
    if (isCached && isUntrusted)
        return tr("The print server is not trusted. Last known state: %1").arg(sentences);
    return isCached ? tr("The print server does not respond. Last known state: %1").arg(sentences)
                    : sentences;
}

void DestinationChooser::enterEvent(QEnterEvent *event)
{
    QWidget::enterEvent(event);
    // The server's message can be selected and copied once the mouse pointer has entered: the layout of a
    // selectable text takes many times as long.
    m_state->setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void DestinationChooser::showState()
{
    const QString text = stateText();
    m_state->setMessage(text);
    m_state->setToolTip(plainToolTip(text));
    m_list->setAccessibleDescription(text);
    const bool isKnown = m_session.chosen() && !m_session.destinations().isStale();
    const host::StateSeverity severity =
        isKnown ? host::queueSeverity(*m_session.chosen()) : host::StateSeverity::Warning;
    // A printer without warnings or errors has no icon.
    m_icon->setVisible(isKnown && severity != host::StateSeverity::Good);
    if (m_icon->isHidden())
        return;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_icon->setPixmap(style()->standardIcon(icon(severity)).pixmap(size));
}

} // namespace job
} // namespace dialog
