// SPDX-License-Identifier: Apache-2.0
#include "WalkedDialog.h"

#include "Hands.h"

#include <dialog/widgets/Banner.h>
#include <dialog/window/PreflightBanner.h>
#include <dialog/window/StripPreview.h>

#include <QApplication>
#include <QTabBar>
#include <QTabWidget>

#include <gtest/gtest.h>

namespace dialogwalk {

namespace {

const QString panelBundle = QStringLiteral(KV_BINARY_DIR "/bin");

} // namespace

WalkedDialog::WalkedDialog(WalkedServer &server)
    : m_server(server)
{
}

WalkedDialog::~WalkedDialog()
{
    close();
}

void WalkedDialog::close()
{
    m_window.reset();
    m_sender.reset();
    m_keeper.reset();
    m_session.reset();
}

bool WalkedDialog::open(const QString &destination)
{
    close();
    ++m_openings;
    host::CupsServer server;
    server.address = m_server.cupsd().address();
    m_session = std::make_unique<host::QueueSession>(server, destination);
    m_keeper = std::make_unique<host::SetupKeeper>(*m_session, host::PanelSource{panelBundle, {}},
                                                   host::SetupRequest());
    m_sender = std::make_unique<dialog::QueueSender>(server);
    if (!showWindow())
        return false;
    m_session->start(host::Discovery::No);
    return settle(destination);
}

bool WalkedDialog::showWindow()
{
    auto document = host::LabelDocument::open(m_server.documentPath());
    if (!document) {
        ADD_FAILURE() << document.error().message.toStdString();
        return false;
    }
    m_window.reset();
    m_window = std::make_unique<dialog::PrintDialog>(std::move(document).value(), *m_keeper, *m_sender,
                                                     dialog::RequestedSettings());
    m_window->show();
    m_window->activateWindow();
    return QTest::qWaitForWindowActive(m_window.get());
}

bool WalkedDialog::reopenWindow()
{
    return showWindow() && refresh();
}

bool WalkedDialog::settle(const QString &destination)
{
    const bool isThere = waitUntil([&] {
        const host::PpdState knowledge = m_session->ppdState();
        return m_session->isSettled() && m_keeper->setup() &&
               m_keeper->setup()->destination().name() == destination &&
               (knowledge == host::PpdState::Current || knowledge == host::PpdState::Absent);
    });
    return isThere && refresh();
}

bool WalkedDialog::refresh()
{
    QApplication::processEvents();
    const auto *const strip = m_window->findChild<dialog::StripPreview *>();
    return waitUntil([&] { return !strip->plan() || strip->plan()->isMeasured(); });
}

QString WalkedDialog::told() const
{
    QStringList messages;
    for (const dialog::Banner *const banner : m_window->findChildren<dialog::Banner *>()) {
        const bool isPreflight = qobject_cast<const dialog::PreflightBanner *>(banner);
        if (banner->isVisible() && !isPreflight)
            messages.append(banner->message());
    }
    return messages.join(u'\n');
}

OptionTexts WalkedDialog::options() const
{
    OptionTexts texts;
    for (const host::JobOption &option : m_window->ticket()->job.options)
        texts[option.name] = option.value;
    return texts;
}

OptionTexts WalkedDialog::sentOptions() const
{
    OptionTexts texts;
    for (const host::JobOption &option : m_window->ticket()->job.options) {
        if (option.isSent)
            texts[option.name] = option.value;
    }
    return texts;
}

PrinterFacts WalkedDialog::printer() const
{
    return PrinterFacts::of(m_server.ppd(destination()));
}

QStringList WalkedDialog::tabs() const
{
    const auto *const pages = m_window->findChild<QTabWidget *>();
    QStringList titles;
    for (int i = 0; i < pages->count(); ++i)
        titles.append(pages->tabText(i).remove(u'&'));
    return titles;
}

void WalkedDialog::chooseTab(const QString &title) const
{
    auto *const pages = m_window->findChild<QTabWidget *>();
    const auto index = static_cast<int>(tabs().indexOf(title));
    if (index == pages->currentIndex())
        return;
    QTabBar *const bar = pages->tabBar();
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {},
                      bar->mapTo(m_window.get(), bar->tabRect(index).center()));
    QApplication::processEvents();
    EXPECT_EQ(pages->currentIndex(), index) << title.toStdString();
}

} // namespace dialogwalk
