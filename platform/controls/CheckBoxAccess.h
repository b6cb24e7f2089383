// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessibleWidget>

namespace platform {
inline namespace controls {

class CheckBox;

/// The accessible interface of a check box. Toggling is a click: Qt's own interface changes the box without
/// emitting clicked(), and the panel would not receive the choice.
class CheckBoxAccess : public QAccessibleWidget {
public:
    /// Qt creates an object for each CheckBox that assistive technology queries; the factory is registered
    /// when the application starts.
    explicit CheckBoxAccess(CheckBox *box);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    CheckBox *box() const;
};

} // namespace controls
} // namespace platform
