// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessibleWidget>

namespace platform {
inline namespace controls {

class Stepper;

/// A stepper as assistive technology sees and operates it: a number that can be read, set and counted up and
/// down. Whatever changes it is a step of the user.
class StepperAccess : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    /// Qt creates it for every Stepper that it is asked about: it is registered when the application starts.
    explicit StepperAccess(Stepper *stepper);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override { return 1; }

private:
    Stepper *stepper() const;
};

} // namespace controls
} // namespace platform
