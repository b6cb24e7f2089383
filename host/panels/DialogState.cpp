// SPDX-License-Identifier: Apache-2.0
#include "DialogState.h"

#include <platform/NotificationCenter.h>

namespace host {
inline namespace panels {

const QString DialogState::ticketKey = QStringLiteral("com.tarvick.print.PrintSettingsTicket.LxE5");
const QString DialogState::paperDidChange = QStringLiteral("PMPrintDestinationPaperDidChangeNotification");

DialogState::DialogState(PpdFile ppd)
    : m_ppd(std::move(ppd))
{
}

DialogState::~DialogState() = default;

void DialogState::setTicket(const std::optional<QString> &text)
{
    if (text)
        m_settings.setValue(ticketKey, text->toUtf8());
    else
        m_settings.remove(ticketKey);
}

void DialogState::postPaperDidChange() const
{
    platform::NotificationCenter::defaultCenter().post(paperDidChange);
}

void DialogState::changeOption(const std::optional<QString> &keyword, const std::optional<QString> &choice,
                               const OptionListener *origin)
{
    if (keyword && choice) {
        m_ppd.mark(*keyword, *choice);
        if (m_hasSettings)
            m_recorded.record(*keyword, *choice);
    }
    // A listener may change options or the list itself in response, so the loop runs over a copy of the list.
    const std::vector<OptionListener *> listeners = m_listeners;
    for (OptionListener *const listener : listeners) {
        if (listener != origin)
            listener->optionChanged(keyword, choice);
    }
}

} // namespace panels
} // namespace host
