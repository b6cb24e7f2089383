// SPDX-License-Identifier: Apache-2.0
#include "JobOptions.h"

#include "Finishings.h"

#include <host/printer/PpdOptions.h>

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

struct JobOptionsText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::jobs::JobOptions)
};

/// Returns whether the option is another name for the paper, which could only contradict the exact one.
bool isOtherPaperOption(const QByteArray &name)
{
    return name == "media" || name == "PageRegion";
}

/// Returns whether the option is about the format, which is sent with each document.
bool isFormatOption(const QByteArray &name)
{
    return name == "raw" || name == "document-format";
}

/// Combines the layers of a job's options.
class Layers {
public:
    /// Sets an option of a layer that the server applies by itself.
    void setByServer(const QByteArray &name, const QByteArray &value, Origin origin)
    {
        JobOption &option = at(name);
        option.value = value;
        option.origin = origin;
        option.isSent = false;
    }
    /// Sets an option of a layer that the server does not know. An option that is sent stays so, because the
    /// server would otherwise apply the value below.
    void set(const QByteArray &name, const QByteArray &value, Origin origin)
    {
        const bool isNew = !has(name);
        JobOption &option = at(name);
        const bool isAlwaysSent = origin == Origin::UserDefault || origin == Origin::Panel;
        option.isSent =
            option.isSent || isNew || isAlwaysSent || option.value != value || name == paperKeyword;
        option.value = value;
        option.origin = origin;
    }
    void send(const QByteArray &name) { at(name).isSent = true; }
    std::vector<JobOption> take() && { return std::move(m_options); }
    bool has(const QByteArray &name) const { return m_positions.contains(name); }
    /// The option; null if no layer has it.
    const JobOption *find(const QByteArray &name) const
    {
        const auto found = m_positions.constFind(name);
        return found == m_positions.constEnd() ? nullptr : &m_options[*found];
    }

private:
    JobOption &at(const QByteArray &name)
    {
        const auto found = m_positions.constFind(name);
        if (found != m_positions.constEnd())
            return m_options[*found];
        m_positions.insert(name, m_options.size());
        return m_options.emplace_back(JobOption{name, {}, Origin::Ppd, false});
    }

    std::vector<JobOption> m_options;
    /// By name: a PPD may have thousands of options.
    QHash<QByteArray, std::size_t> m_positions;
};

void addPpdDefaults(Layers &layers, const PpdFile &ppd)
{
    const PpdOptions options(ppd);
    for (const PpdGroup &group : options.groups()) {
        for (const QByteArray &keyword : group.keywords) {
            if (!isOtherPaperOption(keyword))
                layers.setByServer(keyword, options.defaultChoice(keyword).value(), Origin::Ppd);
        }
    }
}

/// Returns the choices of the PPD that the default finishings stand for. Every queue reports "none" if
/// nothing else is set, also beside a default of its PPD option; that has no effect.
std::vector<NamedValue> defaultFinishings(const PpdFile &ppd, const std::vector<NamedValue> &options)
{
    const QByteArray *const finishings = findValue(options, finishingsName);
    if (!finishings || *finishings == QByteArray::number(noFinishing))
        return {};
    return choicesOfFinishings(ppd, *finishings);
}

/// Adds what the server applies to each job of the queue by itself.
void addServerDefaults(Layers &layers, const Destination &destination, const PpdFile *ppd)
{
    if (ppd)
        addPpdDefaults(layers, *ppd);
    for (const NamedValue &option : destination.queueOptions) {
        if (!isOtherPaperOption(option.name))
            layers.setByServer(option.name, option.value, Origin::Queue);
    }
    for (const auto &[name, value] :
         ppd ? defaultFinishings(*ppd, destination.queueOptions) : std::vector<NamedValue>())
        layers.setByServer(name, value, Origin::Queue);
}

/// Adds the finishings of IPP that the choices of the job stand for, if the job contains one of them.
void addFinishings(Layers &layers, const PpdFile &ppd)
{
    const std::vector<PpdFinishing> finishings = PpdOptions(ppd).finishings();
    std::optional<Origin> origin;
    for (const PpdFinishing &finishing : finishings) {
        for (const auto &[keyword, choice] : finishing.choices) {
            const JobOption *const option = layers.find(keyword);
            if (option && option->isSent)
                origin = option->origin;
        }
    }
    if (!origin)
        return;
    const QByteArray value = finishingsOf(finishings, [&](const QByteArray &keyword) {
        const JobOption *const option = layers.find(keyword);
        return option ? std::optional(option->value) : std::nullopt;
    });
    layers.set(finishingsName, value, *origin);
    layers.send(finishingsName);
}

} // namespace

