// SPDX-License-Identifier: Apache-2.0
// How fast the print dialog opens, and how much memory it takes, side by side with other dialogs on the same
// queue. bench/README.md describes what is measured and how.
#include "DisplayServer.h"
#include "Measurement.h"
#include "Report.h"
#include "ServerProxy.h"

#include <tests/support/PrivateCupsd.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cstdio>

using bench::Measurement;
using bench::ServerProxy;
using test_support::PrivateCupsd;

namespace {

constexpr std::chrono::milliseconds lateness{500};

QString queue()
{
    return QStringLiteral("labels");
}

/// The same queue's PPD without the options that the panel shows.
QString plainQueue()
{
    return QStringLiteral("plain");
}

QByteArray read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

QByteArray samplePpd()
{
    return read(QStringLiteral(KV_SOURCE_DIR "/resources/ppd/kvelland-lx900.ppd"));
}

QByteArray plainPpd()
{
    static const QRegularExpression keyword(QStringLiteral("\\bKv(?=[A-Z])"));
    return QString::fromUtf8(samplePpd()).replace(keyword, QStringLiteral("Zz")).toUtf8();
}

QByteArray address(quint16 port)
{
    return "127.0.0.1:" + QByteArray::number(port);
}

struct Settings {
    int runs = 20;
    int queues = 1000;
    QString kvprint;
    QString json;
    QString pictures;
};

Settings readArguments()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Measures how fast print dialogs open."));
    const auto option = [&parser](const char *name, const char *value, const char *words,
                                  const char *preset) {
        const QCommandLineOption made{QString::fromLatin1(name), QString::fromLatin1(words),
                                      QString::fromLatin1(value), QString::fromLatin1(preset)};
        parser.addOption(made);
        return made;
    };
    const auto runs = option("runs", "number", "How often each program is opened.", "20");
    const auto queues = option("queues", "number", "How many queues the large server has; 0: none.", "1000");
    const auto kvprint = option("kvprint", "path", "The kvprint to measure.", KV_PROGRAMS "/kvprint");
    const auto json = option("json", "file", "Write the results there as JSON too.", "");
    const auto pictures = option("pictures", "folder", "Keep pictures of the windows there.", "");
    parser.addHelpOption();
    parser.process(*QCoreApplication::instance());
    return {parser.value(runs).toInt(), parser.value(queues).toInt(), parser.value(kvprint),
            parser.value(json), parser.value(pictures)};
}

/// The servers, the display and the programs of one bench.
class Bench {
public:
    explicit Bench(Settings settings);

    std::vector<Measurement> &measure();

private:
    void addQueues();
    void prepareKvprint();
    void planFast(const QByteArray &server, int queues);
    void planSlow();
    void planSilent();
    void planEmptyCache();
    Measurement &plan(const QString &program, const char *conditions, const QByteArray &server,
                      int queues = 1);
    QStringList kvprintCommand(const QString &destination) const;
    QImage picture(const char *name, const QString &destination, bool hasEmptyCache = false);

    Settings m_settings;
    PrivateCupsd m_cupsd;
    PrivateCupsd m_largeCupsd;
    ServerProxy m_slow{m_cupsd.port(), lateness};
    ServerProxy m_silent{m_cupsd.port()};
    bench::DisplayServer m_display;
    bench::WindowWatch m_watch{m_display.name()};
    QTemporaryDir m_home;
    bench::Measurer m_measurer{m_watch, m_display.name(), m_home.path()};
    QHash<QString, QStringList> m_commands;
    QImage m_complete;
    QImage m_completeAtLast;
    std::vector<Measurement> m_measurements;
};

Bench::Bench(Settings settings)
    : m_settings(std::move(settings))
{
    if (!m_watch.isValid())
        qFatal("Xvfb does not start, or without its DAMAGE extension");
    const QString programs = QStringLiteral(KV_BENCH_PROGRAMS "/");
    m_commands.insert(QStringLiteral("bare"), {programs + QStringLiteral("open_bare_window")});
    m_commands.insert(QStringLiteral("Qt"), {programs + QStringLiteral("open_qt_dialog"), queue()});
    if (QFileInfo::exists(programs + QStringLiteral("open_gtk_dialog")))
        m_commands.insert(QStringLiteral("GTK"), {programs + QStringLiteral("open_gtk_dialog"), queue()});
    m_commands.insert(QStringLiteral("kvprint"), kvprintCommand(queue()));
    addQueues();
    prepareKvprint();
    planFast(address(m_cupsd.port()), 1);
    if (m_settings.queues > 1)
        planFast(address(m_largeCupsd.port()), m_settings.queues);
    planSlow();
    planSilent();
    planEmptyCache();
}

QStringList Bench::kvprintCommand(const QString &destination) const
{
    return {m_settings.kvprint, QStringLiteral("-d"), destination,
            QStringLiteral(KV_SOURCE_DIR "/resources/documents/labels.pdf")};
}

void Bench::addQueues()
{
    m_cupsd.addQueue(queue(), samplePpd());
    for (int number = 1; number < m_settings.queues; ++number)
        m_largeCupsd.addRawQueue(QStringLiteral("queue%1").arg(number, 4, 10, QLatin1Char('0')));
    m_largeCupsd.addQueue(queue(), samplePpd());
}

