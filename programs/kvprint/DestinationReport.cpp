// SPDX-License-Identifier: Apache-2.0
#include "DestinationReport.h"

#include <host/cups/queues/QueueText.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace programs {
inline namespace kvprint {

namespace {

struct DestinationReportText {
    Q_DECLARE_TR_FUNCTIONS(programs::kvprint::DestinationReport)
};

QString stateKeyword(host::QueueState state)
{
    switch (state) {
    case host::QueueState::Ready:
        return QStringLiteral("ready");
    case host::QueueState::Printing:
        return QStringLiteral("printing");
    case host::QueueState::Paused:
        return QStringLiteral("paused");
    case host::QueueState::Unknown:
        break;
    }
    return QStringLiteral("unknown");
}

/// Returns the text in one line: texts of a server may contain line ends, and each further line would look
/// like a name.
QString line(const QString &text)
{
    return QStringLiteral("    ") + text.simplified() + u'\n';
}

QString plainText(const host::Destination &destination)
{
    QString text = destination.name();
    if (destination.isDefault)
        text += u' ' + DestinationReportText::tr("(default)");
    text += u'\n';
    QStringList about;
    for (const QString &part : {destination.description, destination.location}) {
        if (!part.trimmed().isEmpty() && part != destination.queue)
            about.append(part);
    }
    if (!about.isEmpty())
        text += line(about.join(QStringLiteral(", ")));
    if (destination.isClass)
        text += line(
            DestinationReportText::tr("Class of: %1").arg(destination.members.join(QStringLiteral(", "))));
    return text + line(queueSentences(destination).join(u' '));
}

QJsonObject jsonObject(const host::Destination &destination)
{
    const auto key = [](const char *name) { return QString::fromLatin1(name); };
    return {
        {key("name"), destination.name()},
        {key("queue"), destination.queue},
        {key("instance"), destination.instance ? QJsonValue(*destination.instance) : QJsonValue()},
        {key("description"), destination.description},
        {key("location"), destination.location},
        {key("makeAndModel"), destination.makeAndModel},
        {key("uri"), destination.deviceUri},
        {key("class"), destination.isClass},
        {key("members"), QJsonArray::fromStringList(destination.members)},
        {key("default"), destination.isDefault},
        {key("accepting"), destination.acceptsJobs},
        {key("state"), stateKeyword(destination.state)},
        {key("reasons"), QJsonArray::fromStringList(destination.stateReasons)},
        {key("message"), destination.stateMessage},
    };
}

} // namespace

QString destinationsInPlainText(const std::vector<host::Destination> &destinations)
{
    QString text;
    for (const host::Destination &destination : destinations)
        text += plainText(destination);
    return text;
}

QByteArray destinationsAsJson(const std::vector<host::Destination> &destinations)
{
    QJsonArray array;
    for (const host::Destination &destination : destinations)
        array.append(jsonObject(destination));
    return QJsonDocument(array).toJson();
}

} // namespace kvprint
} // namespace programs
