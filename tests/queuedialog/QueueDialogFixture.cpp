// SPDX-License-Identifier: Apache-2.0
#include "QueueDialogFixture.h"

#include <dialog/job/PasswordDialog.h>
#include <dialog/widgets/Banner.h>
#include <dialog/window/PreflightBanner.h>
#include <host/cups/queues/QueueCache.h>
#include <tests/samples/RawPdf.h>
#include <tests/samples/SamplePdf.h>
#include <tests/support/BackgroundThreads.h>

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTabBar>
#include <QTabWidget>

#include <thread>

using test_support::PrivateCupsd;
using test_support::RecordedDocument;

namespace {

QString plain(QString text)
{
    return text.remove(u'&');
}

} // namespace

void QueueDialogTest::SetUpTestSuite()
{
    cupsd = std::make_unique<PrivateCupsd>();
}

void QueueDialogTest::TearDownTestSuite()
{
    cupsd.reset();
}

void QueueDialogTest::SetUp()
{
    // Tests that set up once more still have a window, whose threads end with it.
    close();
    test_support::awaitBackgroundThreads();
    QDir(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
         QStringLiteral("/kvprint/cups"))
        .removeRecursively();
    std::vector<SamplePage> pages;
    for (int page = 0; page < 3; ++page)
        pages.push_back({QSizeF(60, 24) * mm, [page](QPainter &painter) {
                             QFont font;
                             font.setPixelSize(20);
                             painter.setFont(font);
                             painter.drawText(20, 40, QStringLiteral("Label %1").arg(page + 1));
                         }});
    documentPath = writePdf(sandbox, QStringLiteral("labels.pdf"), pages);
    m_documentsBefore = cupsd->documents().size();
}

void QueueDialogTest::TearDown()
{
    close();
    if (cupsd->isRunning())
        cupsd->run(QStringLiteral("cancel"), {QStringLiteral("-a"), QStringLiteral("-x")});
}

host::CupsServer QueueDialogTest::sharedServer()
{
    return serverAt(cupsd->address());
}

host::CupsServer QueueDialogTest::knownServer(const QString &address)
{
    const host::CupsServer server = serverAt(address);
    const host::QueueCache from(sharedServer());
    const host::QueueCache to(server);
    to.storeDestinations(from.destinations());
    QFile ppd(from.ppdPath(QStringLiteral("tape")).value());
    EXPECT_TRUE(ppd.open(QIODevice::ReadOnly));
    to.storePpd(QStringLiteral("tape"), ppd.readAll(), 1);
    return server;
}

void QueueDialogTest::rememberMoreQueues(const host::CupsServer &server, int count)
{
    const host::QueueCache cache(server);
    std::vector<host::Destination> known = cache.destinations();
    for (int i = 0; i < count; ++i) {
        host::Destination more = known.front();
        more.queue = QStringLiteral("queue-%1").arg(i);
        more.description = QStringLiteral("Label printer in room %1").arg(i);
        more.isDefault = false;
        known.push_back(more);
    }
    cache.storeDestinations(known);
}

void QueueDialogTest::overwritePpd(const QString &queue, const QByteArray &bytes)
{
    QFile file(cupsd->path(QStringLiteral("etc/ppd/%1.ppd").arg(queue)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
}

void QueueDialogTest::makeDocumentLarge(qsizetype bytes) const
{
    // Noise, so that no compression makes it smaller.
    QByteArray noise(bytes / 4 * 4, Qt::Uninitialized);
    QRandomGenerator random(1);
    random.generate(reinterpret_cast<quint32 *>(noise.begin()), reinterpret_cast<quint32 *>(noise.end()));
    const QByteArray image = "<< /Type /XObject /Subtype /Image /BitsPerComponent 8 /ColorSpace /DeviceGray"
                             " /Width 1000 /Height " +
                             QByteArray::number(noise.size() / 1000) + " /Length " +
                             QByteArray::number(noise.size()) + " >>\nstream\n" + noise + "\nendstream";
    QFile file(documentPath);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(rawPdf({{"/MediaBox [0 0 170 68] /Resources << /XObject << /Noise 10 0 R >> >>",
                        "q 100 0 0 50 0 0 cm /Noise Do Q"}},
                      {image}));
}

void QueueDialogTest::open(const std::optional<QString> &wanted, const host::CupsServer &given,
                           const host::SetupRequest &requested)
{
    close();
    host::CupsServer server = given.address ? given : sharedServer();
    server.askPassword = [this](const host::PasswordRequest &request) {
        ++passwordQuestions;
        dialog::askWithDialog(window.get())(request);
    };
    auto document = host::LabelDocument::open(QStringList{documentPath});
    ASSERT_TRUE(document) << document.error().message.toStdString();
    session = std::make_unique<host::QueueSession>(server, wanted);
    keeper = std::make_unique<host::SetupKeeper>(
        *session, host::PanelSource{QStringLiteral(KV_BINARY_DIR "/bin"), {}}, requested);
    sender = std::make_unique<dialog::QueueSender>(sendingServer.value_or(server));
    window = std::make_unique<dialog::PrintDialog>(std::move(document).value(), *keeper, *sender,
                                                   dialog::RequestedSettings());
    window->show();
    session->start(host::Discovery::No);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get(), test_support::failureMilliseconds));
}