QImage Bench::picture(const char *name, const QString &destination, bool hasEmptyCache)
{
    const QByteArray server = address(m_cupsd.port());
    if (!hasEmptyCache && !m_measurer.fillCache(kvprintCommand(destination), server))
        qFatal("kvprint keeps nothing of the queue %s", qPrintable(destination));
    QImage shown = m_measurer.settledPicture(kvprintCommand(destination), server, hasEmptyCache);
    if (shown.isNull())
        qFatal("kvprint opens no window");
    if (!m_settings.pictures.isEmpty()) {
        QDir().mkpath(m_settings.pictures);
        shown.save(m_settings.pictures + u'/' + QLatin1String(name) + QStringLiteral(".png"));
    }
    return shown;
}

void Bench::prepareKvprint()
{
    // The other window proves that the pictures differ when the panel is missing.
    m_cupsd.addQueue(plainQueue(), plainPpd());
    const QImage plain = picture("without-panel", plainQueue());
    m_cupsd.removeQueue(plainQueue());
    m_complete = picture("with-panel", queue());
    // A window that was opened before the printer was known may have another size.
    m_completeAtLast = picture("first-time", queue(), true);
    if (bench::difference(plain, m_complete) < 0.06)
        qFatal("kvprint shows no panel for the sample's queue");
    for (const quint16 port : {m_largeCupsd.port(), m_slow.port(), m_silent.port()}) {
        if (!m_measurer.fillCache(kvprintCommand(queue()), address(port)))
            qFatal("kvprint keeps nothing of a server");
    }
    m_slow.setManner(ServerProxy::Manner::Slow);
    m_silent.setManner(ServerProxy::Manner::Silent);
}

Measurement &Bench::plan(const QString &program, const char *conditions, const QByteArray &server, int queues)
{
    Measurement measurement;
    measurement.program = program;
    measurement.conditions = QLatin1String(conditions);
    measurement.queues = queues;
    measurement.command = m_commands.value(program);
    measurement.server = server;
    measurement.runs = m_settings.runs;
    if (program == QStringLiteral("kvprint"))
        measurement.complete = m_complete;
    return m_measurements.emplace_back(std::move(measurement));
}

void Bench::planFast(const QByteArray &server, int queues)
{
    for (const char *program : {"bare", "Qt", "GTK", "kvprint"}) {
        const bool needsServer = program != std::string_view("bare");
        if (m_commands.contains(QLatin1String(program)) && (needsServer || queues == 1))
            plan(QLatin1String(program), "fast", server, queues);
    }
}

void Bench::planSlow()
{
    const QByteArray server = address(m_slow.port());
    Measurement &qt = plan(QStringLiteral("Qt"), "slow", server);
    qt.runs = std::min(qt.runs, 3);
    qt.warmsUp = false;
    if (m_commands.contains(QStringLiteral("GTK")))
        plan(QStringLiteral("GTK"), "slow", server);
    plan(QStringLiteral("kvprint"), "slow", server);
}

void Bench::planSilent()
{
    const QByteArray server = address(m_silent.port());
    Measurement &qt = plan(QStringLiteral("Qt"), "silent", server);
    qt.runs = 1;
    qt.warmsUp = false;
    qt.timeout = std::chrono::seconds(20);
    if (m_commands.contains(QStringLiteral("GTK")))
        plan(QStringLiteral("GTK"), "silent", server);
    plan(QStringLiteral("kvprint"), "silent", server);
}

void Bench::planEmptyCache()
{
    Measurement &fast = plan(QStringLiteral("kvprint"), "fast, empty cache", address(m_cupsd.port()));
    fast.panelTimeout = std::chrono::seconds(5);
    fast.hasEmptyCache = true;
    fast.complete = m_completeAtLast;
    Measurement &silent = plan(QStringLiteral("kvprint"), "silent, empty cache", address(m_silent.port()));
    silent.hasEmptyCache = true;
    silent.complete = QImage();
}

std::vector<Measurement> &Bench::measure()
{
    // Interleaved, so that other load of the machine affects all measurements equally.
    for (int round = 0; round <= m_settings.runs; ++round) {
        for (Measurement &measurement : m_measurements) {
            const bool isWarmUp = round == 0;
            if (isWarmUp ? measurement.warmsUp : round <= measurement.runs)
                m_measurer.run(measurement, isWarmUp);
        }
        std::fprintf(stderr, "\rround %d of %d", round, m_settings.runs);
    }
    std::fputc('\n', stderr);
    return m_measurements;
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): running out of memory ends the program either way
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Settings settings = readArguments();
    Bench bench(settings);
    const bench::Report report(bench.measure());
    std::fputs(report.table().constData(), stdout);
    if (!settings.json.isEmpty()) {
        QFile file(settings.json);
        if (!file.open(QIODevice::WriteOnly) || file.write(report.json()) < 0)
            qFatal("cannot write %s", qPrintable(settings.json));
    }
    return report.isGood() ? 0 : 1;
}
