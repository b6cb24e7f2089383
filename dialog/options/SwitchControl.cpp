// SPDX-License-Identifier: Apache-2.0
#include "SwitchControl.h"

#include <dialog/widgets/PlainToolTip.h>

#include <QCheckBox>
#include <QVBoxLayout>

#include <algorithm>

namespace dialog {
inline namespace options {

namespace {

struct OnAndOff {
    const char *on;
    const char *off;
};

constexpr OnAndOff pairs[] = {
    {"True", "False"},
    {"On", "Off"},
};

const host::PpdChoice *findChoice(const host::PpdOption &option, const char *name)
{
    const auto found = std::ranges::find_if(option.choices, [&](const host::PpdChoice &choice) {
        return qstricmp(choice.name.constData(), name) == 0;
    });
    return found == option.choices.end() ? nullptr : &*found;
}

} // namespace

bool SwitchControl::suits(const host::PpdOption &option)
{
    const bool isPair = std::ranges::any_of(pairs, [&](const OnAndOff &pair) {
        return findChoice(option, pair.on) && findChoice(option, pair.off);
    });
    return option.kind == host::PpdOptionKind::Boolean && option.choices.size() == 2 && isPair &&
           !option.customText;
}

SwitchControl::SwitchControl(const host::PpdOption &option, QWidget *parent)
    : OptionControl(option, parent)
    , m_box(new QCheckBox(QString(option.text).replace(u'&', QStringLiteral("&&")), this))
{
    for (const OnAndOff &pair : pairs) {
        if (findChoice(option, pair.on) && findChoice(option, pair.off)) {
            m_on = *findChoice(option, pair.on);
            m_off = *findChoice(option, pair.off);
        }
    }
    column()->addWidget(m_box);
    setFocusProxy(m_box);
    connect(m_box, &QCheckBox::toggled, this, &SwitchControl::showMeaning);
    connect(m_box, &QCheckBox::clicked, this,
            [this](bool on) { Q_EMIT chosen(on ? m_on.name : m_off.name); });
    showMeaning();
}

void SwitchControl::showMarked(const host::PpdOptions &options)
{
    const std::vector<QByteArray> marked = options.markedChoices(keyword());
    m_box->setChecked(!marked.empty() && marked.front() == m_on.name);
}

void SwitchControl::showMeaning()
{
    // The texts of True and False in a PPD may have another meaning than the check mark suggests.
    m_box->setToolTip(plainToolTip(m_box->isChecked() ? m_on.text : m_off.text));
}

QList<QWidget *> SwitchControl::spoken() const
{
    return {m_box};
}

} // namespace options
} // namespace dialog
