// SPDX-License-Identifier: Apache-2.0
#include "SendBar.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>

namespace dialog {

SendBar::SendBar(QWidget *parent)
    : QWidget(parent)
    , m_bar(new QProgressBar(this))
{
    auto *const cancel = new QPushButton(tr("Stop sending"), this);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_bar, 1);
    layout->addWidget(cancel);
    connect(cancel, &QPushButton::clicked, this, &SendBar::cancelled);
    hide();
}

void SendBar::begin(const QString &title)
{
    m_bar->setFormat(tr("Sending \"%1\"").arg(title));
    m_bar->setAccessibleName(m_bar->format());
    setProgress(-1);
    show();
}

void SendBar::setProgress(int percent)
{
    // A range of nothing is how progress bars show that they do not know.
    m_bar->setRange(0, percent < 0 ? 0 : 100);
    m_bar->setValue(qMax(percent, 0));
}

void SendBar::end()
{
    hide();
}

} // namespace dialog