bool QueueDialogTest::isSettled() const
{
    const host::PpdState knowledge = session->ppdState();
    return session->isSettled() && keeper->setup() &&
           (knowledge == host::PpdState::Current || knowledge == host::PpdState::Absent);
}

void QueueDialogTest::openAndSettle(const QString &wanted, const host::CupsServer &server,
                                    const host::SetupRequest &requested)
{
    open(wanted, server, requested);
    EXPECT_TRUE(waitUntil([this] { return isSettled(); })) << told().toStdString();
    QApplication::processEvents();
}

void QueueDialogTest::close()
{
    window.reset();
    sender.reset();
    keeper.reset();
    session.reset();
}

void QueueDialogTest::fillCache(const QString &queue)
{
    openAndSettle(queue);
    close();
}

QWidget *QueueDialogTest::fieldOf(const QString &labelText) const
{
    for (const QLabel *const label : window->findChildren<QLabel *>()) {
        if (plain(label->text()) == labelText && label->isVisible() && label->buddy())
            return label->buddy();
    }
    ADD_FAILURE() << "no field " << labelText.toStdString();
    return nullptr;
}

QPushButton *QueueDialogTest::button(const QWidget *parent, const QString &text)
{
    for (QPushButton *const candidate : parent->findChildren<QPushButton *>()) {
        if (plain(candidate->text()) == text && candidate->isVisible())
            return candidate;
    }
    return nullptr;
}

QCheckBox *QueueDialogTest::panelBox(const char *name) const
{
    return window->findChild<QCheckBox *>(QLatin1String(name));
}

QString QueueDialogTest::told() const
{
    QStringList messages;
    for (const dialog::Banner *const banner : window->findChildren<dialog::Banner *>()) {
        const bool isPreflight = qobject_cast<const dialog::PreflightBanner *>(banner);
        if (banner->isVisible() && !isPreflight)
            messages.append(banner->message());
    }
    return messages.join(u'\n');
}

bool QueueDialogTest::isSeen(const QString &text) const
{
    for (const QLabel *const label : window->findChildren<QLabel *>()) {
        if (label->isVisible() && label->text().contains(text))
            return true;
    }
    return false;
}

void QueueDialogTest::chooseTab(const QString &title) const
{
    auto *const pages = window->findChild<QTabWidget *>();
    const qsizetype index = tabs().indexOf(title);
    ASSERT_GE(index, 0) << title.toStdString();
    QTabBar *const bar = pages->tabBar();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                      bar->mapTo(window.get(), bar->tabRect(static_cast<int>(index)).center()));
    QApplication::processEvents();
    EXPECT_EQ(pages->currentIndex(), index) << title.toStdString();
}

QStringList QueueDialogTest::tabs() const
{
    const auto *const pages = window->findChild<QTabWidget *>();
    QStringList titles;
    for (int i = 0; i < pages->count(); ++i)
        titles.append(plain(pages->tabText(i)));
    return titles;
}

void QueueDialogTest::choosePaper(const QString &text) const
{
    QListWidget *const list = papers();
    ASSERT_TRUE(list);
    const QList<QListWidgetItem *> found = list->findItems(text, Qt::MatchExactly);
    ASSERT_FALSE(found.isEmpty()) << text.toStdString();
    list->scrollToItem(found.first());
    const QPoint place = list->visualItemRect(found.first()).center();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                      list->viewport()->mapTo(window.get(), place));
    QApplication::processEvents();
    EXPECT_EQ(list->currentItem(), found.first()) << text.toStdString();
}

void QueueDialogTest::print()
{
    Hands::click(button(QStringLiteral("Print")));
    EXPECT_TRUE(waitUntil([this] { return !window->isSending(); }));
    EXPECT_FALSE(window->isVisible()) << told().toStdString();
}

RecordedDocument QueueDialogTest::printed()
{
    print();
    EXPECT_TRUE(waitUntil([this] { return cupsd->documents().size() > m_documentsBefore; }))
        << cupsd->log().toStdString();
    const std::vector<RecordedDocument> all = cupsd->documents();
    EXPECT_EQ(all.size(), m_documentsBefore + 1);
    m_documentsBefore = all.size();
    return all.empty() ? RecordedDocument() : all.back();
}

QString QueueDialogTest::waitingJobs()
{
    return QString::fromUtf8(cupsd->run(QStringLiteral("lpstat"), {QStringLiteral("-o")}));
}

void QueueDialogTest::meanwhile(const std::function<void()> &work)
{
    std::atomic<bool> isDone = false;
    std::thread worker([&] {
        work();
        isDone = true;
    });
    EXPECT_TRUE(waitUntil([&] { return isDone.load(); }));
    worker.join();
}
