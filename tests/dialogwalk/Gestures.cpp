// SPDX-License-Identifier: Apache-2.0
#include "Gestures.h"

#include "Hands.h"

#include <QApplication>
#include <QWindow>

#include <gtest/gtest.h>

namespace dialogwalk {

bool Gestures::pickRow(QComboBox *list, int row)
{
    QApplication::setDoubleClickInterval(0);
    Hands::click(list);
    QAbstractItemView *const view = list->view();
    const bool isOpen =
        waitUntil([&] { return view->isVisible() && view->window()->windowHandle()->isExposed(); });
    const bool isEnabled = view->model()->index(row, 0).flags() & Qt::ItemIsEnabled;
    const bool isPicked = isOpen && isEnabled;
    if (isPicked) {
        // The list takes no click at once with the one that opened it.
        QApplication::processEvents();
        clickRow(view, row);
    } else {
        list->hidePopup();
    }
    const bool isClosed = waitUntil([&] { return !view->isVisible(); });
    // A window manager does so when a list closes.
    list->window()->activateWindow();
    return QTest::qWaitForWindowActive(list->window()) && isClosed && isPicked;
}

void Gestures::clickRow(QAbstractItemView *list, int row)
{
    QWidget *const window = list->window();
    // A window that is about to become larger, for a message that has just come, moves the row.
    QApplication::processEvents();
    EXPECT_TRUE(waitUntil([&] { return window->height() >= window->minimumSizeHint().height(); }));
    const QModelIndex index = list->model()->index(row, 0);
    list->scrollTo(index);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                      list->viewport()->mapTo(window, list->visualRect(index).center()));
    QApplication::processEvents();
}

void Gestures::pressIn(QWidget *control, Qt::Key key)
{
    control->setFocus(Qt::TabFocusReason);
    Hands::press(control->window(), key);
}

} // namespace dialogwalk
