// SPDX-License-Identifier: Apache-2.0
#include "PrivateCupsd.h"

#include "Waiting.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QTcpSocket>
#include <QThread>

#include <cups/cups.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <ctime>
#include <grp.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace test_support {

namespace {

/// Polls in small steps for a condition that another process fulfills.
template<typename Condition>
bool poll(Condition condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > failureMilliseconds)
            return false;
        QThread::msleep(2);
    }
    return true;
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    EXPECT_EQ(file.write(content), content.size());
}

QByteArray read(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

/// The filter writes into a folder and renames it when it is complete, so that partial records are not read.
QByteArray filterScript(const QString &folder)
{
    return "#!/bin/sh\n"
           "folder=" +
           QFile::encodeName(folder) +
           "\n"
           "while [ -e \"$folder/media-empty\" ]; do\n"
           "    [ \"$told\" ] || echo 'STATE: +media-empty-error' >&2; told=1\n"
           "    sleep 0.02\n"
           "done\n"
           "[ \"$told\" ] && echo 'STATE: -media-empty-error' >&2\n"
           "out=$(mktemp -d \"$folder/records/.new.XXXXXX\")\n"
           "printf '%s' \"$1\" >\"$out/job\"; printf '%s' \"$2\" >\"$out/user\"; printf '%s' \"$3\" "
           ">\"$out/title\"\n"
           "printf '%s' \"$4\" >\"$out/copies\"; printf '%s' \"$5\" >\"$out/options\"\n"
           "cat ${6:+\"$6\"} >\"$out/content\"\n"
           "chmod -R a+rX \"$out\"; mv \"$out\" \"$folder/records/$(date +%s%N)\"\n";
}

QByteArray cupsFilesConf(const QString &folder)
{
    // A cupsd of an ordinary user runs its filters as that user, regardless of this setting.
    const bool isRoot = geteuid() == 0;
    const QByteArray user = isRoot ? "lp" : getpwuid(geteuid())->pw_name;
    const QByteArray group = isRoot ? "lp" : getgrgid(getegid())->gr_name;
    const QByteArray administrators = isRoot ? "root" : group;
    QByteArray text = "User " + user + "\nGroup " + group + "\nSystemGroup " + administrators +
                      "\nFileDevice Yes\nFatalErrors config\n";
    const std::pair<const char *, const char *> paths[] = {
        {"ServerRoot", "etc"},       {"RequestRoot", "spool"},  {"TempDir", "spool/tmp"},
        {"CacheDir", "cache"},       {"StateDir", "run"},       {"ServerKeychain", "etc/ssl"},
        {"AccessLog", "log/access"}, {"ErrorLog", "log/error"}, {"PageLog", "log/page"},
    };
    for (const auto &[keyword, name] : paths)
        text += QByteArray(keyword) + ' ' + QFile::encodeName(folder) + '/' + name + '\n';
    return text;
}

QByteArray cupsdConf(quint16 port)
{
    return "Listen 127.0.0.1:" + QByteArray::number(port) +
           "\nBrowsing Off\nDefaultAuthType None\nWebInterface No\nLogLevel debug\nMaxLogSize 0\n"
           "DirtyCleanInterval 0\nPreserveJobFiles Yes\nMultipleOperationTimeout 600\n"
           "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
           "<Location /admin>\nOrder allow,deny\nAllow all\n</Location>\n"
           "<Policy default>\nJobPrivateValues none\nSubscriptionPrivateValues none\n"
           "<Limit All>\nOrder deny,allow\nAllow all\n</Limit>\n</Policy>\n";
}

} // namespace

QByteArray RecordedDocument::option(const char *name) const
{
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(optionText.constData(), 0, &options);
    const QByteArray value = cupsGetOption(name, count, options);
    cupsFreeOptions(count, options);
    return value;
}

PrivateCupsd::PrivateCupsd()
    : m_folder(QDir::tempPath() + QStringLiteral("/cupsd-XXXXXX"))
{
    EXPECT_TRUE(m_folder.isValid()) << m_folder.errorString().toStdString();
    writeConfiguration();
    write(path(QStringLiteral("etc/cupsd.conf")), cupsdConf(port()));
    start();
    EXPECT_TRUE(isRunning()) << "cupsd does not start:\n" << log().toStdString();
}

PrivateCupsd::~PrivateCupsd()
{
    m_process.terminate();
    if (!m_process.waitForFinished(failureMilliseconds))
        kill();
}

