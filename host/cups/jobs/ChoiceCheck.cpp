// SPDX-License-Identifier: Apache-2.0
#include "ChoiceCheck.h"

#include "CustomChoiceCheck.h"

#include <host/printer/PpdOptions.h>

#include <QCoreApplication>

#include <algorithm>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

struct ChoiceCheckText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::jobs::ChoiceCheck)
};

// The options of the print server and its filters in addition to the printer's, from lp(1) and the
// documentation of the filters.
constexpr const char *serverOptions[] = {
    "blackplot",
    "brightness",
    "collate",
    "columns",
    "copies",
    "cpi",
    "document-format",
    "finishings",
    "fit-to-page",
    "fitplot",
    "gamma",
    "hue",
    "ipp-attribute-fidelity",
    "job-account-id",
    "job-accounting-user-id",
    "job-billing",
    "job-cancel-after",
    "job-hold-until",
    "job-name",
    "job-priority",
    "job-sheets",
    "landscape",
    "lpi",
    "media",
    "media-col",
    "media-source",
    "media-type",
    "mirror",
    "multiple-document-handling",
    "natural-scaling",
    "notify-events",
    "notify-recipient-uri",
    "number-up",
    "number-up-layout",
    "orientation-requested",
    "output-bin",
    "outputorder",
    "page-border",
    "page-bottom",
    "page-delivery",
    "page-label",
    "page-left",
    "page-ranges",
    "page-right",
    "page-set",
    "page-top",
    "penwidth",
    "position",
    "ppi",
    "prettyprint",
    "print-color-mode",
    "print-content-optimize",
    "print-quality",
    "print-rendering-intent",
    "print-scaling",
    "printer-resolution",
    "raw",
    "resolution",
    "saturation",
    "scaling",
    "sides",
    "wrap",
};

bool isServerOption(const QByteArray &name)
{
    return std::find(std::begin(serverOptions), std::end(serverOptions), name) != std::end(serverOptions);
}

QString choiceList(const PpdOption &option)
{
    // A longer list would not be readable.
    constexpr qsizetype maxChoices = 12;
    QStringList names;
    for (const PpdChoice &choice : option.choices)
        names.append(QString::fromUtf8(choice.name));
    if (option.customText)
        names.append(QLatin1String(customChoiceName) + QStringLiteral(".…"));
    if (names.size() > maxChoices)
        names = names.first(maxChoices) << QStringLiteral("…");
    return names.join(QStringLiteral(", "));
}

ChoiceError unusablePaper(const PpdFile &ppd, const QString &paper, const QSizeF &size)
{
    const QString text = ChoiceCheckText::tr(
        "The printer \"%1\" cannot print on the paper \"%2\": its size is %3 \u00d7 %4 points; width and "
        "length must be greater than 0, one of them at most %5 m, the other at most %6 m.");
    return {ChoiceErrorKind::UnusablePaper,
            text.arg(ppd.printerName(), paper, QString::number(size.width()), QString::number(size.height()),
                     QString::number(PpdPaperSizes::maxShortSide.number()),
                     QString::number(PpdPaperSizes::maxLongSide.number()))};
}

} // namespace

Result<void, ChoiceError> checkChoice(const PpdFile &ppd, const JobChoice &choice)
{
    const QString name = QString::fromUtf8(choice.name);
    const QString value = QString::fromUtf8(choice.value);
    const std::optional<PpdOption> option = PpdOptions(ppd).option(choice.name);
    // libcups finds options case-insensitively; filters do not.
    if (!option || choice.name != option->keyword) {
        if (isServerOption(choice.name))
            return {};
        return ChoiceError{
            ChoiceErrorKind::UnknownOption,
            ChoiceCheckText::tr("The printer \"%1\" has no option \"%2\".").arg(ppd.printerName(), name)};
    }
    if (choice.name == "PageSize") {
        if (ppd.paper(choice.value))
            return {};
        if (const std::optional<QSizeF> size = ppd.unusableSize(choice.value))
            return unusablePaper(ppd, value, *size);
        return ChoiceError{
            ChoiceErrorKind::UnknownPaper,
            ChoiceCheckText::tr("The printer \"%1\" has no paper \"%2\".").arg(ppd.printerName(), value)};
    }
    const bool acceptsSeveral = option->kind == PpdOptionKind::PickMany;
    // An option with several choices may have none.
    if (acceptsSeveral && choice.value.isEmpty())
        return {};
    const QByteArrayList values = acceptsSeveral ? choice.value.split(',') : QByteArrayList{choice.value};
    const bool isKnown = std::ranges::all_of(values, [&](const QByteArray &each) {
        return std::ranges::find(option->choices, each, &PpdChoice::name) != option->choices.end();
    });
    if (isKnown || isCustomChoice(ppd, {choice.name, choice.value}))
        return {};
    return ChoiceError{
        ChoiceErrorKind::UnknownChoice,
        ChoiceCheckText::tr("The option \"%1\" of the printer \"%2\" has no choice \"%3\"; it has: %4")
            .arg(name, ppd.printerName(), value, choiceList(*option))};
}

CarriedChoices carryOverChoices(const std::vector<JobChoice> &choices, PpdFile &ppd)
{
    CarriedChoices carried;
    for (const JobChoice &choice : choices) {
        if (const Result<void, ChoiceError> checked = checkChoice(ppd, choice); !checked) {
            carried.lost.push_back(checked.error());
            continue;
        }
        carried.kept.push_back(choice);
        ppd.mark(QString::fromUtf8(choice.name), QString::fromUtf8(choice.value));
    }
    return carried;
}

} // namespace jobs
} // namespace cups
} // namespace host
