// SPDX-License-Identifier: Apache-2.0
// The program on a kernel that cannot confine the processes that read documents.
#include "KvprintTest.h"

#include <host/rendering/SandboxSupport.h>

namespace {

struct KernelRow {
    const char *missing;
    const char *sentence;
};

class KvprintOlderKernel : public KvprintTest, public testing::WithParamInterface<KernelRow> {
protected:
    Outcome run(const QStringList &words) const
    {
        return kvprint.runOther(QStringLiteral(KV_OLDER_KERNEL),
                                QStringList{QLatin1String(GetParam().missing), QStringLiteral(KV_PROGRAM)} +
                                    words);
    }
};

} // namespace

TEST_P(KvprintOlderKernel, IsReportedAndStillPrints)
{
    const Outcome version = run({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.out.startsWith("kvprint ")) << version;
    EXPECT_TRUE(version.out.contains(GetParam().sentence)) << version;
    EXPECT_EQ(version.out.count("The kernel has no"), 1) << version;

    addSampleQueue(tape, QStringLiteral("kvelland-lx900"));
    const Outcome printed = run({"--no-dialog", "-d", tape, samplePdf()});
    EXPECT_EQ(printed.status, 0) << printed;
    recorded(1);
}

INSTANTIATE_TEST_SUITE_P(Facilities, KvprintOlderKernel,
                         testing::Values(KernelRow{"landlock", "The kernel has no Landlock"},
                                         KernelRow{"seccomp", "The kernel has no seccomp"}));

TEST_F(KvprintTest, TheVersionHasALineForEachFacilityThatTheKernelLacks)
{
    const host::SandboxSupport support = host::sandboxSupport();
    const Outcome version = kvprint.run({"--version"});
    EXPECT_TRUE(version.out.startsWith("kvprint ")) << version;
    EXPECT_EQ(version.out.contains("Landlock"), !support.restrictsFiles) << version;
    EXPECT_EQ(version.out.contains("seccomp"), !support.restrictsCalls) << version;
}
