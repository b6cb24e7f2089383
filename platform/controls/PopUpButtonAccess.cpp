// SPDX-License-Identifier: Apache-2.0
#include "PopUpButtonAccess.h"

#include "PopUpButton.h"

#include <QAbstractItemView>
#include <QCoreApplication>

namespace platform {
inline namespace controls {

namespace {

QAccessibleInterface *makePopUpButtonAccess(const QString &, QObject *object)
{
    auto *const popUp = qobject_cast<PopUpButton *>(object);
    return popUp ? new PopUpButtonAccess(popUp) : nullptr;
}

void installPopUpButtonAccess()
{
    QAccessible::installFactory(makePopUpButtonAccess);
}

// Runs when the application starts, or immediately if the library is loaded later.
Q_COREAPP_STARTUP_FUNCTION(installPopUpButtonAccess)

} // namespace

PopUpButtonAccess::PopUpButtonAccess(PopUpButton *popUp)
    : QAccessibleWidget(popUp, QAccessible::ComboBox)
{
}

PopUpButton *PopUpButtonAccess::popUp() const
{
    return static_cast<PopUpButton *>(widget());
}

void *PopUpButtonAccess::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface *PopUpButtonAccess::child(int index) const
{
    return index == 0 ? QAccessible::queryAccessibleInterface(popUp()->view()) : nullptr;
}

int PopUpButtonAccess::indexOfChild(const QAccessibleInterface *child) const
{
    return child && child->object() == popUp()->view() ? 0 : -1;
}

QString PopUpButtonAccess::spokenText(int position) const
{
    const QString spoken = popUp()->itemData(position, Qt::AccessibleTextRole).toString();
    return spoken.isEmpty() ? popUp()->itemText(position) : spoken;
}

QString PopUpButtonAccess::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? spokenText(popUp()->currentIndex()) : QAccessibleWidget::text(kind);
}

void PopUpButtonAccess::setText(QAccessible::Text kind, const QString &text)
{
    if (kind != QAccessible::Value)
        return QAccessibleWidget::setText(kind, text);
    for (int position = 0; position < popUp()->count(); ++position) {
        if (spokenText(position) == text)
            return popUp()->chooseItem(position);
    }
}

QAccessible::State PopUpButtonAccess::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = popUp()->view()->isVisible();
    state.collapsed = !state.expanded;
    return state;
}

QStringList PopUpButtonAccess::actionNames() const
{
    return QStringList{showMenuAction(), pressAction()} + QAccessibleWidget::actionNames();
}

void PopUpButtonAccess::doAction(const QString &name)
{
    if (name != showMenuAction() && name != pressAction())
        return QAccessibleWidget::doAction(name);
    if (popUp()->view()->isVisible())
        popUp()->hidePopup();
    else if (popUp()->isEnabled())
        popUp()->showPopup();
}

QVariant PopUpButtonAccess::currentValue() const
{
    return popUp()->currentIndex();
}

void PopUpButtonAccess::setCurrentValue(const QVariant &value)
{
    bool isNumber = false;
    const int position = value.toInt(&isNumber);
    if (isNumber)
        popUp()->chooseItem(position);
}

QVariant PopUpButtonAccess::maximumValue() const
{
    return popUp()->count() - 1;
}

} // namespace controls
} // namespace platform
