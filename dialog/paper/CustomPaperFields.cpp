// SPDX-License-Identifier: Apache-2.0
#include "CustomPaperFields.h"

#include <dialog/widgets/LengthField.h>

#include <QFormLayout>

namespace dialog {
inline namespace paper {

namespace {

QString limitsText(host::Points minimum, host::Points maximum)
{
    return CustomPaperFields::tr("%1 to %2", "the smallest and the largest length")
        .arg(exactLength(minimum), exactLength(maximum));
}

} // namespace

CustomPaperFields::CustomPaperFields(const host::PpdCustomLimits &limits, QWidget *parent)
    : QWidget(parent)
    , m_width(
          new LengthField(host::Points(limits.smallest.width()), host::Points(limits.largest.width()), this))
    , m_length(new LengthField(host::Points(limits.smallest.height()), host::Points(limits.largest.height()),
                               this))
{
    m_width->setToolTip(
        limitsText(host::Points(limits.smallest.width()), host::Points(limits.largest.width())));
    m_length->setToolTip(
        limitsText(host::Points(limits.smallest.height()), host::Points(limits.largest.height())));
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
    return {m_width->length().number(), m_length->length().number()};
}

void CustomPaperFields::showSize(const QSizeF &points)
{
    m_width->showLength(host::Points(points.width()));
    m_length->showLength(host::Points(points.height()));
}

QWidget *CustomPaperFields::lastField() const
{
    return m_length;
}

} // namespace paper
} // namespace dialog
