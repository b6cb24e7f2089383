// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelBoxes.h"
#include "Sandbox.h"

#include <host/dialog/PrintDialog.h>
#include <host/dialog/QueueSender.h>
#include <tests/support/PrivateCupsd.h>

#include <map>

namespace dialogwalk {

/// The queues that are walked through, on a server of their own, and the document that is printed on them. There are
/// two descriptions of each queue, of which the second one lacks an option.
class WalkedServer {
public:
    WalkedServer();

    test_support::PrivateCupsd &cupsd() { return m_cupsd; }
    /// Queues and instances, as a user sees them in the list of printers.
    const QStringList &destinations() const { return m_destinations; }
    /// What the queue's description says now; empty for one without a description.
    QByteArray ppd(const QString &destination) const;
    /// Gives the queue its first or second description.
    void replacePpd(const QString &destination, int variant);
    int variant(const QString &destination) const;
    const std::map<QString, int> &variants() const { return m_variants; }
    /// Gives every queue the description that the map names, the first one where it names none.
    void setVariants(const std::map<QString, int> &variants);

    /// A job was sent to a queue that records it.
    void countRecorded() { ++m_recorded; }
    /// What was recorded of all jobs that were counted; waits for it, and fails the test when it does not come.
    std::vector<test_support::RecordedDocument> records() { return m_cupsd.waitForDocuments(m_recorded); }

    const QString &documentPath() const { return m_documentPath; }
    const std::vector<PageFacts> &pages() const { return m_pages; }

private:
    void addQueue(const QString &name, const QByteArray &ppd, const QByteArray &other);
    void addInstance(const QString &name, const QStringList &options);
    void writeDocument();

    test_support::PrivateCupsd m_cupsd;
    Sandbox m_sandbox;
    QStringList m_destinations;
    std::map<QString, std::array<QByteArray, 2>> m_ppds;
    std::map<QString, int> m_variants;
    QString m_documentPath;
    std::vector<PageFacts> m_pages;
    std::size_t m_recorded = 0;
};

/// A job that was sent, and what the dialog showed before Print was pressed.
struct SentJob {
    int id = 0;
    OptionTexts shown;
    std::optional<ExpectedStrip> strip;
    /// The printer's description; empty for a queue without one.
    QByteArray ppd;

    /// A queue without a description has no filter that could record.
    bool isRecorded() const { return !ppd.isEmpty(); }
};

/// The print dialog as kvprint opens it, on a queue of the server.
class WalkedDialog {
public:
    explicit WalkedDialog(WalkedServer &server);
    ~WalkedDialog();

    /// Opens a dialog of which nothing is known from before, and waits until the server has told everything.
    bool open(const QString &destination);
    /// Opens another window on the printer as it is set up now.
    bool reopenWindow();
    void close();

    WalkedServer &server() const { return m_server; }
    dialog::PrintDialog &window() const { return *m_window; }
    /// How often a dialog was opened of which nothing was known.
    quint64 openings() const { return m_openings; }
    host::PrinterSetup &setup() const { return *m_keeper->setup(); }
    host::SetupKeeper &keeper() const { return *m_keeper; }
    host::QueueSession &session() const { return *m_session; }
    const dialog::QueueSender &sender() const { return *m_sender; }
    PanelBoxes panel() const { return PanelBoxes(m_window.get()); }

    /// The destination that is chosen.
    QString destination() const { return m_session->chosenName(); }
    /// Waits until the destination's description is there and everything is shown that follows from it.
    bool settle(const QString &destination);
    /// Lets the window show what has changed, and waits for lengths that are being measured.
    bool refresh();
    /// All that the banners say.
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
