// SPDX-License-Identifier: Apache-2.0
#include "JobReport.h"

#include <host/base/Length.h>
#include <host/cups/jobs/LpCommand.h>
#include <host/documents/StandardInput.h>
#include <host/strip/CutPlanText.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>

#include <cmath>

namespace host {
inline namespace setup {

namespace {

struct JobReportText {
    Q_DECLARE_TR_FUNCTIONS(host::setup::JobReport)
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
    case Origin::Layout:
        return QStringLiteral("layout");
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

/// Returns the length in millimetres, rounded to hundredths.
double hundredths(Points length)
{
    return std::round(Millimetres(length).number() * 100.0) / 100.0;
}

/// Returns the paths of the documents; "-" for standard input.
QJsonArray documentPaths(const LabelDocument &document)
{
    QJsonArray documents;
    for (const DocumentFile &file : document.files())
        documents.append(file.name == standardInputName ? file.name
                                                        : QFileInfo(file.name).absoluteFilePath());
    return documents;
}

QJsonObject paperJson(const PpdPaper &paper)
{
    return {{"name", QString::fromUtf8(paper.name)},
            {"text", paper.text},
            {"width", hundredths(Points(paper.size.width()))},
            {"length", hundredths(Points(paper.size.height()))}};
}

/// A list, not an object: the paper first, then the choices in the order in which they were made.
QJsonArray choicesJson(const Ticket &ticket)
{
    QJsonArray choices;
    choices.append(QJsonObject{{"keyword", "PageSize"}, {"choice", QString::fromUtf8(ticket.paper->name)}});
    for (const JobChoice &choice : ticket.choices) {
        if (choice.name != "PageSize")
            choices.append(QJsonObject{{"keyword", QString::fromUtf8(choice.name)},
                                       {"choice", QString::fromUtf8(choice.value)}});
    }
    return choices;
}

} // namespace

QString ticketInPlainText(const CupsServer &server, const Ticket &whole,
                          const std::vector<PreflightNote> &notes)
{
    const JobTicket &ticket = whole.job;
    QString text = JobReportText::tr("Job \"%1\" for \"%2\" on %3\n")
                       .arg(ticket.title, ticket.destination.name(), server.displayName());
    for (const JobDocument &document : ticket.documents)
        text += QStringLiteral("  %1\n").arg(document.shownName());
    text += JobReportText::tr("Options that are sent:\n");
    for (const JobOption &option : ticket.options) {
        if (option.isSent)
            text += QStringLiteral("  %1=%2  (%3)\n")
                        .arg(QString::fromUtf8(option.name), QString::fromUtf8(option.value),
                             originText(option.origin));
    }
    for (const Conflict &conflict : whole.conflicts)
        text += conflict.sentence() + u'\n';
    for (const PreflightNote &note : notes)
        text += note.sentence + u'\n';
    const LpCommand lp = lpCommand(server, ticket);
    text += lp.line + u'\n';
    if (const std::optional<QString> differences = lp.differencesText())
        text += *differences + u'\n';
    return text;
}

QJsonObject ticketJson(const CupsServer &server, const Ticket &whole, const std::vector<PreflightNote> &notes)
{
    const JobTicket &ticket = whole.job;
    QJsonArray sentences;
    for (const Conflict &conflict : whole.conflicts)
        sentences.append(conflict.sentence());
    const LpCommand lp = lpCommand(server, ticket);
    return {{QStringLiteral("server"), server.displayName()},
            {QStringLiteral("destination"), ticket.destination.name()},
            {QStringLiteral("title"), ticket.title},
            {QStringLiteral("documents"), documentsJson(ticket)},
            {QStringLiteral("options"), optionsJson(ticket)},
            {QStringLiteral("conflicts"), sentences},
            {QStringLiteral("preflight"), preflightJson(notes)},
            {QStringLiteral("lp"), lp.line},
            {QStringLiteral("lpDifferences"), QJsonArray::fromStringList(lp.differences)}};
}

QJsonObject printedJobJson(const Ticket &ticket, const LabelDocument &document, const QString &ppdPath,
                           const CutPlan &plan)
{
    const QJsonArray documents = documentPaths(document);
    QJsonArray pages;
    for (const int page : ticket.pages.pages)
        pages.append(page + 1);
    return {{"printer", ticket.printer},         {"ppd", QFileInfo(ppdPath).absoluteFilePath()},
            {"document", documents.first()},     {"documents", documents},
            {"paper", paperJson(*ticket.paper)}, {"pages", pages},
            {"copies", ticket.pages.copies},     {"collate", ticket.pages.collate == Collate::Yes},
            {"options", choicesJson(ticket)},    {"plan", cutPlanJson(plan)}};
}

} // namespace setup
} // namespace host
