// SPDX-License-Identifier: Apache-2.0
#include "CustomPaperFields.h"

#include <dialog/widgets/LengthField.h>

#include <QFormLayout>

namespace dialog {
inline namespace paper {

namespace {

QString limitsText(double minimum, double maximum)
{
    return CustomPaperFields::tr("%1 to %2", "the smallest and the largest length")
        .arg(exactLength(minimum), exactLength(maximum));
}

} // namespace

CustomPaperFields::CustomPaperFields(const host::PpdCustomLimits &limits, QWidget *parent)
    : QWidget(parent)
    , m_width(new LengthField(limits.smallest.width(), limits.largest.width(), this))
    , m_length(new LengthField(limits.smallest.height(), limits.largest.height(), this))
{
    m_width->setToolTip(limitsText(limits.smallest.width(), limits.largest.width()));
    m_length->setToolTip(limitsText(limits.smallest.height(), limits.largest.height()));
    m_width->setAccessibleName(tr("Paper width"));
    m_length->setAccessibleName(tr("Paper length"));
    auto *const form = new QFormLayout(this);
    form->setContentsMargins({});
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Wi&dth"), m_width);
    form->addRow(tr("&Length"), m_length);
    setFocusProxy(m_width->isReadOnly() ? m_length : m_width);
    connect(m_width, &LengthField::valueChanged, this, &CustomPaperFields::edited);
    connect(m_length, &LengthField::valueChanged, this, &CustomPaperFields::edited);
}

QSizeF CustomPaperFields::size() const
{
    return {m_width->points(), m_length->points()};
}

void CustomPaperFields::showSize(const QSizeF &points)
{
    m_width->showPoints(points.width());
    m_length->showPoints(points.height());
}

QWidget *CustomPaperFields::lastField() const
{
    return m_length;
}

} // namespace paper
} // namespace dialog
