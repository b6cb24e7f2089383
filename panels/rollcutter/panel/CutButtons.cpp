// SPDX-License-Identifier: Apache-2.0
#include "CutButtons.h"

#include "IntervalBox.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>

namespace rollcutter {

CutButtons::CutButtons(const CutGroup &group, const QString &title, const PanelTexts &texts,
                       ChoicesHook chosen)
    : m_group(group)
    , m_chosen(std::move(chosen))
    , m_box(new QGroupBox(title))
    , m_buttons(new QButtonGroup(m_box))
{
    auto *const layout = new QVBoxLayout(m_box);
    const std::vector<CutSetting> &settings = group.settings();
    std::vector<std::size_t> order(settings.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::ranges::stable_sort(order, {}, [&](std::size_t index) { return settings[index].style; });
    for (const std::size_t setting : order) {
        const bool isOffered =
            std::ranges::any_of(m_entries, [&](const Button &entry) { return isShownBy(entry, setting); });
        if (!isOffered)
            addButton(layout, setting, texts);
    }
    layout->addStretch();
}

void CutButtons::addButton(QVBoxLayout *layout, std::size_t setting, const PanelTexts &texts)
{
    const CutSetting &offered = m_group.settings()[setting];
    auto *const button = new QRadioButton(texts.buttonText(offered));
    m_buttons->addButton(button);
    m_entries.push_back({button, setting});
    // The signal clicked() is sent for the user's choices only.
    if (offered.style != CutStyle::EveryFew) {
        QObject::connect(button, &QRadioButton::clicked, m_box, [this, setting] { choose(setting); });
        layout->addWidget(button);
        return;
    }
    m_interval = makeInterval(texts);
    const auto chooseInterval = [this] {
        if (const auto found = m_group.find(CutStyle::EveryFew, m_interval->value()))
            choose(*found);
    };
    QObject::connect(button, &QRadioButton::clicked, m_box, chooseInterval);
    QObject::connect(m_interval, &QSpinBox::valueChanged, m_box, chooseInterval);
    auto *const line = new QHBoxLayout;
    line->addWidget(button);
    line->addWidget(m_interval);
    line->addStretch();
    layout->addLayout(line);
}

IntervalBox *CutButtons::makeInterval(const PanelTexts &texts)
{
    auto *const interval = new IntervalBox(m_group.intervals());
    interval->setObjectName(QStringLiteral("interval"));
    interval->setSuffix(texts.text(QStringLiteral("INTERVAL_SUFFIX")));
    interval->setAccessibleName(texts.text(QStringLiteral("INTERVAL_NAME")));
    return interval;
}

bool CutButtons::isShownBy(const Button &button, std::size_t setting) const
{
    const CutStyle style = m_group.settings()[setting].style;
    // The meaning of other choices is not known, so that each is offered with the text of the PPD.
    return style == m_group.settings()[button.setting].style &&
           (style != CutStyle::Other || button.setting == setting);
}

void CutButtons::choose(std::size_t setting)
{
    m_chosen(m_group.settings()[setting].choices);
}

void CutButtons::showChoices(const PrinterOptions &options, const std::optional<QString> &intervalReason)
{
    const auto current = m_group.current(options);
    // An exclusive group would keep one button checked.
    m_buttons->setExclusive(false);
    for (const Button &entry : m_entries)
        entry.widget->setChecked(current && isShownBy(entry, *current));
    m_buttons->setExclusive(true);
    if (!m_interval)
        return;
    const QSignalBlocker blocker(m_interval);
    if (current && m_group.settings()[*current].style == CutStyle::EveryFew)
        m_interval->setValue(m_group.settings()[*current].labels);
    m_interval->setEnabled(!intervalReason);
    m_interval->setToolTip(intervalReason.value_or(QString()));
}

} // namespace rollcutter
