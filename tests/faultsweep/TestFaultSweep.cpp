// SPDX-License-Identifier: Apache-2.0
// One fault at every boundary between two messages and at a sample of bytes, while a job is printed. The end
// is one of three: printed once, not printed, not known; and the program reports which. KV_FAULT_SWEEP_SEED
// repeats the sample.
#include "FaultSweepTest.h"

#include <cups/ipp.h>

using test_support::Direction;
using test_support::PassedMessage;
using test_support::ProxyFault;
using Kind = ProxyFault::Kind;

namespace {

/// Jobs of one document and of three.
class FaultSweepOfDocuments : public FaultSweepTest, public testing::WithParamInterface<int> {
protected:
    void expectTruthAt(const ProxyFault &fault, const PassedMessage &message)
    {
        const Ending ending = printThrough(fault, GetParam());
        SCOPED_TRACE(testing::Message()
                     << "message " << fault.message << " (" << message.startLine.toStdString()
                     << "), operation " << ippOpString(static_cast<ipp_op_t>(message.operation)) << ", byte "
                     << fault.byte << " of " << message.bytes << (fault.isLinkDown ? ", link down" : ""));
        EXPECT_TRUE(ending.hasStruck || fault.kind == Kind::None || fault.kind == Kind::Silence);
        expectCorrectReport(ending, GetParam());
    }

    template<typename Action>
    void atEachMessage(Action action)
    {
        const std::vector<PassedMessage> messages = trace(GetParam());
        // The queue's description, the creation, the documents and the release: each with its answer.
        ASSERT_GE(messages.size(), static_cast<std::size_t>(2 * (3 + GetParam())));
        for (std::size_t i = 0; i < messages.size(); ++i)
            action(static_cast<int>(i), messages[i]);
    }
};

INSTANTIATE_TEST_SUITE_P(Documents, FaultSweepOfDocuments, testing::Values(1, 3),
                         testing::PrintToStringParamName());

} // namespace

TEST_P(FaultSweepOfDocuments, AConnectionThatIsCut)
{
    atEachMessage([&](int index, const PassedMessage &message) {
        for (const qint64 byte : sampleOf(message))
            expectTruthAt({.kind = Kind::Cut, .message = index, .byte = byte}, message);
    });
}

TEST_P(FaultSweepOfDocuments, ALinkThatGoesDown)
{
    atEachMessage([&](int index, const PassedMessage &message) {
        for (const qint64 byte : sampleOf(message))
            expectTruthAt({.kind = Kind::Cut, .message = index, .byte = byte, .isLinkDown = true}, message);
    });
}

TEST_P(FaultSweepOfDocuments, AServerThatFallsSilent)
{
    atEachMessage([&](int index, const PassedMessage &message) {
        for (const bool isLinkDown : {false, true})
            expectTruthAt({.kind = Kind::Silence, .message = index, .isLinkDown = isLinkDown}, message);
    });
}

TEST_P(FaultSweepOfDocuments, AServerThatPauses)
{
    atEachMessage([&](int index, const PassedMessage &message) {
        const ProxyFault fault{
            .kind = Kind::Delay, .message = index, .byte = random(static_cast<int>(message.bytes) - 1)};
        const Ending ending = printThrough(fault, GetParam());
        EXPECT_TRUE(ending.outcome.jobId);
        expectCorrectReport(ending, GetParam());
    });
}
