// SPDX-License-Identifier: Apache-2.0
#include "StepperAccess.h"

#include "Stepper.h"

#include <QCoreApplication>

#include <cmath>

namespace platform {
inline namespace controls {

namespace {

QAccessibleInterface *makeStepperAccess(const QString &, QObject *object)
{
    auto *const stepper = qobject_cast<Stepper *>(object);
    return stepper ? new StepperAccess(stepper) : nullptr;
}

void installStepperAccess()
{
    QAccessible::installFactory(makeStepperAccess);
}

// Runs when the application starts, or immediately if the library is loaded later.
Q_COREAPP_STARTUP_FUNCTION(installStepperAccess)

} // namespace

StepperAccess::StepperAccess(Stepper *stepper)
    : QAccessibleWidget(stepper, QAccessible::SpinBox)
{
}

Stepper *StepperAccess::stepper() const
{
    return static_cast<Stepper *>(widget());
}

void *StepperAccess::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString StepperAccess::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? QString::number(stepper()->value()) : QAccessibleWidget::text(kind);
}

QStringList StepperAccess::actionNames() const
{
    return QStringList{increaseAction(), decreaseAction()} + QAccessibleWidget::actionNames();
}

void StepperAccess::doAction(const QString &name)
{
    if (name == increaseAction())
        stepper()->stepTo(std::int64_t{stepper()->value()} + 1);
    else if (name == decreaseAction())
        stepper()->stepTo(std::int64_t{stepper()->value()} - 1);
    else
        QAccessibleWidget::doAction(name);
}

QVariant StepperAccess::currentValue() const
{
    return stepper()->value();
}

void StepperAccess::setCurrentValue(const QVariant &value)
{
    // AT-SPI passes numbers as double.
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    constexpr double limit = std::numeric_limits<std::int32_t>::max();
    if (isNumber && !std::isnan(number))
        stepper()->stepTo(std::llround(std::fmin(std::fmax(number, -limit - 1), limit)));
}

QVariant StepperAccess::maximumValue() const
{
    return stepper()->maximum();
}

QVariant StepperAccess::minimumValue() const
{
    return stepper()->minimum();
}

} // namespace controls
} // namespace platform
