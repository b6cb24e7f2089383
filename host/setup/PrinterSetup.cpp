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
    std::vector<JobChoice> choices = withFinishingsAsChoices(m_state->ppd(), requested.choices);
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

QStringList PrinterSetup::replacedChoices() const
{
    QStringList sentences;
    for (const ReplacedChoice &each : replaced())
        sentences.append(
            replacedSentence({ppd().optionText(each.keyword), ppd().choiceText(each.keyword, each.choice),
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

} // namespace setup
} // namespace host
