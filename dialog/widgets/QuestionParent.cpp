// SPDX-License-Identifier: Apache-2.0
#include "QuestionParent.h"

#include <QApplication>
#include <QWidget>

namespace dialog {
inline namespace widgets {

QWidget *questionParent(QWidget *window)
{
    QWidget *const modal = QApplication::activeModalWidget();
    if (!window || !modal)
        return window ? window : modal;
    bool isOfWindow = modal->windowModality() == Qt::ApplicationModal;
    for (QWidget *parent = modal; parent && !isOfWindow; parent = parent->parentWidget())
        isOfWindow = parent == window;
    return isOfWindow ? modal : window;
}

} // namespace widgets
} // namespace dialog
