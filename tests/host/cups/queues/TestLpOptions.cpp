// SPDX-License-Identifier: Apache-2.0
#include <host/cups/queues/LpOptions.h>
#include <tests/samples/Sandbox.h>

#include <QDir>

#include <gtest/gtest.h>

using host::LpOptions;
using host::NamedValue;

namespace {

/// A home and a configuration of their own, each with an lpoptions file.
class LpOptionsTest : public testing::Test {
protected:
    LpOptionsTest()
    {
        for (const char *const name : {"HOME", "CUPS_SERVERROOT", "LPDEST", "PRINTER"}) {
            m_environment.emplace_back(name, qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name))
                                                                             : std::nullopt);
            qunsetenv(name);
        }
        QDir().mkpath(m_sandbox.path(QStringLiteral(".cups")));
        qputenv("HOME", QFile::encodeName(m_sandbox.path(QString())));
        qputenv("CUPS_SERVERROOT", QFile::encodeName(m_sandbox.path(QString())));
    }
    ~LpOptionsTest() override
    {
        for (const auto &[name, value] : m_environment) {
            if (value)
                qputenv(name, *value);
            else
                qunsetenv(name);
        }
    }

    LpOptions read(const QByteArray &users, const QByteArray &systems = {})
    {
        m_sandbox.write(QStringLiteral(".cups/lpoptions"), users);
        m_sandbox.write(QStringLiteral("lpoptions"), systems);
        return LpOptions::read();
    }

private:
    Sandbox m_sandbox;
    std::vector<std::pair<const char *, std::optional<QByteArray>>> m_environment;
};

const QString tapeQueue = QStringLiteral("tape");

} // namespace

TEST_F(LpOptionsTest, ReadsQueuesInstancesAndOptions)
{
    const std::pair<QByteArray, std::vector<NamedValue>> rows[] = {
        {"Dest tape a=1 b=2", {{"a", "1"}, {"b", "2"}}},
        {"dest tape a=1\n", {{"a", "1"}}},
        {"DEFAULT tape a=1\n", {{"a", "1"}}},
        {"  Dest   tape   a=1  \r\n", {{"a", "1"}}},
        {"Dest tape a='1 2' b=\"3 4\"\n", {{"a", "1 2"}, {"b", "3 4"}}},
        {"Dest tape a nob\n", {{"a", "true"}, {"b", "false"}}},
        {"Dest tape a=1 a=2\n", {{"a", "2"}}},
        {"Dest tape a=1\nDest tape a=2 b=3\n", {{"a", "2"}, {"b", "3"}}},
        {"Dest tape a=1\nDest tape\n", {{"a", "1"}}},
        {"Dest tape/long a=1\n", {}},
        {"Dest other a=1\n", {}},
        // Malformed lines are skipped, the others are read.
        {"\n \nDest\nDest \nDestination tape x=0\n# Dest tape a=0\ntape a=0\nDest tape a=1", {{"a", "1"}}},
        {QByteArray("\0\xFF\n=\nDest tape a=1\n", 20), {{"a", "1"}}},
        {"", {}},
    };
    for (const auto &[text, options] : rows)
        EXPECT_EQ(read(text).options(tapeQueue, std::nullopt), options) << text.constData();
}

TEST_F(LpOptionsTest, AnInstanceHasOptionsOfItsOwn)
{
    const LpOptions options = read("Dest tape a=1\nDest tape/long b=2\nDest tape/ c=3\n");
    EXPECT_EQ(options.options(tapeQueue, std::nullopt), (std::vector<NamedValue>{{"a", "1"}}));
    EXPECT_EQ(options.options(tapeQueue, QStringLiteral("long")), (std::vector<NamedValue>{{"b", "2"}}));
    EXPECT_EQ(options.options(tapeQueue, QStringLiteral("short")), std::vector<NamedValue>());
    ASSERT_FALSE(options.entries().empty());
    EXPECT_EQ(options.entries()[0].queue, tapeQueue);
}

TEST_F(LpOptionsTest, TheUsersFileReplacesSingleOptionsOfTheSystems)
{
    const LpOptions options = read("Dest tape b=3 c=4\n", "Dest tape a=1 b=2\n");
    EXPECT_EQ(options.options(tapeQueue, std::nullopt),
              (std::vector<NamedValue>{{"a", "1"}, {"b", "3"}, {"c", "4"}}));
}

TEST_F(LpOptionsTest, TheDefaultIsOfTheEnvironmentTheUserOrTheSystem)
{
    EXPECT_FALSE(read("Dest tape a=1\n").defaultName());
    EXPECT_EQ(read("", "Default tape\n").defaultName(), tapeQueue);
    EXPECT_EQ(read("Default tape/long a=1\n", "Default other\n").defaultName(), QStringLiteral("tape/long"));
    EXPECT_EQ(read("Default other\nDefault tape\n").defaultName(), tapeQueue);
    qputenv("PRINTER", "lp");
    EXPECT_EQ(read("Default tape\n").defaultName(), tapeQueue) << "lp stands for no printer";
    qputenv("PRINTER", "office");
    EXPECT_EQ(read("Default tape\n").defaultName(), QStringLiteral("office"));
    qputenv("LPDEST", "desk");
    EXPECT_EQ(read("Default tape\n").defaultName(), QStringLiteral("desk"));
}

TEST_F(LpOptionsTest, AFileThatIsMissingIsEmpty)
{
    qputenv("HOME", "/nonexistent");
    qputenv("CUPS_SERVERROOT", "/nonexistent");
    EXPECT_TRUE(LpOptions::read().entries().empty());
    EXPECT_FALSE(LpOptions::read().defaultName());
}
