// SPDX-License-Identifier: Apache-2.0
#include <host/cups/server/CupsConnection.h>

#include <gtest/gtest.h>

namespace {

using host::CupsServer;
using host::CupsThreadScope;

CupsServer serverOf(const char *address, const char *user)
{
    CupsServer server;
    server.address = QString::fromUtf8(address);
    server.user = QString::fromUtf8(user);
    server.encryption = host::Encryption::Required;
    return server;
}

const char *password(const char *, http_t *, const char *, const char *, void *data)
{
    return static_cast<const char *>(data);
}

/// What libcups would send for the calling thread; empty when it has none.
QByteArray passwordOfThread()
{
    // Without a time to connect in, it is not connected.
    const host::HttpPointer http(
        httpConnect2("127.0.0.1", 1, nullptr, AF_INET, HTTP_ENCRYPTION_IF_REQUESTED, 1, 0, nullptr));
    EXPECT_TRUE(http);
    return cupsGetPassword2("Password?", http.get(), "POST", "/");
}

TEST(CupsThreadScopeTest, EndsWithTheSettingsThatWereThereBefore)
{
    const QByteArray server = cupsServer();
    const QByteArray user = cupsUser();
    const http_encryption_t encryption = cupsEncryption();
    {
        char given[] = "outer";
        CupsThreadScope outer(serverOf("outer.example", "anna"), password, given);
        outer.setUser("berta");
        {
            const CupsThreadScope inner(serverOf("inner.example", "carla"));
            EXPECT_STREQ(cupsServer(), "inner.example");
            EXPECT_STREQ(cupsUser(), "carla");
            EXPECT_EQ(passwordOfThread(), QByteArray());
        }
        EXPECT_STREQ(cupsServer(), "outer.example");
        EXPECT_STREQ(cupsUser(), "berta");
        EXPECT_EQ(cupsEncryption(), HTTP_ENCRYPTION_REQUIRED);
        EXPECT_EQ(passwordOfThread(), "outer");
    }
    EXPECT_EQ(cupsServer(), server);
    EXPECT_EQ(cupsUser(), user);
    EXPECT_EQ(cupsEncryption(), encryption);
    EXPECT_EQ(passwordOfThread(), QByteArray());
}

/// A connection that takes the place of another is made before that one is destroyed.
TEST(CupsThreadScopeTest, TheNewerOneHoldsWhenAnOlderOneEndsFirst)
{
    auto older = std::make_unique<CupsThreadScope>(serverOf("older.example", "anna"));
    const CupsThreadScope newer(serverOf("newer.example", "berta"));
    older.reset();
    EXPECT_STREQ(cupsServer(), "newer.example");
    EXPECT_STREQ(cupsUser(), "berta");
}

} // namespace