void PrivateCupsd::writeConfiguration()
{
    for (const char *name : {"etc/ppd", "etc/ssl", "spool/tmp", "cache", "run", "log", "records"})
        EXPECT_TRUE(QDir().mkpath(path(QLatin1String(name))));
    write(path(QStringLiteral("etc/cups-files.conf")), cupsFilesConf(m_folder.path()));

    const QString filter = path(QStringLiteral("record"));
    write(filter, filterScript(m_folder.path()));
    // cupsd does not run a filter that users other than its owner may write.
    EXPECT_EQ(chmod(QFile::encodeName(filter).constData(), 0755), 0);
    // Filters run as another user than root's server: they need access to the folder to write their records.
    EXPECT_EQ(chmod(QFile::encodeName(m_folder.path()).constData(), 0755), 0);
    EXPECT_EQ(chmod(QFile::encodeName(path(QStringLiteral("records"))).constData(), 0777), 0);
}

void PrivateCupsd::start()
{
    const QString program = QStandardPaths::findExecutable(
        QStringLiteral("cupsd"), {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/local/sbin")});
    m_process.setChildProcessModifier([] {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        // See setSpoolFull(): writing fails, as on a full disk, and does not end the process by a signal.
        std::signal(SIGXFSZ, SIG_IGN);
    });
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.setStandardOutputFile(path(QStringLiteral("log/output")), QIODevice::Append);
    m_process.start(program,
                    {QStringLiteral("-f"), QStringLiteral("-c"), path(QStringLiteral("etc/cupsd.conf")),
                     QStringLiteral("-s"), path(QStringLiteral("etc/cups-files.conf"))});
    if (!waitUntilReady())
        kill();
}

bool PrivateCupsd::waitUntilReady()
{
    if (!m_process.waitForStarted(failureMilliseconds))
        return false;
    bool ready = false;
    return poll([&] {
               // Detects the end of the process; without an event loop QProcess does not.
               if (m_process.waitForFinished(0) || !isRunning())
                   return true;
               QTcpSocket socket;
               socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port());
               // The server listens before it is ready to answer.
               socket.write("GET / HTTP/1.0\r\n\r\n");
               ready = socket.waitForReadyRead(1000);
               return ready;
           }) &&
           ready;
}

void PrivateCupsd::configure(const QByteArray &lines)
{
    kill();
    write(path(QStringLiteral("etc/cupsd.conf")), cupsdConf(port()) + lines);
    restart();
}

void PrivateCupsd::configureForNetwork(const QString &host, const QByteArray &lines)
{
    m_networkName = host;
    configure("Listen " + host.toLatin1() + ':' + QByteArray::number(port()) + "\nServerName " +
              host.toLatin1() + "\nServerAlias *\n" + lines);
}

void PrivateCupsd::replaceCertificate()
{
    kill();
    QDir(path(QStringLiteral("etc/ssl"))).removeRecursively();
    QDir().mkpath(path(QStringLiteral("etc/ssl")));
    restart();
}

void PrivateCupsd::useExpiredCertificate()
{
    kill();
    const QString folder = path(QStringLiteral("etc/ssl"));
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    for (const char *const suffix : {".crt", ".key"})
        EXPECT_TRUE(QFile::copy(QStringLiteral(KV_TEST_DATA "/certificates/expired") + QLatin1String(suffix),
                                folder + u'/' + m_networkName + QLatin1String(suffix)));
    restart();
}

void PrivateCupsd::removeCertificate()
{
    write(path(QStringLiteral("etc/cups-files.conf")),
          cupsFilesConf(m_folder.path()) + "CreateSelfSignedCerts no\n");
    replaceCertificate();
}

QString PrivateCupsd::certificatePath() const
{
    return path(QStringLiteral("etc/ssl/%1.crt").arg(m_networkName));
}

void PrivateCupsd::kill()
{
    m_process.kill();
    m_process.waitForFinished(failureMilliseconds);
}

void PrivateCupsd::restart()
{
    start();
    EXPECT_TRUE(isRunning()) << log().toStdString();
}

void PrivateCupsd::addQueue(const QString &name, const QByteArray &ppd, const QStringList &arguments)
{
    QByteArray text;
    for (const QByteArray &line : ppd.split('\n')) {
        if (!line.startsWith("*cupsFilter"))
            text += line + '\n';
    }
    for (const char *type : {"application/pdf", "image/png", "image/jpeg", "text/plain"})
        text += QByteArray("*cupsFilter: \"") + type + " 0 " +
                QFile::encodeName(path(QStringLiteral("record"))) + "\"\n";
    const QString file = path(name + QStringLiteral(".new.ppd"));
    write(file, text);
    run(QStringLiteral("lpadmin"),
        QStringList{QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                    QStringLiteral("file:///dev/null"), QStringLiteral("-P"), file} +
            arguments);
    QFile::remove(file);
    m_configured[name] = std::time(nullptr);
}

void PrivateCupsd::replacePpd(const QString &name, const QByteArray &ppd)
{
    // The clock that cupsd and file dates use: it lags behind that of QDateTime by up to a tick.
    EXPECT_TRUE(poll([&] { return std::time(nullptr) > m_configured.value(name); }));
    addQueue(name, ppd);
}

void PrivateCupsd::addRawQueue(const QString &name)
{
    run(QStringLiteral("lpadmin"), {QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                                    QStringLiteral("file:///dev/null")});
}

void PrivateCupsd::addClass(const QString &name, const QStringList &members)
{
    for (const QString &member : members)
        run(QStringLiteral("lpadmin"), {QStringLiteral("-p"), member, QStringLiteral("-c"), name});
    run(QStringLiteral("cupsenable"), {name});
    run(QStringLiteral("cupsaccept"), {name});
}

void PrivateCupsd::removeQueue(const QString &name)
{
    run(QStringLiteral("lpadmin"), {QStringLiteral("-x"), name});
}

void PrivateCupsd::pause(const QString &name, const QString &reason)
{
    run(QStringLiteral("cupsdisable"), {QStringLiteral("-r"), reason, name});
}

void PrivateCupsd::resume(const QString &name)
{
    run(QStringLiteral("cupsenable"), {name});
}

void PrivateCupsd::reject(const QString &name, const QString &reason)
{
    run(QStringLiteral("cupsreject"), {QStringLiteral("-r"), reason, name});
}

void PrivateCupsd::setMediaEmpty(bool empty)
{
    const QString file = path(QStringLiteral("media-empty"));
    if (empty)
        write(file, {});
    else
        QFile::remove(file);
}

void PrivateCupsd::setSpoolFull(bool full)
{
    constexpr rlim_t fullAt = 400'000;
    const rlimit limit{full ? fullAt : RLIM_INFINITY, RLIM_INFINITY};
    EXPECT_EQ(prlimit(static_cast<pid_t>(m_process.processId()), RLIMIT_FSIZE, &limit, nullptr), 0);
}

std::vector<RecordedDocument> PrivateCupsd::documents() const
{
    std::vector<RecordedDocument> documents;
    const QString records = path(QStringLiteral("records"));
    // Unfinished records are hidden folders.
    for (const QString &name : QDir(records).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QString folder = records + u'/' + name + u'/';
        documents.push_back(
            {read(folder + QStringLiteral("job")).toInt(), read(folder + QStringLiteral("user")),
             read(folder + QStringLiteral("title")), read(folder + QStringLiteral("copies")),
             read(folder + QStringLiteral("options")), read(folder + QStringLiteral("content"))});
    }
    return documents;
}

void PrivateCupsd::clearDocuments()
{
    const QDir records(path(QStringLiteral("records")));
    for (const QString &name : records.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        EXPECT_TRUE(QDir(records.filePath(name)).removeRecursively());
}

std::vector<RecordedDocument> PrivateCupsd::waitForDocuments(std::size_t count)
{
    // Only counts the records: reading all of them repeatedly would take longer than printing.
    const QDir records(path(QStringLiteral("records")));
    const auto known = [&] { return records.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(); };
    EXPECT_TRUE(poll([&] { return static_cast<std::size_t>(known()) >= count; }))
        << "the filter was given too few documents:\n"
        << log().toStdString();
    std::vector<RecordedDocument> all = documents();
    EXPECT_EQ(all.size(), count);
    // Callers read the last documents; if they are missing, callers read empty ones and fail.
    all.resize(std::max(all.size(), count));
    return all;
}

QByteArray PrivateCupsd::run(const QString &program, const QStringList &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CUPS_SERVER"), address());
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    process.setProcessEnvironment(environment);
    QString found = QStandardPaths::findExecutable(program);
    if (found.isEmpty())
        found = QStringLiteral("/usr/sbin/") + program;
    process.start(found, arguments);
    EXPECT_TRUE(process.waitForFinished(failureMilliseconds)) << qPrintable(program);
    EXPECT_EQ(process.exitCode(), 0) << qPrintable(program + u' ' + arguments.join(u' ')) << "\n"
                                     << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

QByteArray PrivateCupsd::log() const
{
    QByteArray text;
    for (const char *name : {"log/output", "log/error"}) {
        QFile file(path(QLatin1String(name)));
        if (file.open(QIODevice::ReadOnly))
            text += file.readAll().right(4000);
    }
    return text;
}

} // namespace test_support
