// SPDX-License-Identifier: Apache-2.0
// A job that is followed to its end while the connection fails: its end is reported when the server can be
// asked again, and an error when it cannot.
#include "FaultSweepTest.h"

#include <host/cups/jobs/JobMonitor.h>

using test_support::FaultProxy;
using test_support::PassedMessage;
using test_support::ProxyFault;
using Kind = ProxyFault::Kind;

namespace {

class FollowedJobTest : public FaultSweepTest {
protected:
    void SetUp() override
    {
        FaultSweepTest::SetUp();
        const Outcome outcome = print(ticket());
        ASSERT_TRUE(outcome.jobId);
        jobId = *outcome.jobId;
        // Its end is in the first answer, in every run.
        settledJobs();
    }

    /// Follows the job through the proxy. Whether its end is reported; the other end is an error.
    bool follow(const FaultProxy &proxy, const ProxyFault &fault) const
    {
        host::JobMonitor monitor(serverFor(fault, proxy.address()), QStringLiteral("tape"), jobId,
                                 std::chrono::milliseconds(1));
        std::optional<host::JobState> end;
        bool hasFailed = false;
        QObject::connect(&monitor, &host::JobMonitor::changed, [&](const host::JobStatus &status) {
            if (status.isOver())
                end = status.state;
        });
        QObject::connect(&monitor, &host::JobMonitor::failed, [&] { hasFailed = true; });
        EXPECT_TRUE(waitUntil([&] { return end || (hasFailed && fault.isLinkDown); }));
        EXPECT_TRUE(!end || *end == host::JobState::Completed);
        return end.has_value();
    }

    /// The end of the job is reported unless the link is down.
    void expectEnd(const ProxyFault &fault) const
    {
        SCOPED_TRACE(testing::Message() << "message " << fault.message << ", byte " << fault.byte
                                        << ", fault " << static_cast<int>(fault.kind));
        const FaultProxy proxy(cupsd.port(), fault);
        EXPECT_EQ(follow(proxy, fault), !fault.isLinkDown);
    }

    int jobId = 0;
};

} // namespace

TEST_F(FollowedJobTest, AtEachMessage)
{
    std::vector<PassedMessage> messages;
    {
        const FaultProxy proxy(cupsd.port());
        ASSERT_TRUE(follow(proxy, {}));
        messages = proxy.messages();
    }
    ASSERT_FALSE(messages.empty());
    for (std::size_t i = 0; i < messages.size(); ++i) {
        const auto index = static_cast<int>(i);
        for (const bool isLinkDown : {false, true}) {
            for (const qint64 byte : sampleOf(messages[i]))
                expectEnd({.kind = Kind::Cut, .message = index, .byte = byte, .isLinkDown = isLinkDown});
            expectEnd({.kind = Kind::Silence, .message = index, .isLinkDown = isLinkDown});
        }
        expectEnd({.kind = Kind::Delay, .message = index});
    }
}
