// SPDX-License-Identifier: Apache-2.0
#include "Alert.h"

#include <QApplication>
#include <QMessageBox>

namespace platform {
inline namespace controls {

void Alert::runModal(QWidget *above) const
{
    QMessageBox box(above ? above->window() : QApplication::activeWindow());
    box.setIcon(QMessageBox::Warning);
    box.setText(messageText);
    box.setInformativeText(informativeText);
    box.addButton(buttonTitle, QMessageBox::AcceptRole);
    box.exec();
}

} // namespace controls
} // namespace platform
