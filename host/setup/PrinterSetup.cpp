// SPDX-License-Identifier: Apache-2.0
#include "PrinterSetup.h"

#include <QCoreApplication>
#include <QScopedValueRollback>

#include <algorithm>

namespace host {
inline namespace setup {

namespace {

struct PrinterSetupText {
    Q_DECLARE_TR_FUNCTIONS(host::setup::PrinterSetup)
};

platform::Paper panelPaper(const PpdPaper &paper)
{
    platform::Paper result;
    result.name = QString::fromUtf8(paper.name);
    result.height = paper.size.height();
    return result;
}

} // namespace

PrinterSetup::PrinterSetup(Destination destination, std::optional<PpdFile> ppd, const SetupRequest &requested,
                           PanelSource panelSource)
    : m_destination(std::move(destination))
    , m_panelSource(std::move(panelSource))
{
    if (!ppd) {
        // The capabilities of such a queue are not known, so everything is passed on.
        m_choices = requested.choices;
        if (requested.paper)
            record(paperKeyword, *requested.paper, Origin::You);
        return;
    }
    markEffectiveDefaults(*ppd, m_destination);
    if (!requested.language.isEmpty())
        ppd->localize(requested.language);
    m_state = std::make_shared<DialogState>(std::move(*ppd));
    if (!m_destination.deviceUri.isEmpty())
        m_state->setDeviceURI(m_destination.deviceUri);
    m_constraints.emplace(m_state->ppd());
    markRequested(requested);
    applyPaper(requested);
    if (requested.force)
        keepRejected(requested);
    loadPanels();
}

PrinterSetup::~PrinterSetup()
{
    setDidChangeHook({});
    setPanelFailedHook({});
    for (PanelHost *const host : panelHosts())
        host->setWillChangeHook({});
}

void PrinterSetup::markRequested(const SetupRequest &requested)
{
    std::vector<JobChoice> choices = requested.choices;
    std::erase_if(choices,
                  [](const JobChoice &requestedChoice) { return requestedChoice.name == paperKeyword; });
    CarriedChoices carried = carryOverChoices(choices, m_state->ppd());
    m_choices = std::move(carried.kept);
    m_choiceErrors = std::move(carried.lost);
    for (const JobChoice &requestedChoice : choices) {
        if (std::ranges::find(m_choices, requestedChoice.name, &JobChoice::name) == m_choices.end())
            m_rejectedChoices.push_back(requestedChoice);
    }
}

std::vector<JobChoice> PrinterSetup::choicesNow() const
{
    std::vector<JobChoice> all = m_choices;
    for (const auto &[keyword, choice] : m_panels ? m_panels->choicesToKeep() : PDEChoices()) {
        const auto known = std::ranges::find(all, keyword.toUtf8(), &JobChoice::name);
        const bool isRecordedOtherwise = known != all.end() && known->value != choice.toUtf8();
        if (isRecordedOtherwise || ppd().markedChoice(keyword) != choice)
            setJobChoice(all, {keyword.toUtf8(), choice.toUtf8(), Origin::Panel});
    }
    return all;
}

std::vector<JobChoice> PrinterSetup::choicesAndRejected() const
{
    std::vector<JobChoice> all = choicesNow();
    // Another setup, with another paper or PPD, may have them.
    for (const ReplacedChoice &each : m_panels ? m_panels->replaced() : std::vector<ReplacedChoice>())
        setJobChoice(all, {each.keyword.toUtf8(), each.choice.toUtf8(), Origin::Panel});
    for (const JobChoice &requestedChoice : m_rejectedChoices) {
        if (std::ranges::find(m_choices, requestedChoice.name, &JobChoice::name) == m_choices.end())
            all.push_back(requestedChoice);
    }
    return all;
}

std::optional<QByteArray> PrinterSetup::requestedPaper(const SetupRequest &requested)
{
    const auto chosen = std::ranges::find(requested.choices, QByteArray(paperKeyword), &JobChoice::name);
    const bool isAmongChoices = !requested.paper && chosen != requested.choices.end();
    return isAmongChoices ? chosen->value : requested.paper;
}

std::optional<QByteArray> PrinterSetup::missingUserPaper() const
{
    const QByteArray *const users = findValue(m_destination.userOptions, paperKeyword);
    const bool isMissing = users && m_state && !m_state->ppd().paper(*users);
    return isMissing ? std::optional(*users) : std::nullopt;
}

std::optional<PpdPaper> PrinterSetup::defaultPaper() const
{
    // The mark of a custom size does not contain its width and length, so the options are read first.
    const QByteArray *const users = findValue(m_destination.userOptions, paperKeyword);
    if (std::optional<PpdPaper> paper = users ? m_state->ppd().paper(*users) : std::nullopt)
        return paper;
    const bool isNamedOtherwise = findValue(m_destination.userOptions, "media") != nullptr ||
                                  findValue(m_destination.userOptions, "PageRegion") != nullptr;
    const std::optional<QByteArray> queues = queuePaper(m_destination, m_state->ppd());
    if (queues && !isNamedOtherwise)
        return m_state->ppd().paper(*queues);
    if (std::optional<PpdPaper> marked = m_state->ppd().markedPaper())
        return marked;
    if (const std::optional<QByteArray> name = PpdOptions(ppd()).defaultChoice(paperKeyword)) {
        if (std::optional<PpdPaper> own = ppd().paper(*name))
            return own;
    }
    const std::vector<PpdPaper> papers = m_state->ppd().papers();
    return papers.empty() ? std::nullopt : std::optional(papers.front());
}

void PrinterSetup::applyPaper(const SetupRequest &requested)
{
    if (const std::optional<QByteArray> requestedName = requestedPaper(requested)) {
        m_paper = m_state->ppd().paper(*requestedName);
        const JobChoice requestedChoice{paperKeyword, *requestedName, Origin::You};
        if (m_paper) {
            record(paperKeyword, m_paper->name, Origin::You);
        } else {
            m_choiceErrors.push_back(checkChoice(m_state->ppd(), requestedChoice).error());
            m_rejectedChoices.push_back(requestedChoice);
        }
    } else if (const std::optional<QByteArray> missing = missingUserPaper()) {
        m_choiceErrors.push_back(
            {ChoiceErrorKind::UnknownPaper,
             PrinterSetupText::tr(
                 "The printer \"%1\" has no paper \"%2\", which is your default (lpoptions).")
                 .arg(ppd().printerName(), QString::fromUtf8(*missing))});
    }
    if (!m_paper)
        m_paper = defaultPaper();
    if (!m_paper) {
        rejectUnusableDefault();
        return;
    }
    // Marked and recorded before the panels are loaded, since a panel reads the paper when it is created.
    m_state->setPaper(panelPaper(*m_paper));
    m_state->changeOption(QString::fromLatin1(paperKeyword), QString::fromUtf8(m_paper->name), nullptr);
}

void PrinterSetup::rejectUnusableDefault()
{
    // Without a choice, the server would print on it.
    const std::optional<QByteArray> paper = PpdOptions(ppd()).defaultChoice(paperKeyword);
    if (m_choiceErrors.empty() && paper && ppd().unusableSize(*paper))
        m_choiceErrors.push_back(checkChoice(ppd(), {paperKeyword, *paper, Origin::Ppd}).error());
}

void PrinterSetup::keepRejected(const SetupRequest &requested)
{
    for (const JobChoice &requestedChoice : requested.choices) {
        if (std::ranges::find(m_choices, requestedChoice.name, &JobChoice::name) == m_choices.end())
            m_choices.push_back(requestedChoice);
    }
    if (const std::optional<QByteArray> requestedName = requestedPaper(requested))
        record(paperKeyword, *requestedName, Origin::You);
    else if (const std::optional<QByteArray> missing = missingUserPaper())
        record(paperKeyword, *missing, Origin::UserDefault);
}

void PrinterSetup::reloadPanels()
{
    if (!m_panels)
        return;
    m_panels.reset();
    loadPanels();
}

void PrinterSetup::loadPanels()
{
    m_panels.emplace(m_state);
    PDEChoices requested;
    for (const JobChoice &choice : m_choices)
        requested.emplace_back(QString::fromUtf8(choice.name), QString::fromUtf8(choice.value));
    m_panels->load(m_panelSource, requested);
    startNoting();
    for (PanelHost *const host : panelHosts()) {
        host->setWillChangeHook([this](const QString &keyword, const std::optional<QString> &choice) {
            noteChange(keyword, choice);
        });
    }
}

void PrinterSetup::noteChange(const QString &keyword, const std::optional<QString> &choice)
{
    m_panels->clearReplaced(keyword, choice);
    m_reported.insert(keyword);
    // Saving a choice that is already marked is not a choice of the user.
    if (!choice || ppd().markedChoice(keyword) == choice)
        return;
    m_lastChosen = keyword;
    record(keyword.toUtf8(), choice->toUtf8(), Origin::Panel);
}

std::vector<HostedPanel *> PrinterSetup::panels() const
{
    return m_panels ? m_panels->panels() : std::vector<HostedPanel *>();
}

std::vector<PanelHost *> PrinterSetup::panelHosts() const
{
    return m_panels ? m_panels->hosts() : std::vector<PanelHost *>();
}

std::vector<BundleError> PrinterSetup::panelErrors() const
{
    return m_panels ? m_panels->errors() : std::vector<BundleError>();
}

std::vector<BundleError> PrinterSetup::panelFailures() const
{
    return m_panels ? m_panels->failures() : std::vector<BundleError>();
}

void PrinterSetup::dropFailedPanels()
{
    if (!m_panels)
        return;
    m_panels->dropFailed();
    startNoting();
}

std::vector<BundleError> PrinterSetup::laterPanelErrors() const
{
    return m_panels ? m_panels->laterErrors() : std::vector<BundleError>();
}

QStringList PrinterSetup::panelNotices() const
{
    return m_panels ? m_panels->notices() : QStringList();
}

QStringList PrinterSetup::claimedKeywords() const
{
    return m_panels ? m_panels->keywords() : QStringList();
}

PanelSettings PrinterSetup::panelSettings() const
{
    return m_panels ? m_panels->settings() : PanelSettings();
}

std::vector<PanelSummary> PrinterSetup::panelSummaries(const PDEChoices &choices) const
{
    return m_panels ? m_panels->summaries(choices) : std::vector<PanelSummary>();
}

StripEffects PrinterSetup::stripEffects(const PDEChoices &choices, std::span<const PDELabel> labels) const
{
    return m_panels ? m_panels->stripEffects(choices, labels) : StripEffects();
}

std::vector<ReplacedChoice> PrinterSetup::replaced() const
{
    std::vector<ReplacedChoice> replaced = m_panels ? m_panels->replaced() : std::vector<ReplacedChoice>();
    const PanelSettings now = replaced.empty() ? PanelSettings() : panelSettings();
    // The user may have set it on the panel since.
    std::erase_if(replaced,
                  [&](const ReplacedChoice &each) { return now.choice(each.keyword) != each.saved; });
    for (ReplacedChoice &each : replaced)
        each.reason = m_panels->reasonForDisabled(each.keyword);
    return replaced;
}

QStringList PrinterSetup::replacedChoices() const
{
    QStringList sentences;
    for (const ReplacedChoice &each : replaced())
        sentences.append(replacedSentence({ppd().optionText(each.keyword),
                                           ppd().choiceText(each.keyword, each.choice),
                                           ppd().choiceText(each.keyword, each.saved), each.reason}));
    return sentences;
}

QString PrinterSetup::replacedSentence(const ReplacedChoice &texts)
{
    const QString sentence =
        PrinterSetupText::tr(
            "\"%1\" cannot be \"%2\" with this paper and the other cut options; \"%3\" is used instead.")
            .arg(texts.keyword, texts.choice, texts.saved);
    return texts.reason ? sentence + u' ' + *texts.reason : sentence;
}

void PrinterSetup::announce(const HostedPanel &panel)
{
    notePanelInput();
    // Saving the panel does not count as a choice of the user.
    const QScopedValueRollback keep(m_lastChosen);
    m_panels->announce(panel);
    startNoting();
}

std::set<QString> PrinterSetup::keptByRemedies() const
{
    std::set<QString> kept;
    if (!m_lastChosen.isEmpty())
        kept.insert(m_lastChosen);
    for (const auto &[keyword, choice] : panelSettings().choices) {
        if (ppd().markedChoice(keyword) != choice)
            kept.insert(keyword);
    }
    for (const ReplacedChoice &each : m_panels ? m_panels->replaced() : std::vector<ReplacedChoice>())
        kept.insert(each.keyword);
    return kept;
}

void PrinterSetup::startNoting()
{
    m_noted = m_panels->choicesToKeep();
    m_notedCombinations = m_panels->settings().combinationsChosen;
    m_reported.clear();
}

void PrinterSetup::noteCombination()
{
    // The user has chosen what the rules of the paper had set. It counts as the user's choice and is carried
    // over to other setups, although it was already marked.
    const PanelSettings now = m_panels->settings();
    for (const ReplacedChoice &each : m_panels->replaced()) {
        if (const std::optional<QString> choice = now.choice(each.keyword))
            record(each.keyword.toUtf8(), choice->toUtf8(), Origin::Panel);
    }
    m_panels->clearReplaced(std::nullopt, std::nullopt);
}

void PrinterSetup::notePanelInput()
{
    if (!m_panels)
        return;
    if (m_panels->settings().combinationsChosen != m_notedCombinations)
        noteCombination();
    std::optional<QString> changed;
    for (const auto &[keyword, choice] : m_panels->choicesToKeep()) {
        if (findChoice(m_noted, keyword) == choice || m_reported.contains(keyword))
            continue;
        m_panels->clearReplaced(keyword, choice);
        changed = keyword;
    }
    if (changed) {
        // A control that is operated next may read the marks of other options, so the marks must follow the
        // controls.
        m_panels->markSettings();
        m_lastChosen = *changed;
    }
    startNoting();
}

QString PrinterSetup::printerText() const
{
    if (m_destination.queue.isEmpty())
        return m_state ? m_state->ppd().printerName() : QString();
    if (m_destination.instance || m_destination.description.isEmpty())
        return m_destination.name();
    return m_destination.description;
}

void PrinterSetup::record(const QByteArray &name, const QByteArray &value, Origin origin)
{
    setJobChoice(m_choices, {name, value, origin});
}

void PrinterSetup::choosePaper(const PpdPaper &paper)
{
    notePanelInput();
    const QScopedValueRollback keep(m_lastChosen);
    m_paper = paper;
    record(paperKeyword, paper.name, Origin::You);
    const auto change = [&] {
        m_state->setPaper(panelPaper(paper));
        m_state->changeOption(QString::fromLatin1(paperKeyword), QString::fromUtf8(paper.name), nullptr);
        m_state->postPaperDidChange();
    };
    m_panels->keepChoices(change, SetupPanel::Retry::Yes);
    startNoting();
}

void PrinterSetup::choose(const QByteArray &keyword, const QByteArray &value)
{
    const QString option = QString::fromUtf8(keyword);
    const QString choice = QString::fromUtf8(value);
    notePanelInput();
    record(keyword, value, Origin::You);
    if (claimedKeywords().contains(option))
        m_panels->choose(option, choice);
    else
        m_panels->keepChoices([&] { m_state->changeOption(option, choice, nullptr); });
    m_lastChosen = option;
    startNoting();
}

void PrinterSetup::apply(const Remedy &remedy)
{
    const QString chosen = m_lastChosen;
    for (const Remedy::Change &change : remedy.changes)
        choose(change.keyword.toUtf8(), change.choice.toUtf8());
    m_lastChosen = chosen;
}

void PrinterSetup::setDidChangeHook(const std::function<void()> &hook)
{
    for (PanelHost *const host : panelHosts())
        host->setDidChangeHook(hook);
}

void PrinterSetup::setPanelFailedHook(const std::function<void()> &hook)
{
    if (m_panels)
        m_panels->setFailedHook(hook);
}

} // namespace setup
} // namespace host
