// SPDX-License-Identifier: Apache-2.0
#include "TicketPage.h"

#include <dialog/widgets/PlainToolTip.h>
#include <host/cups/jobs/LpCommand.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace dialog {
inline namespace job {

TicketPage::TicketPage(QWidget *parent)
    : QWidget(parent)
    , m_options(new QTreeWidget(this))
    , m_line(new QLineEdit(this))
    , m_differences(new QLabel(this))
{
    m_options->setHeaderLabels({tr("Option"), tr("Value"), tr("Origin"), tr("Sent")});
    m_options->setRootIsDecorated(false);
    m_options->setUniformRowHeights(true);
    m_options->setAccessibleName(tr("Options of the job"));
    m_options->header()->setStretchLastSection(false);
    m_options->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_options->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_line->setReadOnly(true);
    auto *const label = new QLabel(tr("&The same job on the command line"), this);
    label->setBuddy(m_line);
    auto *const copy = new QPushButton(tr("Cop&y"), this);
    copy->setAutoDefault(false);
    copy->setAccessibleName(tr("Copy the command"));
    m_differences->setWordWrap(true);
    m_differences->hide();

    auto *const line = new QHBoxLayout;
    line->addWidget(m_line, 1);
    line->addWidget(copy);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_options, 1);
    layout->addWidget(label);
    layout->addLayout(line);
    layout->addWidget(m_differences);
    connect(copy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(m_line->text()); });
}

void TicketPage::setTicket(const host::CupsServer &server, const host::JobTicket &ticket)
{
    m_options->clear();
    QList<QTreeWidgetItem *> items;
    for (const host::JobOption &option : ticket.options) {
        auto *const item =
            new QTreeWidgetItem({QString::fromUtf8(option.name), QString::fromUtf8(option.value),
                                 host::originText(option.origin), option.isSent ? tr("yes") : tr("no")});
        item->setToolTip(1, plainToolTip(item->text(1)));
        // Dim the options that the job does not contain: the server sets them to the same values by itself.
        for (int column = 0; !option.isSent && column < item->columnCount(); ++column)
            item->setForeground(column, palette().brush(QPalette::Disabled, QPalette::Text));
        items.append(item);
    }
    m_options->addTopLevelItems(items);
    const host::LpCommand command = host::lpCommand(server, ticket);
    // Set the font here, so that it is not loaded unless this page is shown.
    m_line->setFont(QFont(QStringLiteral("monospace")));
    m_line->setText(command.line);
    m_line->setCursorPosition(0);
    const std::optional<QString> differences = command.differencesText();
    m_differences->setVisible(differences.has_value());
    m_differences->setText(differences.value_or(QString()));
}

} // namespace job
} // namespace dialog
