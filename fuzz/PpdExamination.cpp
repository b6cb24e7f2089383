// SPDX-License-Identifier: Apache-2.0
#include "PpdExamination.h"

#include "FuzzFile.h"

#include <host/cups/jobs/JobOptions.h>
#include <host/printer/Constraints.h>
#include <host/printer/PpdOptions.h>
#include <host/printer/PpdPaperSizes.h>

namespace {

void examinePapers(const host::PpdFile &ppd)
{
    for (const host::PpdPaper &paper : ppd.papers()) {
        if (!host::PpdPaperSizes::isUsable(paper.size))
            qFatal("a paper of %g x %g points", paper.size.width(), paper.size.height());
        const std::optional<host::PpdPaper> found = ppd.paper(paper.name);
        if (!found || found->size != paper.size)
            qFatal("the paper \"%s\" is not found by its name", paper.name.constData());
    }
    if (const auto limits = ppd.customLimits(); limits && limits->smallest.width() > limits->largest.width())
        qFatal("the smallest paper is wider than the widest");
    ppd.markedPaper();
    ppd.unusableSize("Custom.1x1");
}

void examineOption(host::PpdFile &ppd, const host::PpdOption &option)
{
    const host::PpdOptions options(ppd);
    const QString keyword = QString::fromUtf8(option.keyword);
    options.canBeChanged(option.keyword);
    for (const host::PpdChoice &choice : option.choices)
        ppd.choiceText(keyword, QString::fromUtf8(choice.name));
    if (!option.choices.empty())
        ppd.mark(keyword, QString::fromUtf8(option.choices.back().name));
    const std::vector<host::PpdParameter> parameters = options.parameters(option.keyword);
    for (const host::PpdParameter &parameter : parameters)
        if (parameter.isNumber() &&
            (parameter.number < parameter.minimum || parameter.number > parameter.maximum))
            qFatal("the parameter \"%s\" is outside its limits", parameter.name.constData());
    if (!parameters.empty())
        ppd.mark(keyword, QString::fromUtf8(host::customChoiceValue(parameters)));
    options.markedChoices(option.keyword);
}

void examineConflicts(const host::PpdFile &ppd)
{
    const host::Constraints constraints(ppd);
    const std::vector<host::Conflict> conflicts = constraints.conflicts();
    host::sentencesByKeyword(conflicts);
    if (const std::optional<host::Remedy> remedy = constraints.remedy()) {
        host::PpdChoices changes;
        for (const host::Remedy::Change &change : remedy->changes)
            changes.emplace_back(change.keyword, change.choice);
        if (!constraints.conflicts(changes).empty())
            qFatal("conflicts remain after %s", qPrintable(remedy->sentence()));
    }
}

} // namespace

void examinePpd(const QByteArray &text)
{
    auto opened = host::PpdFile::open(writeFuzzFile(QStringLiteral("printer.ppd"), text));
    if (!opened) {
        if (opened.error().message.isEmpty())
            qFatal("refused without a word");
        return;
    }
    host::PpdFile ppd = std::move(opened).value();
    ppd.printerName();
    for (const char *const language : {"de", "pt_BR"})
        ppd.localize(QString::fromLatin1(language));
    ppd.markDefaults();
    examinePapers(ppd);
    examineConflicts(ppd);
    const host::PpdOptions options(ppd);
    for (const host::PpdGroup &group : options.groups())
        for (const QByteArray &keyword : group.keywords)
            if (const std::optional<host::PpdOption> option = options.option(keyword))
                examineOption(ppd, *option);
    examineConflicts(ppd);
    host::makeJobOptions({}, &ppd, {}, {});
}
