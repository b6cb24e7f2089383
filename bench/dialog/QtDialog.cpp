// SPDX-License-Identifier: Apache-2.0
// Opens Qt's own print dialog on a queue: open_qt_dialog QUEUE
#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(QApplication::arguments().value(1));
    QPrintDialog dialog(&printer);
    dialog.show();
    return QApplication::exec();
}
