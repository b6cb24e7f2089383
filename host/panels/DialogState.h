// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "RecordedChoices.h"

#include <host/printer/PpdFile.h>
#include <platform/PrintingServices.h>

#include <QString>

#include <optional>
#include <vector>

namespace host {
inline namespace panels {

/// Receives the option changes of a DialogState.
class OptionListener {
public:
    virtual ~OptionListener() = default;
    /// Called after the choice of the option has changed. Keyword and choice are passed on as the change
    /// reported them; either may be absent.
    virtual void optionChanged(const std::optional<QString> &keyword,
                               const std::optional<QString> &choice) = 0;
};

/// The state of one print dialog: the PPD of the printer with its marked choices, the paper, and the settings
/// of the job to be printed. It has no widgets; both the dialog and the panel driver use it.
///
/// Panels access it through the PanelHost of their bundle. It is held by std::shared_ptr, since a panel may
/// outlive the dialog that showed it.
class DialogState {
public:
    /// The entry of the job's settings that holds a property list with the paper, for other software of the
    /// printer.
    static const QString ticketKey;
    /// The name of the notification that is posted when the paper has changed.
    static const QString paperDidChange;

    /// Moves the PPD into the state, together with the choices that the caller has marked.
    explicit DialogState(PpdFile ppd);
    ~DialogState();
    DialogState(const DialogState &) = delete;
    DialogState &operator=(const DialogState &) = delete;

    /// The PPD with its marked choices.
    PpdFile &ppd() { return m_ppd; }
    const PpdFile &ppd() const { return m_ppd; }

    /// Sets the paper, or none. Does not notify panels; see postPaperDidChange().
    void setPaper(const std::optional<platform::Paper> &paper) { m_pageFormat.paper = paper; }
    const std::optional<platform::Paper> &paper() const { return m_pageFormat.paper; }
    /// Stores the text under ticketKey unchanged; an absent text removes the entry. The entry is kept, but
    /// not visible to panels, while the job has no settings.
    void setTicket(const std::optional<QString> &text);
    /// Posts the notification paperDidChange to the panels of all bundles.
    void postPaperDidChange() const;

    /// Sets whether the job has settings; true by default. Without settings, settings() returns null and
    /// changeOption() records no choice, but still marks it in the PPD.
    void setHasSettings(bool has) { m_hasSettings = has; }
    /// Sets the device URI of the printer; absent if it is not known.
    void setDeviceURI(const std::optional<QString> &uri) { m_printer.deviceURI = uri; }

    /// Marks the choice, records it for the job, and reports it to all listeners except the origin. The
    /// origin is the listener that made the change; null if the dialog made it. If the keyword or the choice
    /// is absent, nothing is marked or recorded, and the change is only reported.
    void changeOption(const std::optional<QString> &keyword, const std::optional<QString> &choice,
                      const OptionListener *origin);

    /// Adds or removes a listener. Listeners are not owned and must be removed before they are destroyed.
    void addListener(OptionListener *listener) { m_listeners.push_back(listener); }
    void removeListener(OptionListener *listener) { std::erase(m_listeners, listener); }

    /// The choices that panels and dialog have made for the job, in the order in which their keywords were
    /// first recorded.
    const RecordedChoices &recorded() const { return m_recorded; }

    // The handles that panels receive. They are owned by this object and valid as long as it exists.
    /// The session, settings and page format of the printing services, as panels read them; settings() is
    /// null if there are none. Owned by this object.
    PMPrintSession session() { return &m_session; }
    PMPrintSettings settings() { return m_hasSettings ? &m_settings : nullptr; }
    PMPageFormat pageFormat() { return &m_pageFormat; }
    ::PMPrinter printer() { return &m_printer; }

private:
    PpdFile m_ppd;
    platform::PrintSession m_session;
    platform::PrintSettings m_settings;
    platform::PageFormat m_pageFormat;
    platform::Printer m_printer;
    bool m_hasSettings = true;
    RecordedChoices m_recorded;
    /// Not owned.
    std::vector<OptionListener *> m_listeners;
};

} // namespace panels
} // namespace host
