// SPDX-License-Identifier: Apache-2.0
#include "KvprintTest.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using test_support::RecordedDocument;

namespace {

QString queueOf(const Outcome &outcome)
{
    return QString::fromUtf8(outcome.out).section(u' ', 3, 3).section(u'-', 0, -2);
}

} // namespace

class KvprintDestinations : public KvprintTest {
protected:
    KvprintDestinations()
    {
        addSampleQueue(QStringLiteral("tape"), QStringLiteral("kvelland-lx900"));
        cupsd.addQueue(QStringLiteral("roll"), samplePpd(QStringLiteral("kvelland-dz500")));
    }

    void writeLpOptions(const QByteArray &lines) const
    {
        file(QStringLiteral("home/.cups/lpoptions"), lines);
    }

    Outcome printWith(const QString &variable, const QString &value) const
    {
        Kvprint program = kvprint;
        program.environment.insert(variable, value);
        return program.run({QStringLiteral("--no-dialog"), picture()});
    }
};

TEST_F(KvprintDestinations, AreFoundAsLpFindsThem)
{
    // Each way takes precedence over those before it.
    cupsd.run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("roll")});
    EXPECT_EQ(queueOf(print({})), QStringLiteral("roll"));
    writeLpOptions("Default tape KvMirror=ON\n");
    EXPECT_EQ(queueOf(print({})), QStringLiteral("tape"));
    EXPECT_EQ(queueOf(printWith(QStringLiteral("PRINTER"), QStringLiteral("roll"))), QStringLiteral("roll"));
    EXPECT_EQ(queueOf(printWith(QStringLiteral("PRINTER"), QStringLiteral("lp"))), QStringLiteral("tape"));
    kvprint.environment.insert(QStringLiteral("PRINTER"), QStringLiteral("tape"));
    EXPECT_EQ(queueOf(printWith(QStringLiteral("LPDEST"), QStringLiteral("roll"))), QStringLiteral("roll"));
    EXPECT_EQ(queueOf(print({QStringLiteral("-d"), QStringLiteral("roll")})), QStringLiteral("roll"));
    recorded(6);
}

TEST_F(KvprintDestinations, HaveAPaperOfTheirOwn)
{
    const QStringList words{QStringLiteral("-d"), QStringLiteral("tape")};
    cupsd.run(QStringLiteral("lpadmin"), {QStringLiteral("-p"), QStringLiteral("tape"), QStringLiteral("-o"),
                                          QStringLiteral("media-default=18x60mm")});
    EXPECT_EQ(printed(words).option("PageSize"), "18x60mm");
    writeLpOptions("Dest tape PageSize=24x60mm\n");
    EXPECT_EQ(printed(words).option("PageSize"), "24x60mm");
    writeLpOptions("Dest tape PageSize=Bogus\n");
    expectError(words + QStringList{picture()},
                {QStringLiteral("Bogus"), QStringLiteral("no paper"), QStringLiteral("lpoptions")});
    EXPECT_EQ(
        printed(words + QStringList{QStringLiteral("--paper"), QStringLiteral("24x60mm")}).option("PageSize"),
        "24x60mm");
}

TEST_F(KvprintDestinations, AreOnTheServerThatIsNamed)
{
    kvprint.environment.insert(QStringLiteral("CUPS_SERVER"), QStringLiteral("127.0.0.1:1"));
    EXPECT_EQ(print({QStringLiteral("-d"), QStringLiteral("tape")}).status, 1);
    EXPECT_EQ(
        queueOf(print({QStringLiteral("-h"), cupsd.address(), QStringLiteral("-d"), QStringLiteral("tape")})),
        QStringLiteral("tape"));
    kvprint.environment.remove(QStringLiteral("CUPS_SERVER"));
    file(QStringLiteral("home/.cups/client.conf"), "ServerName " + cupsd.address().toUtf8() + '\n');
    EXPECT_EQ(queueOf(print({QStringLiteral("-d"), QStringLiteral("tape")})), QStringLiteral("tape"));
    recorded(2);
}

TEST_F(KvprintDestinations, HaveInstancesWithOptionsOfTheirOwn)
{
    writeLpOptions("Dest tape PrintDensity=Light\nDest tape/jars KvMirror=ON PageSize=24x60mm\n"
                   "Dest tape/with-dashes PrintDensity=Dark\n");
    const struct {
        const char *destination;
        QStringList words;
        const char *option;
        const char *value;
    } rows[] = {
        {"tape", {}, "PrintDensity", "Light"},
        {"tape/jars", {}, "KvMirror", "ON"},
        {"tape/jars", {}, "PageSize", "24x60mm"},
        {"tape/jars", {QStringLiteral("-o"), QStringLiteral("KvMirror=OFF")}, "KvMirror", "OFF"},
        {"tape/jars", {QStringLiteral("--paper"), QStringLiteral("6x40mm")}, "PageSize", "6x40mm"},
        {"tape/with-dashes", {}, "PrintDensity", "Dark"},
    };
    for (const auto &row : rows) {
        const RecordedDocument job =
            printed(QStringList{QStringLiteral("-d"), QLatin1String(row.destination)} + row.words);
        EXPECT_EQ(job.option(row.option), row.value)
            << row.destination << ": " << job.optionText.toStdString();
    }
    EXPECT_TRUE(printed({QStringLiteral("-d"), QStringLiteral("tape/jars")}).option("PrintDensity").isNull());
    // An instance that does not exist stands for the queue itself, as with lp.
    EXPECT_EQ(queueOf(print({QStringLiteral("-d"), QStringLiteral("tape/none")})), QStringLiteral("tape"));
}

