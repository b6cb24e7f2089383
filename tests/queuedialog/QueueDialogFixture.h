// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Hands.h"

#include <dialog/job/QueueSender.h>
#include <dialog/options/OptionControl.h>
#include <dialog/window/PrintDialog.h>
#include <tests/samples/Sandbox.h>
#include <tests/servers/Servers.h>
#include <tests/support/PrivateCupsd.h>

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <gtest/gtest.h>

/// The print dialog as kvprint opens it, on the queues of a private cupsd that all tests of a suite share.
class QueueDialogTest : public testing::Test {
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();
    /// Starts without any cached data of the server.
    void SetUp() override;
    /// Ends the dialog, and all jobs and records of the server.
    void TearDown() override;

    /// Opens the dialog on the server; absent for the shared one. wanted is a destination as kvprint parses
    /// it after -d.
    void open(const std::optional<QString> &wanted, const host::CupsServer &server = {},
              const host::SetupRequest &requested = {});
    /// Opens it and waits until the server has reported everything about the queue.
    void openAndSettle(const QString &wanted, const host::CupsServer &server = {},
                       const host::SetupRequest &requested = {});
    void close();
    /// Opens the dialog once and closes it, so that the queue is known from last time.
    void fillCache(const QString &queue);
    bool isSettled() const;
    static host::CupsServer sharedServer();
    /// A server at the address of which as much is known as of the shared one and its queue "tape".
    static host::CupsServer knownServer(const QString &address);
    /// As if the server had had so many queues more the last time.
    static void rememberMoreQueues(const host::CupsServer &server, int count);
    /// Replaces the content of the PPD that the shared server stores for the queue.
    static void overwritePpd(const QString &queue, const QByteArray &bytes);
    /// Replaces the document by one of this number of bytes that cannot be compressed.
    void makeDocumentLarge(qsizetype bytes) const;

    /// The visible control with that accessible name; null when there is none.
    template<typename Widget>
    Widget *find(const QString &accessibleName) const
    {
        for (Widget *const widget : window->findChildren<Widget *>()) {
            if (widget->accessibleName() == accessibleName && widget->isVisible())
                return widget;
        }
        return nullptr;
    }
    /// The field that the label with this text leads to.
    QWidget *fieldOf(const QString &labelText) const;
    template<typename Widget>
    Widget *field(const QString &labelText) const
    {
        return qobject_cast<Widget *>(fieldOf(labelText));
    }
    /// The control of the PPD's option.
    template<typename Widget>
    Widget *control(const char *keyword, const QString &name = {}) const
    {
        const auto *const parent = window->findChild<dialog::OptionControl *>(QLatin1String(keyword));
        return parent ? parent->findChild<Widget *>(name) : nullptr;
    }
    static QPushButton *button(const QWidget *parent, const QString &text);
    QPushButton *button(const QString &text) const { return button(window.get(), text); }
    QCheckBox *panelBox(const char *name) const;
    QComboBox *destinations() const { return find<QComboBox>(QStringLiteral("Printer")); }
    QListWidget *papers() const { return find<QListWidget>(QStringLiteral("Paper")); }
    /// The text of the line below the destinations.
    QString state() const { return destinations()->accessibleDescription(); }
    /// The texts of all banners of the dialog, without what the preflight reports.
    QString told() const;
    /// Whether any visible label contains the text.
    bool isSeen(const QString &text) const;
    void chooseTab(const QString &title) const;
    QStringList tabs() const;
    void choosePaper(const QString &text) const;

    /// Presses Print and waits until the server has the job.
    void print();
    /// Prints and returns what the filter received for the only document.
    test_support::RecordedDocument printed();
    /// "lpstat -o", empty when no job waits.
    static QString waitingJobs();
    /// Runs it on another thread, while the window goes on.
    static void meanwhile(const std::function<void()> &work);

    inline static std::unique_ptr<test_support::PrivateCupsd> cupsd;
    Sandbox sandbox;
    QString documentPath;
    std::unique_ptr<host::QueueSession> session;
    std::unique_ptr<host::SetupKeeper> keeper;
    std::unique_ptr<dialog::QueueSender> sender;
    std::unique_ptr<dialog::PrintDialog> window;
    /// The server that the next dialog sends its job to; absent for the server that lists the queues.
    std::optional<host::CupsServer> sendingServer;
    /// The number of times a dialog asked for a password.
    int passwordQuestions = 0;

private:
    std::size_t m_documentsBefore = 0;
};