QString originText(Origin origin)
{
    switch (origin) {
    case Origin::Ppd:
        return JobOptionsText::tr("printer default");
    case Origin::Queue:
        return JobOptionsText::tr("queue default");
    case Origin::UserDefault:
        return JobOptionsText::tr("your default (lpoptions)");
    case Origin::Preset:
        return JobOptionsText::tr("preset");
    case Origin::Panel:
        return JobOptionsText::tr("cut options");
    case Origin::You:
        return JobOptionsText::tr("set by you");
    case Origin::Layout:
        return JobOptionsText::tr("page layout");
    }
    return {};
}

void setJobChoice(std::vector<JobChoice> &choices, const JobChoice &choice)
{
    const bool isPanels = choice.isPanels || choice.origin == Origin::Panel;
    const auto known = std::ranges::find(choices, choice.name, &JobChoice::name);
    if (known == choices.end()) {
        choices.push_back({choice.name, choice.value, choice.origin, isPanels});
        return;
    }
    known->isPanels = known->isPanels || isPanels;
    if (known->value == choice.value)
        return;
    known->value = choice.value;
    known->origin = choice.origin;
}

std::vector<JobChoice> withFinishingsAsChoices(const PpdFile &ppd, const std::vector<JobChoice> &choices)
{
    const auto attribute = std::ranges::find(choices, QByteArray(finishingsName), &JobChoice::name);
    if (attribute == choices.end())
        return choices;
    const std::vector<NamedValue> meant = choicesOfFinishings(ppd, attribute->value);
    if (meant.empty())
        return choices;
    std::vector<JobChoice> replaced;
    for (const NamedValue &each : meant)
        setJobChoice(replaced, {each.name, each.value, attribute->origin});
    for (const JobChoice &choice : choices) {
        if (choice.name != finishingsName)
            setJobChoice(replaced, choice);
    }
    return replaced;
}

std::vector<JobOption> makeJobOptions(const Destination &destination, const PpdFile *ppd,
                                      const std::vector<JobChoice> &choices, const JobSettings &settings)
{
    Layers layers;
    addServerDefaults(layers, destination, ppd);
    const bool hasPaper = layers.has(paperKeyword);
    const auto paperOfQueue = hasPaper && ppd ? queuePaper(destination, *ppd) : std::nullopt;
    if (paperOfQueue)
        layers.setByServer(paperKeyword, *paperOfQueue, Origin::Queue);
    for (const NamedValue &option : destination.userOptions) {
        if (!isFormatOption(option.name) && (!hasPaper || !isOtherPaperOption(option.name)))
            layers.set(option.name, option.value, Origin::UserDefault);
    }
    for (const NamedValue &option :
         ppd ? defaultFinishings(*ppd, destination.userOptions) : std::vector<NamedValue>())
        layers.setByServer(option.name, option.value, Origin::UserDefault);
    for (const JobChoice &choice : choices) {
        layers.set(choice.name, choice.value, choice.origin);
        if (choice.isPanels)
            layers.send(choice.name);
    }
    const bool areFinishingsChosen =
        std::ranges::find(choices, QByteArray(finishingsName), &JobChoice::name) != choices.end();
    if (ppd && !areFinishingsChosen)
        addFinishings(layers, *ppd);
    for (const NamedValue &setting : settingValues(settings)) {
        // All pages are the default.
        const bool isDefaultRange = setting.value == "1-" && !layers.has(setting.name);
        if (!isDefaultRange)
            layers.set(setting.name, setting.value, Origin::You);
    }
    if (hasPaper)
        layers.send(paperKeyword);
    return std::move(layers).take();
}

std::optional<QByteArray> queuePaper(const Destination &destination, const PpdFile &ppd)
{
    for (const char *const name : {paperKeyword, "media"}) {
        const QByteArray *const paper = findValue(destination.queueOptions, name);
        if (paper && ppd.paper(*paper))
            return *paper;
    }
    return std::nullopt;
}

void markEffectiveDefaults(PpdFile &ppd, const Destination &destination)
{
    ppd.markDefaults();
    const auto markNamed = [&](const std::vector<NamedValue> &options) {
        for (const NamedValue &option : defaultFinishings(ppd, options))
            ppd.mark(QString::fromUtf8(option.name), QString::fromUtf8(option.value));
        for (const NamedValue &option : options) {
            const QString name = QString::fromUtf8(option.name);
            if (ppd.hasOption(name))
                ppd.mark(name, QString::fromUtf8(option.value));
        }
    };
    markNamed(destination.queueOptions);
    if (const std::optional<QByteArray> paper = queuePaper(destination, ppd))
        ppd.mark(QString::fromLatin1(paperKeyword), QString::fromUtf8(*paper));
    // Users may set "media" and "sides"; libcups finds the corresponding options of the PPD. This must not be
    // done for an IPP name in the queue's own "media": the server derives it from the PPD, and it may stand
    // for the other of two papers of the same size.
    std::vector<std::pair<QByteArray, QByteArray>> options;
    for (const NamedValue &option : destination.userOptions)
        options.emplace_back(option.name, option.value);
    ppd.markJobOptions(options);
    markNamed(destination.userOptions);
}

} // namespace jobs
} // namespace cups
} // namespace host