TEST_F(KvprintDestinations, MayBeClassesAndQueuesWithoutAPpd)
{
    cupsd.addClass(QStringLiteral("all"), {QStringLiteral("tape")});
    cupsd.addRawQueue(QStringLiteral("raw"));
    const Outcome inClass = print({QStringLiteral("-d"), QStringLiteral("all"), QStringLiteral("-o"),
                                   QStringLiteral("PrintDensity=Dark")});
    ASSERT_EQ(inClass.status, 0) << inClass;
    EXPECT_EQ(queueOf(inClass), QStringLiteral("all"));
    EXPECT_EQ(recorded(1).value(inClass.jobId()).option("PrintDensity"), "Dark");
    const Outcome raw =
        print({QStringLiteral("-d"), QStringLiteral("raw"), QStringLiteral("-o"),
               QStringLiteral("PageSize=Any Any=Thing"), QStringLiteral("-H"), QStringLiteral("hold")});
    ASSERT_EQ(raw.status, 0) << raw;
    EXPECT_EQ(jobAttributes(raw.jobId()).value("PageSize"), "Any");
    EXPECT_EQ(jobAttributes(raw.jobId()).value("Any"), "Thing");
}

TEST_F(KvprintDestinations, WithoutADefaultNothingIsPrintedAnywhere)
{
    // lp would not choose either.
    expectError({picture()}, {QStringLiteral("default")});
}

TEST_F(KvprintDestinations, AreListedWithAllTheirKeys)
{
    writeLpOptions("Dest tape/jars KvMirror=ON\n");
    cupsd.addClass(QStringLiteral("all"), {QStringLiteral("tape"), QStringLiteral("roll")});
    cupsd.run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("roll")});
    cupsd.pause(QStringLiteral("roll"), QStringLiteral("New \"roll\"\nneeded"));
    const Outcome outcome = kvprint.run({QStringLiteral("--list"), QStringLiteral("--json")});
    ASSERT_EQ(outcome.status, 0) << outcome;
    const QJsonArray list = QJsonDocument::fromJson(outcome.out).array();
    ASSERT_EQ(list.size(), 4) << outcome;
    QMap<QString, QJsonObject> byName;
    for (const auto &each : list) {
        const QStringList keys = each.toObject().keys();
        EXPECT_EQ(keys.join(u' '),
                  QStringLiteral("accepting class default description instance location "
                                 "makeAndModel members message name queue reasons state uri"));
        byName.insert(each[QStringLiteral("name")].toString(), each.toObject());
    }
    EXPECT_TRUE(byName[QStringLiteral("roll")][QStringLiteral("default")].toBool());
    EXPECT_EQ(byName[QStringLiteral("roll")][QStringLiteral("state")].toString(), QStringLiteral("paused"));
    EXPECT_EQ(byName[QStringLiteral("tape")][QStringLiteral("state")].toString(), QStringLiteral("ready"));
    EXPECT_EQ(byName[QStringLiteral("tape/jars")][QStringLiteral("instance")].toString(),
              QStringLiteral("jars"));
    EXPECT_TRUE(byName[QStringLiteral("tape")][QStringLiteral("instance")].isNull());
    EXPECT_TRUE(byName[QStringLiteral("all")][QStringLiteral("class")].toBool());
    EXPECT_EQ(byName[QStringLiteral("all")][QStringLiteral("members")].toArray().size(), 2);

    const Outcome plain = kvprint.run({QStringLiteral("--list")});
    QStringList names;
    for (const QString &line : QString::fromUtf8(plain.out).split(u'\n', Qt::SkipEmptyParts)) {
        if (!line.startsWith(u' '))
            names.append(line.section(u' ', 0, 0));
    }
    names.sort();
    EXPECT_EQ(names, QStringList({QStringLiteral("all"), QStringLiteral("roll"), QStringLiteral("tape"),
                                  QStringLiteral("tape/jars")}))
        << plain;
}

TEST_F(KvprintTest, ListsNoQueue)
{
    const Outcome json = kvprint.run({QStringLiteral("--list"), QStringLiteral("--json")});
    EXPECT_EQ(json.status, 0) << json;
    EXPECT_TRUE(QJsonDocument::fromJson(json.out).isArray()) << json;
    EXPECT_TRUE(QJsonDocument::fromJson(json.out).array().isEmpty()) << json;
    const Outcome plain = kvprint.run({QStringLiteral("--list")});
    EXPECT_EQ(plain.status, 0) << plain;
    EXPECT_EQ(plain.out, QByteArray());
}

TEST_F(KvprintTest, ListsAThousandQueues)
{
    // Written as the server keeps them: a thousand calls of lpadmin would take minutes.
    cupsd.kill();
    QByteArray queues;
    for (int i = 0; i < 1000; ++i) {
        const QByteArray name = "queue" + QByteArray::number(i);
        queues += "<Printer " + name + ">\nInfo Shelf " + QByteArray::number(i) +
                  "\nDeviceURI file:///dev/null\nState Idle\nAccepting Yes\n</Printer>\n";
    }
    QFile kept(cupsd.path(QStringLiteral("etc/printers.conf")));
    ASSERT_TRUE(kept.open(QIODevice::WriteOnly));
    kept.write(queues);
    kept.close();
    cupsd.restart();
    const Outcome json = kvprint.run({QStringLiteral("--list"), QStringLiteral("--json")});
    EXPECT_EQ(json.status, 0) << json.error.toStdString();
    EXPECT_EQ(QJsonDocument::fromJson(json.out).array().size(), 1000);
    EXPECT_EQ(kvprint.run({QStringLiteral("--list")}).out.count("\n    Shelf "), 1000);
}
