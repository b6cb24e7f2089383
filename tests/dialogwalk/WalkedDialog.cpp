// SPDX-License-Identifier: Apache-2.0
#include "WalkedDialog.h"

#include "Hands.h"
#include "OptionsPpd.h"
#include "SamplePdf.h"

#include <host/Units.h>
#include <host/dialog/Banner.h>
#include <host/dialog/StripPreview.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTabBar>
#include <QTabWidget>

#include <gtest/gtest.h>

namespace dialogwalk {

namespace {

const QString panelBundle = QStringLiteral(KV_BINARY_DIR "/bin");

QByteArray samplePpd(const char *name)
{
    QFile file(QStringLiteral(KV_SOURCE_DIR "/resources/ppd/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

template<typename Plan>
bool isMeasured(const Plan &plan)
{
    if constexpr (requires { plan.isMeasured(); })
        return plan.isMeasured();
    return true;
}

/// The description without the option, and under another name.
QByteArray without(QByteArray ppd, const QByteArray &keyword)
{
    const auto begin = ppd.indexOf("*OpenUI *" + keyword + '/');
    const QByteArray last = "*CloseUI: *" + keyword + '\n';
    EXPECT_GE(begin, 0) << keyword.constData();
    ppd.remove(begin, ppd.indexOf(last, begin) + last.size() - begin);
    return ppd.replace(", 1.0\"", ", 1.1\"");
}

} // namespace

WalkedServer::WalkedServer()
{
    addQueue(QStringLiteral("lx"), samplePpd("kvelland-lx900.ppd"),
             without(samplePpd("kvelland-lx900.ppd"), "KvRemoveBlkSpace"));
    addQueue(QStringLiteral("dz"), samplePpd("kvelland-dz500.ppd"),
             without(samplePpd("kvelland-dz500.ppd"), "KvMirror"));
    addQueue(QStringLiteral("few"), samplePpd("kvelland-lx300.ppd"),
             without(samplePpd("kvelland-lx300.ppd"), "KvHalfCut"));
    addQueue(QStringLiteral("plain"), optionsPpd(),
             without(optionsPpd(), "Twins").replace("Kvelland Options", "Kvelland Other"));
    m_cupsd.addRawQueue(QStringLiteral("raw"));
    m_destinations.append(QStringLiteral("raw"));
    addInstance(QStringLiteral("lx/shelf"), {QStringLiteral("PageSize=12x50mm"), QStringLiteral("KvHalfCut=ON"),
                                             QStringLiteral("KvMirror=ON"), QStringLiteral("copies=2")});
    addInstance(QStringLiteral("dz/desk"),
                {QStringLiteral("PageSize=DC29x90"), QStringLiteral("KvCutLabel=3")});
    writeDocument();
}

void WalkedServer::addQueue(const QString &name, const QByteArray &ppd, const QByteArray &other)
{
    m_ppds[name] = {ppd, other};
    m_destinations.append(name);
    m_cupsd.addQueue(name, ppd);
}

void WalkedServer::addInstance(const QString &name, const QStringList &options)
{
    QStringList arguments{QStringLiteral("-p"), name};
    for (const QString &option : options)
        arguments += {QStringLiteral("-o"), option};
    m_cupsd.run(QStringLiteral("lpoptions"), arguments);
    m_destinations.append(name);
}

QByteArray WalkedServer::ppd(const QString &destination) const
{
    const QString queue = destination.section(u'/', 0, 0);
    const auto found = m_ppds.find(queue);
    return found == m_ppds.end() ? QByteArray() : found->second[static_cast<std::size_t>(variant(queue))];
}

int WalkedServer::variant(const QString &destination) const
{
    const auto found = m_variants.find(destination.section(u'/', 0, 0));
    return found == m_variants.end() ? 0 : found->second;
}

void WalkedServer::replacePpd(const QString &destination, int variant)
{
    const QString queue = destination.section(u'/', 0, 0);
    m_variants[queue] = variant;
    m_cupsd.addQueue(queue, ppd(queue));
}

void WalkedServer::setVariants(const std::map<QString, int> &variants)
{
    for (const auto &[queue, ppds] : m_ppds) {
        const auto wanted = variants.find(queue);
        const int number = wanted == variants.end() ? 0 : wanted->second;
        if (variant(queue) != number)
            replacePpd(queue, number);
    }
}

void WalkedServer::writeDocument()
{
    // Lying, standing, blank, and small: each is laid on a label in another way.
    m_pages = {{QSizeF(60, 24), QRectF(10, 4, 30, 12)},
               {QSizeF(24, 50), QRectF(4, 5, 10, 20)},
               {QSizeF(60, 24), std::nullopt},
               {QSizeF(30, 9), QRectF(6, 2, 8, 4)}};
    std::vector<SamplePage> pages;
    for (const PageFacts &facts : m_pages) {
        const auto draw = [ink = facts.ink](QPainter &painter) {
            const double unit = host::pointsPerMillimetre;
            if (ink)
                painter.fillRect(QRectF(ink->topLeft() * unit, ink->size() * unit), Qt::black);
        };
        pages.push_back({facts.size * host::pointsPerMillimetre, draw});
    }
    m_documentPath = writePdf(m_sandbox, QStringLiteral("labels.pdf"), pages);
}

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
                                                   host::SetupWishes());
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
                                                     dialog::DialogWishes());
    m_window->show();
    return QTest::qWaitForWindowExposed(m_window.get());
}

bool WalkedDialog::reopenWindow()
{
    return showWindow() && refresh();
}

bool WalkedDialog::settle(const QString &destination)
{
    const bool isThere = waitUntil([&] {
        const host::PpdKnowledge knowledge = m_session->ppdKnowledge();
        return m_session->isSettled() && m_keeper->setup() &&
               m_keeper->setup()->destination().name() == destination &&
               (knowledge == host::PpdKnowledge::Current || knowledge == host::PpdKnowledge::Absent);
    });
    return isThere && refresh();
}

bool WalkedDialog::refresh()
{
    QApplication::processEvents();
    const auto *const strip = m_window->findChild<dialog::StripPreview *>();
    return waitUntil([&] { return !strip->plan() || isMeasured(*strip->plan()); });
}

QString WalkedDialog::told() const
{
    QStringList messages;
    for (const dialog::Banner *const banner : m_window->findChildren<dialog::Banner *>()) {
        if (banner->isVisible())
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
