// SPDX-License-Identifier: Apache-2.0
#include "SendBar.h"

#include <dialog/widgets/PlainToolTip.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace dialog {
inline namespace job {

SendBar::SendBar(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_cancel(new QPushButton(tr("Cancel sending"), this))
{
    m_title->setTextFormat(Qt::PlainText);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_title);
    layout->addWidget(m_bar, 1);
    layout->addWidget(m_cancel);
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        // Acknowledge the click: canceling a job on a slow server takes a while.
        showCanceling();
        Q_EMIT canceled();
    });
    hide();
}

void SendBar::begin(const QString &title)
{
    // The text is beside the bar: most styles show no text in a bar without known progress.
    const QString text = tr("Sending \"%1\"").arg(title);
    const int widest = 40 * fontMetrics().averageCharWidth();
    m_title->setText(fontMetrics().elidedText(text, Qt::ElideMiddle, widest));
    m_title->setToolTip(plainToolTip(text));
    m_bar->setAccessibleName(text);
    m_cancel->setEnabled(true);
    setProgress(std::nullopt);
    show();
}

void SendBar::setProgress(std::optional<int> percent)
{
    // QProgressBar shows a busy indicator if its range is 0 to 0.
    m_bar->setRange(0, percent ? 100 : 0);
    m_bar->setValue(percent.value_or(0));
}

void SendBar::showCanceling()
{
    m_cancel->setEnabled(false);
}

void SendBar::end()
{
    hide();
}

} // namespace job
} // namespace dialog
