// SPDX-License-Identifier: Apache-2.0
// The floor of the bench: a window of Qt with a line of text, and nothing else.
#include <QApplication>
#include <QLabel>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QLabel label(QStringLiteral("A bare window"));
    label.resize(640, 400);
    label.show();
    return QApplication::exec();
}
