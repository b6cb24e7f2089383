// SPDX-License-Identifier: Apache-2.0
#include "UserActions.h"

#include "DriverRequest.h"

#include <platform/PopUpButton.h>
#include <platform/Stepper.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionButton>

namespace user_actions {

namespace {

template<typename Control>
Control *controlNamed(QWidget *panel, const QString &name, const char *kind)
{
    auto *const control = panel->findChild<Control *>(name);
    if (!control)
        throw RequestError(QStringLiteral("the panel has no %1 named \"%2\"").arg(QLatin1String(kind), name));
    return control;
}

bool isReachable(const QWidget *control)
{
    return !control->isHidden() && control->isEnabledTo(control->parentWidget());
}

void requireReachable(const QWidget *control, Force force)
{
    if (force == Force::Yes || isReachable(control))
        return;
    const QString state = control->isHidden() ? QStringLiteral("hidden") : QStringLiteral("disabled");
    throw RequestError(QStringLiteral("\"%1\" is %2").arg(control->objectName(), state));
}

void sendMouse(QWidget *control, QEvent::Type type, QPointF position)
{
    const Qt::MouseButtons pressed = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, position, control->mapToGlobal(position), Qt::LeftButton, pressed,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(control, &event);
}

void sendKey(QWidget *control, Qt::Key key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(control, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QCoreApplication::sendEvent(control, &release);
}

QPointF indicatorCentre(const QCheckBox *box)
{
    QStyleOptionButton option;
    option.initFrom(box);
    return box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box).center();
}

} // namespace

void click(QWidget *panel, const QString &control, Force force)
{
    auto *const box = controlNamed<QCheckBox>(panel, control, "check box");
    requireReachable(box, force);
    if (isReachable(box)) {
        sendMouse(box, QEvent::MouseButtonPress, indicatorCentre(box));
        sendMouse(box, QEvent::MouseButtonRelease, indicatorCentre(box));
        return;
    }
    box->setChecked(!box->isChecked());
    Q_EMIT box->clicked(box->isChecked());
}

void type(QWidget *panel, const QString &field, const QString &text, Force force)
{
    auto *const edit = controlNamed<QLineEdit>(panel, field, "text field");
    requireReachable(edit, force);
    if (!isReachable(edit)) {
        edit->setText(text);
        Q_EMIT edit->textEdited(edit->text());
        return;
    }
    edit->selectAll();
    if (text.isEmpty()) {
        // Nothing to delete in an empty field, yet the user has been at it.
        if (edit->text().isEmpty())
            Q_EMIT edit->textEdited(text);
        else
            sendKey(edit, Qt::Key_Delete);
        return;
    }
    QInputMethodEvent committed;
    committed.setCommitString(text);
    QCoreApplication::sendEvent(edit, &committed);
}

void step(QWidget *panel, const QString &stepper, std::int32_t value, Force force)
{
    auto *const control = controlNamed<platform::Stepper>(panel, stepper, "stepper");
    requireReachable(control, force);
    // The last of the steps that lead to the value is made by its arrow.
    const bool fromBelow = value > control->value();
    const bool arrowCanReach = isReachable(control) && value != control->value();
    if (!arrowCanReach) {
        control->setValue(value);
        Q_EMIT control->stepped();
        return;
    }
    control->setValue(fromBelow ? value - 1 : value + 1);
    const QPointF arrow(control->width() / 2.0, fromBelow ? 2.0 : control->height() - 2.0);
    sendMouse(control, QEvent::MouseButtonPress, arrow);
    sendMouse(control, QEvent::MouseButtonRelease, arrow);
}

void choosePreset(QWidget *panel, const QString &popUp, std::int32_t tag, Force force)
{
    auto *const button = controlNamed<platform::PopUpButton>(panel, popUp, "pop-up");
    const int position = button->indexOfItemWithTag(tag);
    if (position < 0)
        throw RequestError(QStringLiteral("the pop-up has no item with the tag %1").arg(tag));
    button->validateItems();
    const QModelIndex item = button->model()->index(position, button->modelColumn());
    if (!(button->model()->flags(item) & Qt::ItemIsEnabled)) {
        if (force == Force::No)
            throw RequestError(QStringLiteral("the item with the tag %1 is disabled on this paper").arg(tag));
        button->setCurrentIndex(position);
        Q_EMIT button->activated(position);
        return;
    }
    button->showPopup();
    button->view()->setCurrentIndex(item);
    sendKey(button->view(), Qt::Key_Return);
    button->hidePopup();
}

} // namespace user_actions
