// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "RecordedChoices.h"

#include <host/printer/PpdFile.h>
#include <platform/PrintingServices.h>

#include <QString>

#include <optional>
#include <vector>

namespace host {

/// Receives the changes of options in a DialogState.
class OptionListener {
public:
    virtual ~OptionListener() = default;
    /// The choice of the option is another one now. Either may be absent, as the change was.
    virtual void optionChanged(const std::optional<QString> &keyword,
                               const std::optional<QString> &choice) = 0;
};

/// What one print dialog holds: the printer's PPD with its markings, the paper, and the settings of the
/// job that it is going to print. Without widgets; the dialog and the panel driver stand on it alike.
///
/// Panels reach it through the PanelHost of their bundle. Held by std::shared_ptr, since a panel may
/// outlive the dialog that showed it.
class DialogState {
public:
    /// The job's settings hold here, for the printer's other software, a property list naming the paper.
    static const QString ticketKey;
    /// The announcement that the paper has changed.
    static const QString paperDidChange;

    /// The PPD as marked by the caller so far.
    explicit DialogState(PpdFile ppd);
    ~DialogState();
    DialogState(const DialogState &) = delete;
    DialogState &operator=(const DialogState &) = delete;

    PpdFile &ppd() { return m_ppd; }
    const PpdFile &ppd() const { return m_ppd; }

    /// Chooses the paper, or none, and tells nobody.
    void setPaper(const std::optional<platform::Paper> &paper) { m_pageFormat.paper = paper; }
    const std::optional<platform::Paper> &paper() const { return m_pageFormat.paper; }
    /// Puts the text under ticketKey as it is; nothing takes the entry out. Without settings, nothing
    /// happens.
    void setTicket(const std::optional<QString> &text);
    /// Announces that the paper has changed, to panels of any bundle.
    void postPaperDidChange() const;

    /// Whether the job has settings at all; it has, unless told otherwise. Without them panels are handed
    /// none, and no choice is recorded, though the PPD is marked all the same.
    void setHasSettings(bool has) { m_hasSettings = has; }
    /// The printer's address; nothing when it cannot be asked.
    void setDeviceURI(const std::optional<QString> &uri) { m_printer.deviceURI = uri; }

    /// Marks the choice, records it for the job, and reports it to all listeners but the origin, which made
    /// the change; null when the dialog itself made it. With an absent keyword or choice nothing is marked or
    /// recorded, and the change is reported as it is.
    void changeOption(const std::optional<QString> &keyword, const std::optional<QString> &choice,
                      const OptionListener *origin);

    /// Reports changes to the listener, which is borrowed and must be removed before it is destroyed.
    void addListener(OptionListener *listener) { m_listeners.push_back(listener); }
    void removeListener(OptionListener *listener) { std::erase(m_listeners, listener); }

    /// What panels and dialog have chosen for the job, in the order of the first choosing.
    const RecordedChoices &recorded() const { return m_recorded; }

    // The handles that panels are given. They live as long as this object.
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
    /// Borrowed.
    std::vector<OptionListener *> m_listeners;
};

} // namespace host
