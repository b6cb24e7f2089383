// SPDX-License-Identifier: Apache-2.0
#include "JobReport.h"

#include <host/cups/LpCommand.h>

#include <QCoreApplication>
#include <QJsonArray>

namespace host {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(host::JobReport)
};

QString originKey(Origin origin)
{
    switch (origin) {
    case Origin::Ppd:
        return QStringLiteral("ppd");
    case Origin::Queue:
        return QStringLiteral("queue");
    case Origin::UserDefault:
        return QStringLiteral("user-default");
    case Origin::Preset:
        return QStringLiteral("preset");
    case Origin::Panel:
        return QStringLiteral("panel");
    case Origin::You:
        return QStringLiteral("you");
    }
    return {};
}

QJsonArray documentsJson(const JobTicket &ticket)
{
    QJsonArray list;
    for (const JobDocument &document : ticket.documents)
        list.append(QJsonObject{{QStringLiteral("file"), document.shownName()},
                                {QStringLiteral("type"), QString::fromUtf8(document.format)}});
    return list;
}

QJsonArray optionsJson(const JobTicket &ticket)
{
    QJsonArray list;
    for (const JobOption &option : ticket.options)
        list.append(QJsonObject{{QStringLiteral("name"), QString::fromUtf8(option.name)},
                                {QStringLiteral("value"), QString::fromUtf8(option.value)},
                                {QStringLiteral("origin"), originKey(option.origin)},
                                {QStringLiteral("sent"), option.isSent}});
    return list;
}

} // namespace

QString ticketInPlainText(const CupsServer &server, const JobTicket &ticket,
                          const std::vector<Conflict> &conflicts)
{
    QString text = Text::tr("Job \"%1\" for \"%2\" on %3\n")
                       .arg(ticket.title, ticket.destination.name(), server.displayName());
    for (const JobDocument &document : ticket.documents)
        text += QStringLiteral("  %1\n").arg(document.shownName());
    text += Text::tr("Options that are sent:\n");
    for (const JobOption &option : ticket.options) {
        if (option.isSent)
            text += QStringLiteral("  %1=%2  (%3)\n")
                        .arg(QString::fromUtf8(option.name), QString::fromUtf8(option.value),
                             originText(option.origin));
    }
    for (const Conflict &conflict : conflicts)
        text += conflict.sentence() + u'\n';
    const LpCommand lp = lpCommand(server, ticket);
    text += lp.line + u'\n';
    return lp.differences.isEmpty() ? text : text + lp.differencesInWords() + u'\n';
}

QJsonObject ticketJson(const CupsServer &server, const JobTicket &ticket,
                       const std::vector<Conflict> &conflicts)
{
    QJsonArray sentences;
    for (const Conflict &conflict : conflicts)
        sentences.append(conflict.sentence());
    const LpCommand lp = lpCommand(server, ticket);
    return {{QStringLiteral("server"), server.displayName()},
            {QStringLiteral("destination"), ticket.destination.name()},
            {QStringLiteral("title"), ticket.title},
            {QStringLiteral("documents"), documentsJson(ticket)},
            {QStringLiteral("options"), optionsJson(ticket)},
            {QStringLiteral("conflicts"), sentences},
            {QStringLiteral("lp"), lp.line},
            {QStringLiteral("lpDifferences"), QJsonArray::fromStringList(lp.differences)}};
}

} // namespace host
