// SPDX-License-Identifier: Apache-2.0
#include "PageOptions.h"

#include <dialog/widgets/ClearButton.h>

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

namespace dialog {
inline namespace job {

using host::Collate;
using host::PageOrder;

PageOptions::PageOptions(std::vector<int> pageCounts, QWidget *parent)
    : QWidget(parent)
    , m_pageCounts(std::move(pageCounts))
    , m_copies(new QSpinBox(this))
    , m_collate(new QCheckBox(tr("Set &by set"), this))
    , m_pages(new QLineEdit(this))
    , m_reverse(new QCheckBox(tr("Reverse order"), this))
{
    build();
    show();
    connectAll();
}

void PageOptions::build()
{
    m_copies->setRange(1, host::maxCopies);
    m_copies->setAccelerated(true);
    m_collate->setToolTip(
        tr("All pages once, then all pages again; otherwise all copies of a page together"));
    m_pages->setPlaceholderText(tr("all, or ranges: 1-3, 5"));
    addClearButton(m_pages);
    auto *const layout = new QFormLayout(this);
    layout->setContentsMargins({});
    layout->addRow(tr("&Copies"), m_copies);
    layout->addRow(QString(), m_collate);
    layout->addRow(tr("Pa&ges"), m_pages);
    layout->addRow(QString(), m_reverse);
}

void PageOptions::connectAll()
{
    connect(m_copies, &QSpinBox::valueChanged, this, [this](int copies) {
        m_requested.copies = copies;
        m_collate->setEnabled(copies > 1);
        Q_EMIT changed();
    });
    // A number that the user has typed is a setting even if it equals the printer's default, because another
    // printer may have another default. QSpinBox does not report such a number as a change.
    connect(m_copies->findChild<QLineEdit *>(), &QLineEdit::textEdited, this, [this] {
        if (!m_copies->hasAcceptableInput() || m_requested.copies == m_copies->value())
            return;
        m_requested.copies = m_copies->value();
        Q_EMIT changed();
    });
    connect(m_collate, &QCheckBox::toggled, this, [this](bool isOn) {
        m_requested.collate = isOn ? Collate::Yes : Collate::No;
        Q_EMIT changed();
    });
    connect(m_pages, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_requested.pageRanges = text;
        Q_EMIT changed();
    });
    connect(m_reverse, &QCheckBox::toggled, this, [this](bool isOn) {
        m_requested.order = isOn ? PageOrder::Reverse : PageOrder::Normal;
        Q_EMIT changed();
    });
}

void PageOptions::show()
{
    const QSignalBlocker quiet[] = {QSignalBlocker(m_copies), QSignalBlocker(m_collate),
                                    QSignalBlocker(m_pages), QSignalBlocker(m_reverse)};
    const host::JobSettings shown = withDefaults(m_requested, m_defaults);
    m_copies->setValue(shown.copies.value_or(1));
    m_collate->setChecked(shown.collate == Collate::Yes);
    m_collate->setEnabled(m_copies->value() > 1);
    m_pages->setText(shown.pageRanges.value_or(QString()));
    m_reverse->setChecked(shown.order == PageOrder::Reverse);
}

host::Result<host::PageChoices, host::PageRangeError> PageOptions::choices() const
{
    return host::choosePages(m_requested, m_defaults, m_pageCounts);
}

void PageOptions::setSettings(const host::JobSettings &settings)
{
    m_requested = settings;
    show();
}

void PageOptions::setDefaults(const host::JobSettings &defaults)
{
    if (m_defaults == defaults)
        return;
    m_defaults = defaults;
    show();
}

void PageOptions::writeTo(host::JobSettings &settings) const
{
    settings.copies = m_requested.copies;
    settings.collate = m_requested.collate;
    settings.pageRanges = m_requested.pageRanges;
    settings.pageSet = m_requested.pageSet;
    settings.order = m_requested.order;
}

} // namespace job
} // namespace dialog
