// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"

#include <QCheckBox>

namespace controls {

bool isHidden(const QWidget *control)
{
    return control && control->isHidden();
}

bool isEnabled(const QWidget *control)
{
    return control && control->isEnabledTo(control->parentWidget());
}

bool isShown(const QWidget *control)
{
    return control && !isHidden(control);
}

int state(const QCheckBox *box)
{
    return box && box->isChecked() ? 1 : 0;
}

void setState(QCheckBox *box, int index)
{
    if (box)
        box->setChecked(index != 0);
}

void setEnabled(QWidget *control, bool enabled)
{
    if (control)
        control->setEnabled(enabled);
}

bool setEnabledIfDifferent(QWidget *control, bool enabled)
{
    if (!control || isEnabled(control) == enabled)
        return false;
    control->setEnabled(enabled);
    return true;
}

void setTitle(QCheckBox *box, const QString &title)
{
    if (box)
        box->setText(QString(title).replace(u'&', QStringLiteral("&&")));
}

QString title(const QCheckBox *box)
{
    return box ? box->text().replace(QStringLiteral("&&"), QStringLiteral("&")) : QString();
}

} // namespace controls
