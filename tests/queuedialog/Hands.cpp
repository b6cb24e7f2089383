// SPDX-License-Identifier: Apache-2.0
#include "Hands.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>
#include <QScrollArea>
#include <QStyleOptionButton>
#include <QWindow>

#include <gtest/gtest.h>

namespace {

/// Brings the control into view where it lies in something that scrolls.
void scrollTo(QWidget *target)
{
    for (QWidget *parent = target->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *const area = qobject_cast<QScrollArea *>(parent))
            area->ensureWidgetVisible(target);
    }
    QApplication::processEvents();
}

QPoint placeToClick(const QWidget *target)
{
    const bool isBox = qobject_cast<const QCheckBox *>(target);
    if (!isBox && !qobject_cast<const QRadioButton *>(target))
        return target->rect().center();
    QStyleOptionButton option;
    option.initFrom(target);
    const QStyle::SubElement indicator =
        isBox ? QStyle::SE_CheckBoxIndicator : QStyle::SE_RadioButtonIndicator;
    return target->style()->subElementRect(indicator, &option, target).center();
}

} // namespace

void Hands::click(QWidget *target)
{
    ASSERT_TRUE(target);
    scrollTo(target);
    ASSERT_TRUE(target->isVisible()) << target->metaObject()->className();
    QWidget *const window = target->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                      target->mapTo(window, placeToClick(target)));
    QApplication::processEvents();
}

void Hands::press(QWidget *window, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(window->windowHandle(), key, modifiers);
    QApplication::processEvents();
}

void Hands::type(QWidget *window, const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(window->windowHandle(), character.toLatin1());
    QApplication::processEvents();
}

void Hands::typeInto(QWidget *field, const QString &text)
{
    click(field);
    ASSERT_TRUE(field->hasFocus() || field->isAncestorOf(QApplication::focusWidget()));
    press(field->window(), Qt::Key_A, Qt::ControlModifier);
    type(field->window(), text);
}

void Hands::pick(QComboBox *list, const QString &text)
{
    const int index = list->findText(text);
    ASSERT_GE(index, 0) << text.toStdString();
    // A list ignores clicks during the double-click interval after the click that opened it.
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);
    click(list);
    QAbstractItemView *const view = list->view();
    ASSERT_TRUE(waitUntil([&] { return view->isVisible() && view->window()->windowHandle()->isExposed(); }));
    test_support::turnEventLoop();
    view->scrollTo(view->model()->index(index, 0));
    const QPoint place = view->visualRect(view->model()->index(index, 0)).center();
    QWidget *const window = view->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, view->viewport()->mapTo(window, place));
    EXPECT_TRUE(waitUntil([&] { return !view->isVisible(); })) << text.toStdString();
    QApplication::setDoubleClickInterval(interval);
    QApplication::processEvents();
}
