// SPDX-License-Identifier: Apache-2.0
#include "OptionControl.h"

#include "ChoiceControl.h"
#include "ManyControl.h"
#include "SwitchControl.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace dialog {

OptionControl *OptionControl::make(const host::PpdOption &option, QWidget *parent)
{
    if (option.kind == host::PpdOptionKind::PickMany)
        return new ManyControl(option, parent);
    if (SwitchControl::suits(option))
        return new SwitchControl(option, parent);
    return new ChoiceControl(option, parent);
}

OptionControl::OptionControl(const host::PpdOption &option, QWidget *parent)
    : QWidget(parent)
    , m_keyword(option.keyword)
    , m_column(new QVBoxLayout(this))
{
    setObjectName(QString::fromUtf8(m_keyword));
    m_column->setContentsMargins({});
}

void OptionControl::makeWarning()
{
    m_warning = new QWidget(this);
    auto *const icon = new QLabel(m_warning);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    icon->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(QSize(size, size), devicePixelRatioF()));
    m_warningText = new QLabel(m_warning);
    m_warningText->setWordWrap(true);
    m_warningText->setTextFormat(Qt::PlainText);
    auto *const row = new QHBoxLayout(m_warning);
    row->setContentsMargins({});
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addWidget(m_warningText, 1);
    m_column->addWidget(m_warning);
}

void OptionControl::setConflicts(const QStringList &sentences)
{
    // Most options never have a conflict.
    if (!m_warning && sentences.isEmpty())
        return;
    if (!m_warning)
        makeWarning();
    m_warningText->setText(sentences.join(u'\n'));
    m_warning->setVisible(!sentences.isEmpty());
    const QString spokenText = sentences.join(u' ');
    for (QWidget *const widget : spoken())
        widget->setAccessibleDescription(spokenText);
}

} // namespace dialog
