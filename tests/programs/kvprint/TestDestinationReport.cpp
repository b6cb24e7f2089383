// SPDX-License-Identifier: Apache-2.0
#include <programs/kvprint/DestinationReport.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using host::Destination;
using host::QueueState;

namespace {

std::vector<Destination> everyKind()
{
    Destination tapeQueue;
    tapeQueue.queue = QStringLiteral("tape");
    tapeQueue.description = QStringLiteral("Tape printer");
    tapeQueue.location = QStringLiteral("Desk\nby the window");
    tapeQueue.makeAndModel = QStringLiteral("Kvelland LX-900");
    tapeQueue.deviceUri = QStringLiteral("usb://tape");
    tapeQueue.isDefault = true;
    tapeQueue.state = QueueState::Paused;
    tapeQueue.stateReasons = {QStringLiteral("media-empty-error")};
    tapeQueue.stateMessage = QStringLiteral("Lunch");
    tapeQueue.acceptsJobs = false;
    Destination fine;
    fine.queue = QStringLiteral("tape");
    fine.instance = QStringLiteral("fine");
    fine.description = QStringLiteral("tape");
    fine.state = QueueState::Ready;
    Destination all;
    all.queue = QStringLiteral("all");
    all.isClass = true;
    all.members = {QStringLiteral("tape"), QStringLiteral("Büro")};
    all.state = QueueState::Printing;
    Destination far;
    far.queue = QStringLiteral("far");
    return {tapeQueue, fine, all, far};
}

} // namespace

TEST(DestinationReport, TellsPeopleHowQueuesAre)
{
    EXPECT_EQ(
        programs::destinationsInPlainText(everyKind()),
        QStringLiteral(
            "tape (default)\n    Tape printer, Desk by the window\n    The queue is paused; jobs wait. The "
            "label roll or tape is empty. The queue accepts no jobs. Server message: Lunch\ntape/fine\n    "
            "Ready.\nall\n    Class of: tape, B\u00fcro\n    Printing.\nfar\n    State unknown.\n"));
    EXPECT_EQ(programs::destinationsInPlainText({}), QString());
}

TEST(DestinationReport, TellsProgramsEverythingUnderKeysThatStay)
{
    const QByteArray json = programs::destinationsAsJson(everyKind());
    EXPECT_TRUE(json.endsWith('\n'));
    const QJsonArray array = QJsonDocument::fromJson(json).array();
    ASSERT_EQ(array.size(), 4);
    const QJsonObject expected = QJsonDocument::fromJson(R"({
        "name": "tape", "queue": "tape", "instance": null, "description": "Tape printer",
        "location": "Desk\nby the window", "makeAndModel": "Kvelland LX-900", "uri": "usb://tape",
        "class": false, "members": [], "default": true, "accepting": false, "state": "paused",
        "reasons": ["media-empty-error"], "message": "Lunch"})")
                                     .object();
    EXPECT_EQ(array.at(0).toObject(), expected) << json.toStdString();
    EXPECT_EQ(array.at(1)[u"name"], QStringLiteral("tape/fine"));
    EXPECT_EQ(array.at(1)[u"instance"], QStringLiteral("fine"));
    EXPECT_EQ(array.at(1)[u"state"], QStringLiteral("ready"));
    EXPECT_EQ(array.at(2)[u"class"], true);
    EXPECT_EQ(array.at(2)[u"members"], (QJsonArray{QStringLiteral("tape"), QStringLiteral("Büro")}));
    EXPECT_EQ(array.at(2)[u"state"], QStringLiteral("printing"));
    EXPECT_EQ(array.at(3)[u"state"], QStringLiteral("unknown"));
    EXPECT_EQ(programs::destinationsAsJson({}), "[\n]\n");
}
