// SPDX-License-Identifier: Apache-2.0
#include "PageFields.h"

#include <dialog/job/PageOptions.h>

#include <QLineEdit>
#include <QSpinBox>

namespace dialogwalk {

namespace {

QCheckBox *boxWithText(const QWidget *parent, const QString &text)
{
    for (QCheckBox *const each : parent->findChildren<QCheckBox *>()) {
        if (each->text().remove(u'&') == text)
            return each;
    }
    return nullptr;
}

} // namespace

PageFields::PageFields(const WalkedDialog &dialog)
    : copies(nullptr)
    , collate(nullptr)
    , pages(nullptr)
    , lastFirst(nullptr)
{
    const auto *const options = dialog.window().findChild<dialog::PageOptions *>();
    copies = options->findChild<QSpinBox *>();
    collate = boxWithText(options, QStringLiteral("Set by set"));
    lastFirst = boxWithText(options, QStringLiteral("Reverse order"));
    for (QLineEdit *const each : options->findChildren<QLineEdit *>(Qt::FindDirectChildrenOnly))
        pages = each;
}

} // namespace dialogwalk
