// SPDX-License-Identifier: Apache-2.0

#include <host/panels/PanelSession.h>
#include <tests/samples/SamplePpd.h>

#include <platform/NotificationCenter.h>

#include <QCheckBox>
#include <QTest>

#include <gtest/gtest.h>

using host::DialogState;
using host::PanelBundle;
using host::PanelHost;
using host::PanelSession;

namespace {

const QString mirror = QStringLiteral("KvMirror");
const QString on = QStringLiteral("ON");

class DialogStateTest : public testing::Test {
protected:
    PanelSession session()
    {
        auto bundle =
            PanelBundle::load(QStringLiteral(KV_BINARY_DIR "/tests/bundles/good/KVLXDZOptions.bundle"), {});
        if (!bundle)
            qFatal("%s", qPrintable(bundle.error().message));
        return {std::move(bundle).value(), std::make_shared<PanelHost>(state)};
    }

    static QString heard(const PanelSession &session)
    {
        return session.firstPanel()->summaryInfo()->value(QStringLiteral("Heard")).toString();
    }

    static void click(const PanelSession &session)
    {
        QWidget *const box = session.firstPanel()->panelView();
        box->adjustSize();
        QTest::mouseClick(box, Qt::LeftButton, {}, {8, box->height() / 2});
    }

    Sandbox sandbox;
    std::shared_ptr<DialogState> state = std::make_shared<DialogState>(openTapePpd(sandbox));
};

} // namespace

TEST_F(DialogStateTest, APanelsChangeIsMarkedRecordedAndToldToTheOthersOnly)
{
    const PanelSession first = session();
    const PanelSession second = session();
    std::vector<QString> events;
    first.host().setWillChangeHook([&](const QString &key, const std::optional<QString> &choice) {
        // Nothing is carried out yet when the change is announced.
        EXPECT_EQ(state->ppd().markedChoice(mirror), QStringLiteral("OFF"));
        events.push_back(key + u'=' + choice.value_or(QString()));
    });
    first.host().setDidChangeHook([&] { events.push_back(state->ppd().markedChoice(mirror).value()); });

    click(first);

    EXPECT_EQ(state->ppd().markedChoice(mirror), on);
    EXPECT_EQ(state->recorded().pairs(), (std::vector<host::RecordedChoices::Pair>{{mirror, on}}));
    EXPECT_EQ(heard(first), QString());
    EXPECT_EQ(heard(second), QStringLiteral("KvMirror=ON"));
    EXPECT_EQ(events, (std::vector<QString>{QStringLiteral("KvMirror=ON"), on}));
}

TEST_F(DialogStateTest, TheDialogsChangeIsToldToAll)
{
    const PanelSession first = session();
    const PanelSession second = session();
    state->changeOption(mirror, on, nullptr);
    EXPECT_EQ(heard(first), QStringLiteral("KvMirror=ON"));
    EXPECT_EQ(heard(second), QStringLiteral("KvMirror=ON"));
    EXPECT_EQ(state->recorded().choice(mirror), on);
}

TEST_F(DialogStateTest, AbsentKeywordsAndChoicesAreToldButChangeNothing)
{
    const PanelSession panel = session();
    state->changeOption(std::nullopt, on, nullptr);
    state->changeOption(mirror, std::nullopt, nullptr);
    EXPECT_EQ(heard(panel), QStringLiteral("nil=ON KvMirror=nil"));
    EXPECT_TRUE(state->recorded().pairs().empty());
    EXPECT_EQ(state->ppd().markedChoice(mirror), QStringLiteral("OFF"));

    panel.host().willChangePPDOptionKeyValue(mirror, std::nullopt);
    EXPECT_TRUE(state->recorded().pairs().empty());
}

TEST_F(DialogStateTest, RecordsUnknownPairsAsTheyCame)
{
    state->changeOption(QStringLiteral("KvAbsent"), QStringLiteral("Perhaps"), nullptr);
    EXPECT_EQ(state->recorded().choice(QStringLiteral("KvAbsent")), QStringLiteral("Perhaps"));
}

TEST_F(DialogStateTest, KeepsTheOrderOfTheFirstChoosing)
{
    state->changeOption(mirror, on, nullptr);
    state->changeOption(QStringLiteral("KvHalfCut"), on, nullptr);
    state->changeOption(mirror, QStringLiteral("OFF"), nullptr);
    EXPECT_EQ(state->recorded().pairs(),
              (std::vector<host::RecordedChoices::Pair>{{mirror, QStringLiteral("OFF")},
                                                        {QStringLiteral("KvHalfCut"), on}}));
}

