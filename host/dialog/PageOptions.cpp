// SPDX-License-Identifier: Apache-2.0
#include "PageOptions.h"

#include "ClearButton.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

namespace dialog {

PageOptions::PageOptions(std::vector<int> pageCounts, QWidget *parent)
    : QWidget(parent)
    , m_pageCounts(std::move(pageCounts))
    , m_copies(new QSpinBox(this))
    , m_collate(new QCheckBox(tr("Set &by set"), this))
    , m_pages(new QLineEdit(this))
{
    m_copies->setRange(1, host::mostCopies);
    m_copies->setAccelerated(true);
    m_collate->setChecked(true);
    m_collate->setEnabled(false);
    m_collate->setToolTip(
        tr("All pages once, then all pages again; otherwise all copies of a page together"));
    m_pages->setPlaceholderText(tr("all, or for example 1-3, 5"));
    addClearButton(m_pages);

    auto *const layout = new QFormLayout(this);
    layout->setContentsMargins({});
    layout->addRow(tr("&Copies"), m_copies);
    layout->addRow(QString(), m_collate);
    layout->addRow(tr("Pa&ges"), m_pages);
    connect(m_copies, &QSpinBox::valueChanged, this, [this](int copies) {
        m_setsCopies = true;
        m_collate->setEnabled(copies > 1);
        Q_EMIT changed();
    });
    connect(m_collate, &QCheckBox::toggled, this, &PageOptions::changed);
    connect(m_pages, &QLineEdit::textChanged, this, &PageOptions::changed);
}

host::Result<host::PageChoices, host::PageRangeError> PageOptions::choices() const
{
    auto pages = host::parsePageRanges(m_pages->text(), m_pageCounts);
    if (!pages)
        return pages.error();
    if (pages.value().size() * static_cast<std::size_t>(m_copies->value()) > host::mostLabels)
        return host::PageRangeError{
            host::PageRangeFailure::TooMany,
            tr("Cannot print so many labels at once: a job has at most %1").arg(host::mostLabels)};
    return host::PageChoices{std::move(pages).value(), m_copies->value(),
                             m_collate->isChecked() ? host::Collate::Yes : host::Collate::No};
}

void PageOptions::setSettings(const host::JobSettings &settings)
{
    const QSignalBlocker quiet(this);
    m_copies->setValue(settings.copies.value_or(1));
    m_collate->setChecked(settings.collate != host::Collate::No);
    m_pages->setText(settings.pageRanges);
    m_setsCopies = settings.copies.has_value();
}

void PageOptions::writeTo(host::JobSettings &settings) const
{
    settings.copies = m_setsCopies || m_copies->value() > 1 ? std::optional(m_copies->value()) : std::nullopt;
    settings.collate = m_collate->isChecked() ? host::Collate::Yes : host::Collate::No;
    settings.pageRanges = m_pages->text();
}

} // namespace dialog
