// SPDX-License-Identifier: Apache-2.0
#include "WalkedServer.h"

#include "RollControls.h"

#include <QFile>

#include <tests/samples/OptionsPpd.h>
#include <tests/support/Waiting.h>

#include <gtest/gtest.h>

namespace dialogwalk {

namespace {

QByteArray samplePpd(const char *name)
{
    QFile file(QStringLiteral(KV_SOURCE_DIR "/resources/ppd/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// The description without the option, and under another name.
QByteArray without(QByteArray ppd, const QByteArray &keyword)
{
    const auto begin = ppd.indexOf("*OpenUI *" + keyword + '/');
    const QByteArray last = "*CloseUI: *" + keyword + '\n';
    EXPECT_GE(begin, 0) << keyword.constData();
    ppd.remove(begin, ppd.indexOf(last, begin) + last.size() - begin);
    return ppd.replace(", 1.0\"", ", 1.1\"");
}

/// The description without a default for the option, which is then marked by nothing but the panel.
QByteArray withoutDefault(QByteArray ppd, const QByteArray &keyword)
{
    const auto begin = ppd.indexOf("*Default" + keyword + ':');
    EXPECT_GE(begin, 0) << keyword.constData();
    return ppd.remove(begin, ppd.indexOf('\n', begin) + 1 - begin);
}

} // namespace

WalkedServer::WalkedServer()
{
    addQueue(QStringLiteral("lx"), samplePpd("kvelland-lx900.ppd"),
             without(samplePpd("kvelland-lx900.ppd"), "KvRemoveBlkSpace"));
    addQueue(QStringLiteral("dz"), samplePpd("kvelland-dz500.ppd"),
             without(samplePpd("kvelland-dz500.ppd"), "KvMirror"));
    addQueue(QStringLiteral("few"), samplePpd("kvelland-lx300.ppd"),
             without(samplePpd("kvelland-lx300.ppd"), "KvHalfCut"));
    addQueue(QStringLiteral("bare"), withoutDefault(samplePpd("kvelland-lx300.ppd"), "KvHalfCut"),
             without(withoutDefault(samplePpd("kvelland-lx300.ppd"), "KvHalfCut"), "KvMirror"));
    addQueue(QStringLiteral("plain"), optionsPpd(),
             without(optionsPpd(), "Twins").replace("Kvelland Options", "Kvelland Other"));
    const QByteArray both = samplePpd("kvelland-lx900.ppd") + RollControls::finishingLines();
    addQueue(QStringLiteral("both"), both, without(both, "CutMedia"));
    const QByteArray roll = optionsPpd() + RollControls::printModeLines();
    addQueue(QStringLiteral("roll"), roll,
             without(roll, "inCutInterval").replace("Kvelland Options", "Kvelland Other"));
    m_cupsd.addRawQueue(QStringLiteral("raw"));
    m_destinations.append(QStringLiteral("raw"));
    addInstance(QStringLiteral("lx/shelf"),
                {QStringLiteral("PageSize=12x50mm"), QStringLiteral("KvHalfCut=ON"),
                 QStringLiteral("KvMirror=ON"), QStringLiteral("copies=2")});
    addInstance(QStringLiteral("dz/desk"),
                {QStringLiteral("PageSize=DC29x90"), QStringLiteral("KvCutLabel=3")});
    const QString only = qEnvironmentVariable("KV_DIALOG_WALK_QUEUE");
    if (m_destinations.contains(only))
        m_destinations = {only};
}

void WalkedServer::addQueue(const QString &name, const QByteArray &ppd, const QByteArray &other)
{
    m_ppds[name] = {ppd, other};
    m_destinations.append(name);
    m_cupsd.addQueue(name, ppd);
}

void WalkedServer::addInstance(const QString &name, const QStringList &options)
{
    QStringList arguments{QStringLiteral("-p"), name};
    for (const QString &option : options)
        arguments += {QStringLiteral("-o"), option};
    m_cupsd.run(QStringLiteral("lpoptions"), arguments);
    m_destinations.append(name);
}

QByteArray WalkedServer::ppd(const QString &destination, int variant) const
{
    const auto found = m_ppds.find(destination.section(u'/', 0, 0));
    return found == m_ppds.end() ? QByteArray() : found->second[static_cast<std::size_t>(variant)];
}

int WalkedServer::variant(const QString &destination) const
{
    const auto found = m_variants.find(destination.section(u'/', 0, 0));
    return found == m_variants.end() ? 0 : found->second;
}

void WalkedServer::replacePpd(const QString &destination, int variant)
{
    const QString queue = destination.section(u'/', 0, 0);
    // A server begins the job of a queue that changes meanwhile anew: it would be recorded twice.
    EXPECT_TRUE(test_support::waitUntil([&] {
        return m_cupsd.run(QStringLiteral("lpstat"), {QStringLiteral("-o"), queue}).isEmpty();
    }));
    m_variants[queue] = variant;
    m_cupsd.addQueue(queue, ppd(queue));
}

void WalkedServer::setVariants(const std::map<QString, int> &variants)
{
    for (const auto &[queue, ppds] : m_ppds) {
        const auto wanted = variants.find(queue);
        const int number = wanted == variants.end() ? 0 : wanted->second;
        if (variant(queue) != number)
            replacePpd(queue, number);
    }
}

} // namespace dialogwalk
