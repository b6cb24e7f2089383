// SPDX-License-Identifier: Apache-2.0
#include <host/cups/server/HostLookup.h>
#include <host/cups/server/ServerAddresses.h>
#include <tests/support/Waiting.h>

#include <gtest/gtest.h>

#include <array>

using host::BackgroundTask;
using host::HostLookup;
using host::ServerAddresses;

namespace {

/// Returns the addresses in their order: "ADDRESS:PORT" in the notation of libcups, or the path of a socket.
QByteArrayList addressesOf(const QByteArray &name, int port)
{
    const BackgroundTask task;
    auto addresses = ServerAddresses::find(name, port, test_support::failureTimeout, task);
    QByteArrayList all;
    for (http_addrlist_t *each = addresses ? addresses.value().list() : nullptr; each; each = each->next) {
        std::array<char, HTTP_MAX_HOST> text = {};
        httpAddrString(&each->addr, text.data(), static_cast<int>(text.size()));
        const bool isPath = httpAddrFamily(&each->addr) == AF_LOCAL;
        all.append(isPath ? QByteArray(text.data())
                          : text.data() + (':' + QByteArray::number(httpAddrPort(&each->addr))));
    }
    return all;
}

} // namespace

TEST(ServerAddresses, OfWhatNeedsNoNameServer)
{
    struct Row {
        const char *host;
        const char *address;
    };
    const Row rows[] = {
        {"127.0.0.1", "127.0.0.1:8631"},
        {"192.0.2.7", "192.0.2.7:8631"},
        {"::1", "[v1.::1]:8631"},
        {"[::1]", "[v1.::1]:8631"},
        {"2001:db8::7", "[v1.2001:db8::7]:8631"},
        {"/run/no.sock", "/run/no.sock"},
    };
    for (const Row &row : rows)
        EXPECT_EQ(addressesOf(row.host, 8631), QByteArrayList{row.address}) << row.host;
    const QByteArrayList ofThisMachine = addressesOf("localhost", 8631);
    EXPECT_TRUE(ofThisMachine.contains("127.0.0.1:8631")) << ofThisMachine.join(' ').toStdString();
}

TEST(ServerAddresses, AnUnknownHostHasASystemMessage)
{
    const BackgroundTask task;
    const auto addresses = ServerAddresses::find("host.invalid", 631, test_support::failureTimeout, task);
    ASSERT_FALSE(addresses);
    EXPECT_EQ(addresses.error().kind, ServerAddresses::ErrorKind::Unknown);
    EXPECT_FALSE(addresses.error().message.isEmpty());
}

TEST(HostLookup, FindsTheAddressesOfAName)
{
    const auto answer = HostLookup::find("localhost", test_support::failureTimeout);
    ASSERT_TRUE(answer);
    EXPECT_TRUE(answer->addresses());
    EXPECT_FALSE(answer->error());
    EXPECT_TRUE(answer->canonicalName());
}
