// SPDX-License-Identifier: Apache-2.0
#include "PanelHost.h"

#include <QScopedValueRollback>

namespace host {
inline namespace panels {

PanelHost::PanelHost(std::shared_ptr<DialogState> state)
    : m_state(std::move(state))
{
    m_state->addListener(this);
}

PanelHost::~PanelHost()
{
    m_state->removeListener(this);
}

void PanelHost::setPanels(const PDEPanelList &panels)
{
    m_panels.assign(panels.begin(), panels.end());
}

void PanelHost::optionChanged(const std::optional<QString> &keyword, const std::optional<QString> &choice)
{
    for (const std::weak_ptr<PDEPanel> &panel : m_panels) {
        const std::shared_ptr<PDEPanel> alive = panel.lock();
        if (alive && m_guard)
            m_guard->run("PPDOptionKeyValueDidChange",
                         [&] { alive->PPDOptionKeyValueDidChange(keyword, choice); });
        else if (alive)
            alive->PPDOptionKeyValueDidChange(keyword, choice);
    }
}

PDEChoices PanelHost::collect(const std::function<void()> &ask)
{
    PDEChoices collected;
    const QScopedValueRollback collecting(m_collected, &collected);
    ask();
    return collected;
}

void PanelHost::setWillChangeHook(std::function<void(const QString &, const std::optional<QString> &)> hook)
{
    m_willChange = std::move(hook);
}

void PanelHost::willChangePPDOptionKeyValue(const QString &key, const std::optional<QString> &choice)
{
    if (m_keywords && !m_keywords->contains(key))
        return;
    if (m_collected) {
        if (choice)
            setChoice(*m_collected, key, *choice);
        return;
    }
    if (m_willChange)
        m_willChange(key, choice);
    if (!choice)
        return;
    m_state->changeOption(key, choice, this);
    if (m_didChange)
        m_didChange();
}

void PanelHost::panelViewDidResize()
{
    if (m_didResize)
        m_didResize();
}

} // namespace panels
} // namespace host
