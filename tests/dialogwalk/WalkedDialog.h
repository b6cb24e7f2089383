// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelBoxes.h"
#include "WalkedServer.h"

#include <dialog/job/QueueSender.h>
#include <dialog/window/PrintDialog.h>

namespace dialogwalk {

/// The print dialog as kvprint opens it, on a queue of the server.
class WalkedDialog {
public:
    explicit WalkedDialog(WalkedServer &server);
    ~WalkedDialog();

    /// Opens a dialog without any saved state and waits until the server has reported everything.
    bool open(const QString &destination);
    /// Opens another window on the printer as it is set up now.
    bool reopenWindow();
    void close();

    WalkedServer &server() const { return m_server; }
    dialog::PrintDialog &window() const { return *m_window; }
    /// The number of dialogs opened without any saved state.
    quint64 openings() const { return m_openings; }
    host::PrinterSetup &setup() const { return *m_keeper->setup(); }
    host::SetupKeeper &keeper() const { return *m_keeper; }
    host::QueueSession &session() const { return *m_session; }
    const dialog::QueueSender &sender() const { return *m_sender; }
    PanelBoxes panel() const { return PanelBoxes(m_window.get()); }

    /// The destination that is chosen.
    QString destination() const { return m_session->chosenName().value_or(QString()); }
    /// Waits until the destination's description is there and everything is shown that follows from it.
    bool settle(const QString &destination);
    /// Lets the window show what has changed, and waits for lengths that are being measured.
    bool refresh();
    /// The texts of all banners, without what the preflight reports.
    QString told() const;
    /// All options of the job as the dialog would send it now.
    OptionTexts options() const;
    /// Those of them that are sent.
    OptionTexts sentOptions() const;
    PrinterFacts printer() const;
    /// The titles of the pages.
    QStringList tabs() const;
    bool hasTab(const QString &title) const { return tabs().contains(title); }
    /// Brings the page to the front with the mouse.
    void chooseTab(const QString &title) const;

private:
    bool showWindow();

    WalkedServer &m_server;
    std::unique_ptr<host::QueueSession> m_session;
    std::unique_ptr<host::SetupKeeper> m_keeper;
    std::unique_ptr<dialog::QueueSender> m_sender;
    std::unique_ptr<dialog::PrintDialog> m_window;
    quint64 m_openings = 0;
};

} // namespace dialogwalk
