// SPDX-License-Identifier: Apache-2.0
#include "ChoiceCheck.h"

#include "FreeChoiceCheck.h"

#include <host/PpdOptions.h>

#include <QCoreApplication>

#include <algorithm>

namespace host {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(host::ChoiceCheck)
};

// What the print server and its filters know beside the printer's options: lp(1) and the filters' documents.
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

/// The entry that stands for values of its own, and is no choice without one.
bool isFreeEntry(const PpdFile &ppd, const ppd_option_t &option, const char *choice)
{
    return qstrcmp(choice, PpdOptions::freeChoice) == 0 &&
           ppdFindCustomOption(ppd.handle(), option.keyword) != nullptr;
}

bool hasChoice(const PpdFile &ppd, const ppd_option_t &option, const QByteArray &wanted)
{
    return std::any_of(option.choices, option.choices + option.num_choices, [&](const ppd_choice_t &each) {
        return wanted == each.choice && !isFreeEntry(ppd, option, each.choice);
    });
}

QString choiceList(const PpdFile &ppd, const ppd_option_t &option)
{
    // A list that nobody would read helps nobody.
    constexpr int mostChoices = 12;
    QStringList names;
    for (int i = 0; i < qMin(option.num_choices, mostChoices); ++i)
        names.append(QString::fromUtf8(option.choices[i].choice) +
                     (isFreeEntry(ppd, option, option.choices[i].choice) ? QStringLiteral(".…") : QString()));
    if (option.num_choices > mostChoices)
        names.append(QStringLiteral("…"));
    return names.join(QStringLiteral(", "));
}

} // namespace

std::optional<ChoiceError> checkChoice(const PpdFile &ppd, const JobChoice &choice)
{
    const QString name = QString::fromUtf8(choice.name);
    const QString value = QString::fromUtf8(choice.value);
    ppd_option_t *const option = ppdFindOption(ppd.handle(), choice.name.constData());
    // libcups finds options in any case of letters; to filters they are others.
    if (!option || choice.name != option->keyword) {
        if (isServerOption(choice.name))
            return std::nullopt;
        return ChoiceError{ChoiceFailure::UnknownOption,
                           Text::tr("The printer \"%1\" has no option \"%2\".").arg(ppd.printerName(), name)};
    }
    if (choice.name == "PageSize") {
        if (ppd.paper(choice.value))
            return std::nullopt;
        return ChoiceError{ChoiceFailure::UnknownPaper,
                           Text::tr("The printer \"%1\" has no paper \"%2\".").arg(ppd.printerName(), value)};
    }
    const bool takesSeveral = option->ui == PPD_UI_PICKMANY;
    // Of several, none may be chosen.
    if (takesSeveral && choice.value.isEmpty())
        return std::nullopt;
    const QByteArrayList values = takesSeveral ? choice.value.split(',') : QByteArrayList{choice.value};
    const bool isKnown = std::all_of(values.begin(), values.end(),
                                     [&](const QByteArray &each) { return hasChoice(ppd, *option, each); });
    if (isKnown || isFreeChoice(ppd, {choice.name, choice.value}))
        return std::nullopt;
    return ChoiceError{ChoiceFailure::UnknownChoice,
                       Text::tr("The option \"%1\" of the printer \"%2\" has no choice \"%3\"; it has: %4")
                           .arg(name, ppd.printerName(), value, choiceList(ppd, *option))};
}

CarriedChoices carryOverChoices(const std::vector<JobChoice> &choices, PpdFile &ppd)
{
    CarriedChoices carried;
    for (const JobChoice &choice : choices) {
        if (const std::optional<ChoiceError> error = checkChoice(ppd, choice)) {
            carried.lost.push_back(*error);
            continue;
        }
        carried.kept.push_back(choice);
        ppd.mark(QString::fromUtf8(choice.name), QString::fromUtf8(choice.value));
    }
    return carried;
}

} // namespace host
