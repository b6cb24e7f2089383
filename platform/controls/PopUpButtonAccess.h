// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessibleWidget>

namespace platform {
inline namespace controls {

class PopUpButton;

/// A pop-up button as assistive technology sees and operates it. Its value is the selected item's spoken
/// text, or its title where it has none; items without a title would otherwise be silent. Its number is the
/// item's position. Setting either chooses the item as the user does, unless the item is greyed.
class PopUpButtonAccess : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    /// Qt creates it for every PopUpButton that it is asked about: it is registered when the application
    /// starts.
    explicit PopUpButtonAccess(PopUpButton *popUp);

    void *interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override { return 1; }
    /// The list of the items.
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

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
