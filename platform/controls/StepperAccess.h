// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessibleWidget>

namespace platform {
inline namespace controls {

class Stepper;

/// The accessible interface of a stepper: a number that can be read, set, increased and decreased. Every
/// change is a step of the user.
class StepperAccess : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    /// Qt creates an object for each Stepper that assistive technology queries; the factory is registered
    /// when the application starts.
    explicit StepperAccess(Stepper *stepper);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

    /// The stepper's value and its limits.
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
