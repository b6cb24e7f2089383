// SPDX-License-Identifier: Apache-2.0
#include "CheckBoxAccess.h"

#include "CheckBox.h"

#include <QCoreApplication>

namespace platform {
inline namespace controls {

namespace {

QAccessibleInterface *makeCheckBoxAccess(const QString &, QObject *object)
{
    auto *const box = qobject_cast<CheckBox *>(object);
    return box ? new CheckBoxAccess(box) : nullptr;
}

void installCheckBoxAccess()
{
    QAccessible::installFactory(makeCheckBoxAccess);
}

// Runs when the application starts, or immediately if the library is loaded later.
Q_COREAPP_STARTUP_FUNCTION(installCheckBoxAccess)

/// Returns the title without the marks of shortcuts; a doubled ampersand is a literal ampersand.
QString withoutMnemonics(QString title)
{
    for (qsizetype at = title.indexOf(u'&'); at >= 0; at = title.indexOf(u'&', at + 1))
        title.remove(at, 1);
    return title;
}

} // namespace

CheckBoxAccess::CheckBoxAccess(CheckBox *box)
    : QAccessibleWidget(box, QAccessible::CheckBox)
{
}

CheckBox *CheckBoxAccess::box() const
{
    return static_cast<CheckBox *>(widget());
}

QString CheckBoxAccess::text(QAccessible::Text kind) const
{
    const QString named = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && named.isEmpty() ? withoutMnemonics(box()->text()) : named;
}

QAccessible::State CheckBoxAccess::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = box()->isChecked();
    return state;
}

QStringList CheckBoxAccess::actionNames() const
{
    return QStringList{toggleAction()} + QAccessibleWidget::actionNames();
}

void CheckBoxAccess::doAction(const QString &name)
{
    if (name == toggleAction())
        box()->click();
    else
        QAccessibleWidget::doAction(name);
}

} // namespace controls
} // namespace platform
