// SPDX-License-Identifier: Apache-2.0
#include "JobWindow.h"

#include <dialog/widgets/FittedLabel.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace dialog {
inline namespace job {

JobWindow::JobWindow(const host::CupsServer &server, const QString &queue, int jobId, const QString &title,
                     QWidget *parent)
    : QDialog(parent)
    , m_monitor(server, queue, jobId)
    , m_words(new FittedLabel(3, 20, this))
{
    setWindowTitle(tr("%1 on %2").arg(title, queue));
    auto *const name = new QLabel(tr("Job %1: %2").arg(jobId).arg(title), this);
    name->setTextFormat(Qt::PlainText);
    QFont bold = name->font();
    bold.setBold(true);
    name->setFont(bold);
    name->setWordWrap(true);
    auto *const buttons = new QDialogButtonBox(this);
    m_cancel = buttons->addButton(tr("Cancel the &job"), QDialogButtonBox::DestructiveRole);
    QPushButton *const close = buttons->addButton(QDialogButtonBox::Close);
    close->setDefault(true);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(name);
    layout->addWidget(m_words);
    layout->addStretch(1);
    layout->addWidget(buttons);
    showMessage(tr("The job was sent."));
    setMinimumWidth(40 * fontMetrics().averageCharWidth());

    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        m_cancel->setEnabled(false);
        m_monitor.cancelJob();
    });
    connect(&m_monitor, &host::JobMonitor::changed, this, &JobWindow::showStatus);
    connect(&m_monitor, &host::JobMonitor::failed, this, [this](const host::CupsError &error) {
        showMessage(error.message);
        // Allow another attempt to cancel the job, unless the server does not have it.
        m_cancel->setEnabled(error.kind != host::CupsErrorKind::NotFound);
    });
}

void JobWindow::showMessage(const QString &words)
{
    m_words->setMessage(words);
    m_words->setAccessibleName(words);
}

void JobWindow::showStatus(const host::JobStatus &status)
{
    m_status = status;
    showMessage(status.sentences().join(u'\n'));
    m_cancel->setEnabled(!status.isOver());
    if (status.state == host::JobState::Completed)
        accept();
}

} // namespace job
} // namespace dialog
