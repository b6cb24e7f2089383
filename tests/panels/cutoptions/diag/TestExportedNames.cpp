// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "DescriptorCapture.h"

#include <diag/DebugLog.h>
#include <diag/Dump.h>
#include <diag/MemoryCheck.h>
#include <diag/Trace.h>

#include <dlfcn.h>

TEST(ExportedNames, LibraryThatLinksTheFolderOffersEveryFunctionByName)
{
    void *const library = dlopen(KV_EXPORTED_NAMES_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_TRUE(library) << dlerror();
    for (const char *name :
         {"debugLog", "debugLogFd", "memoryCheck", "memoryCheckFd", "_PDEProlog", "_PDEEpilog", "_PDELog",
          "_PDELog_ppd_option_t", "_PDELog_PMPrintSettings_WriteToFile"})
        ASSERT_TRUE(dlsym(library, name)) << name;

    using MemoryCheckFd = decltype(&memoryCheckFd);
    const auto dump = reinterpret_cast<MemoryCheckFd>(dlsym(library, "memoryCheckFd"));
    EXPECT_EQ(writtenBy([&](int descriptor) { dump(0, descriptor, "\x01\xab\xff", 3); }), "01abff\n");

    using DebugLogFd =
        void (*)(std::int32_t, int, const QString &, std::span<const platform::FormatArgument>);
    const auto log = reinterpret_cast<DebugLogFd>(dlsym(library, "debugLogFd"));
    const platform::FormatArgument argument(5);
    EXPECT_EQ(writtenBy([&](int descriptor) { log(0, descriptor, "%d", std::span(&argument, 1)); }), "5\n");
    dlclose(library);
}
