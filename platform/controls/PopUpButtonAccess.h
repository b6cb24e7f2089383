// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessibleWidget>

namespace platform {
inline namespace controls {

class PopUpButton;

/// The accessible interface of a pop-up button. Its value is the accessible text of the selected item, or the
/// item's title if it has none; otherwise items without a title would be silent. Its number is the item's
/// position. Setting either chooses the item as the user does, unless the item is disabled.
class PopUpButtonAccess : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    /// Qt creates an object for each PopUpButton that assistive technology queries; the factory is registered
    /// when the application starts.
    explicit PopUpButtonAccess(PopUpButton *popUp);

    void *interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override { return 1; }
    /// Returns the list of the items for index 0, otherwise null.
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

    /// The position of the selected item and its limits.
    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

private:
    PopUpButton *popUp() const;
    QString spokenText(int position) const;
};

} // namespace controls
} // namespace platform
