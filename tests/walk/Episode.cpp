// SPDX-License-Identifier: Apache-2.0
#include "Episode.h"

#include <tests/support/PpdBuilder.h>

#include <QJsonDocument>

namespace walk {

namespace {

test_support::PpdOptionLines linesFor(const model::OptionDescription &option)
{
    test_support::PpdOptionLines lines;
    lines.keyword = option.keyword.toUtf8();
    lines.text = option.text.toUtf8();
    for (const auto &choice : option.choices)
        lines.choices.push_back({choice.keyword.toUtf8(), choice.text.toUtf8()});
    if (option.defaultChoice)
        lines.defaultChoice = option.defaultChoice->toUtf8();
    return lines;
}

} // namespace

QByteArray ppdOf(const model::PrinterDescription &printer)
{
    test_support::PpdBuilder builder;
    builder.noPapers();
    for (const auto &paper : printer.papers)
        builder.paper(paper.toUtf8(), 68, 100);
    for (const auto &option : printer.options) {
        builder.option(linesFor(option));
        if (option.text.isEmpty())
            builder.emptyText(option.keyword.toUtf8());
    }
    if (printer.tapeType)
        builder.attribute("KvTapeType", printer.tapeType->toUtf8());
    if (printer.autoCutObjHidden)
        builder.autoCutObjHidden(printer.autoCutObjHidden->toUtf8());
    return builder.ppd();
}

QByteArray linesOf(const Episode &episode, const QString &ppdPath)
{
    QByteArray lines;
    for (auto request : episode.requests) {
        if (request.value("op") == "open")
            request["ppd"] = ppdPath;
        lines += QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n';
    }
    return lines + "{\"op\":\"state\"}\n";
}

} // namespace walk