TEST_F(DialogStateTest, WithoutSettingsMarksButRecordsNothing)
{
    const PanelSession panel = session();
    state->setHasSettings(false);
    EXPECT_EQ(panel.host().printSettings(), nullptr);
    click(panel);
    EXPECT_EQ(state->ppd().markedChoice(mirror), on);
    EXPECT_TRUE(state->recorded().pairs().empty());
}

TEST_F(DialogStateTest, PanelsSeePaperTicketAndAddress)
{
    const PanelHost host(state);
    PMPaper paper = nullptr;
    EXPECT_EQ(PMGetPageFormatPaper(host.pageFormat(), &paper), platform::noError);
    EXPECT_EQ(paper, nullptr);
    platform::Paper tape;
    tape.name = QStringLiteral("HS12");
    tape.nameStatus = -7;
    tape.height = 170.0;
    state->setPaper(tape);
    EXPECT_EQ(PMGetPageFormatPaper(host.pageFormat(), &paper), platform::noError);
    std::optional<QString> name;
    EXPECT_EQ(PMPaperGetPPDPaperName(paper, &name), -7);

    QByteArray ticket;
    EXPECT_EQ(PMPrintSettingsGetValue(host.printSettings(), DialogState::ticketKey, &ticket),
              platform::keyNotFound);
    state->setTicket(QStringLiteral("<plist/>"));
    EXPECT_EQ(PMPrintSettingsGetValue(host.printSettings(), DialogState::ticketKey, &ticket),
              platform::noError);
    EXPECT_EQ(ticket, "<plist/>");
    state->setTicket(std::nullopt);
    EXPECT_EQ(PMPrintSettingsGetValue(host.printSettings(), DialogState::ticketKey, &ticket),
              platform::keyNotFound);

    QString uri;
    EXPECT_EQ(PMPrinterCopyDeviceURI(host.PMPrinter(), &uri), platform::keyNotFound);
    state->setDeviceURI(QStringLiteral("usb://Kvelland/Tape"));
    EXPECT_EQ(PMPrinterCopyDeviceURI(host.PMPrinter(), &uri), platform::noError);
    EXPECT_EQ(uri, QStringLiteral("usb://Kvelland/Tape"));
}

TEST_F(DialogStateTest, AnnouncesAPaperChange)
{
    int heardChanges = 0;
    auto &center = platform::NotificationCenter::defaultCenter();
    center.addObserver(this, DialogState::paperDidChange, nullptr,
                       [&](const platform::Notification &) { ++heardChanges; });
    state->setPaper(platform::Paper{});
    EXPECT_EQ(heardChanges, 0);
    state->postPaperDidChange();
    EXPECT_EQ(heardChanges, 1);
    center.removeObserver(this);
}

TEST_F(DialogStateTest, ResizingIsOnlyOfferedWhenTheDialogWantsIt)
{
    PanelHost host(state);
    EXPECT_FALSE(host.respondsToPanelViewDidResize());
    host.panelViewDidResize();
    int resizes = 0;
    host.setPanelViewDidResizeHook([&] { ++resizes; });
    EXPECT_TRUE(host.respondsToPanelViewDidResize());
    host.panelViewDidResize();
    EXPECT_EQ(resizes, 1);
}

TEST_F(DialogStateTest, AnUnknownTypeHasNoPanels)
{
    auto bundle =
        PanelBundle::load(QStringLiteral(KV_BINARY_DIR "/tests/bundles/good/KVLXDZOptions.bundle"), {});
    ASSERT_TRUE(bundle);
    const PanelSession other(std::move(bundle).value(), std::make_shared<PanelHost>(state),
                             QStringLiteral("another dialog"));
    ASSERT_TRUE(other.panels());
    EXPECT_TRUE(other.panels()->empty());
    EXPECT_EQ(other.firstPanel(), nullptr);
}

TEST_F(DialogStateTest, APanelThatIsGoneIsToldNothing)
{
    {
        const PanelSession gone = session();
    }
    state->changeOption(mirror, on, nullptr);
    EXPECT_EQ(state->ppd().markedChoice(mirror), on);
}
