// SPDX-License-Identifier: Apache-2.0
#include "PrinterSetup.h"

#include <host/CutSettings.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QScopedValueRollback>

#include <algorithm>

namespace host {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(host::PrinterSetup)
};

constexpr const char *paperKeyword = "PageSize";

platform::Paper panelPaper(const PpdPaper &paper)
{
    platform::Paper result;
    result.name = QString::fromUtf8(paper.name);
    result.height = paper.size.height();
    return result;
}

} // namespace

PrinterSetup::PrinterSetup(Destination destination, std::optional<PpdFile> ppd, const SetupWishes &wishes,
                           const PanelSource &panelSource)
    : m_destination(std::move(destination))
{
    if (!ppd) {
        // Nobody knows what such a queue can do, so everything is passed on.
        m_choices = wishes.choices;
        if (wishes.paper)
            record(paperKeyword, *wishes.paper, Origin::You);
        return;
    }
    markEffectiveDefaults(*ppd, m_destination);
    if (!wishes.language.isEmpty())
        ppd->localize(wishes.language);
    m_state = std::make_shared<DialogState>(std::move(*ppd));
    if (!m_destination.deviceUri.isEmpty())
        m_state->setDeviceURI(m_destination.deviceUri);
    m_constraints.emplace(m_state->ppd());
    markWishes(wishes);
    takePaper(wishes);
    if (wishes.force)
        keepRefused(wishes);
    loadPanels(panelSource);
}

PrinterSetup::~PrinterSetup()
{
    setDidChangeHook({});
    if (PanelHost *const host = panelHost())
        host->setWillChangeHook({});
}

void PrinterSetup::markWishes(const SetupWishes &wishes)
{
    std::vector<JobChoice> choices = wishes.choices;
    std::erase_if(choices, [](const JobChoice &wish) { return wish.name == paperKeyword; });
    CarriedChoices carried = carryOverChoices(choices, m_state->ppd());
    m_choices = std::move(carried.kept);
    m_refusals = std::move(carried.lost);
    for (const JobChoice &wish : choices) {
        if (std::ranges::find(m_choices, wish.name, &JobChoice::name) == m_choices.end())
            m_refusedWishes.push_back(wish);
    }
}

std::vector<JobChoice> PrinterSetup::choicesAndRefusedWishes() const
{
    std::vector<JobChoice> all = m_choices;
    for (const JobChoice &wish : m_refusedWishes) {
        if (std::ranges::find(m_choices, wish.name, &JobChoice::name) == m_choices.end())
            all.push_back(wish);
    }
    return all;
}

std::optional<QByteArray> PrinterSetup::wishedPaper(const SetupWishes &wishes)
{
    const auto chosen = std::ranges::find(wishes.choices, QByteArray(paperKeyword), &JobChoice::name);
    const bool isAmongChoices = !wishes.paper && chosen != wishes.choices.end();
    return isAmongChoices ? chosen->value : wishes.paper;
}

std::optional<QByteArray> PrinterSetup::lackingUserPaper() const
{
    const QByteArray *const users = findValue(m_destination.userOptions, paperKeyword);
    const bool isLacking = users && m_state && !m_state->ppd().paper(*users);
    return isLacking ? std::optional(*users) : std::nullopt;
}

std::optional<PpdPaper> PrinterSetup::defaultPaper() const
{
    // A free size is marked as such, without its measures, so the options are asked first.
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
    if (std::optional<PpdPaper> own = ppd().paper(PpdOptions(ppd()).defaultChoice(paperKeyword)))
        return own;
    const std::vector<PpdPaper> papers = m_state->ppd().papers();
    return papers.empty() ? std::nullopt : std::optional(papers.front());
}

void PrinterSetup::takePaper(const SetupWishes &wishes)
{
    if (const std::optional<QByteArray> wished = wishedPaper(wishes)) {
        m_paper = m_state->ppd().paper(*wished);
        const JobChoice wish{paperKeyword, *wished, Origin::You};
        if (m_paper) {
            record(paperKeyword, m_paper->name, Origin::You);
        } else {
            m_refusals.push_back(*checkChoice(m_state->ppd(), wish));
            m_refusedWishes.push_back(wish);
        }
    } else if (const std::optional<QByteArray> lacking = lackingUserPaper()) {
        m_refusals.push_back(
            {ChoiceFailure::UnknownPaper,
             Text::tr("The printer \"%1\" has no paper \"%2\", which is your default (lpoptions).")
                 .arg(ppd().printerName(), QString::fromUtf8(*lacking))});
    }
    if (!m_paper)
        m_paper = defaultPaper();
    if (!m_paper)
        return;
    // Marked and recorded before there is a panel, since a panel looks at the paper from the beginning.
    m_state->setPaper(panelPaper(*m_paper));
    m_state->changeOption(QString::fromLatin1(paperKeyword), QString::fromUtf8(m_paper->name), nullptr);
}

void PrinterSetup::keepRefused(const SetupWishes &wishes)
{
    for (const JobChoice &wish : wishes.choices) {
        if (std::ranges::find(m_choices, wish.name, &JobChoice::name) == m_choices.end())
            m_choices.push_back(wish);
    }
    if (const std::optional<QByteArray> wished = wishedPaper(wishes))
        record(paperKeyword, *wished, Origin::You);
    else if (const std::optional<QByteArray> lacking = lackingUserPaper())
        record(paperKeyword, *lacking, Origin::UserDefault);
}

void PrinterSetup::loadPanels(const PanelSource &source)
{
    // Whether a bundle is there and whole is no concern of printers that cannot cut.
    if (!CutSettings::areKnownTo(ppd()))
        return;
    Result<ClaimedPanels, PanelError> panels = source.panelsFor(m_state);
    if (!panels) {
        m_panelProblem = panels.error();
        return;
    }
    m_panels = std::move(panels).value();
    PanelHost *const host = panelHost();
    if (!host)
        return;
    QString error;
    if (!panel()->restoreValuesAndReturnError(&error))
        m_panelProblem = PanelError{PanelFailure::NoPanel, error};
    announcePanel();
    host->setWillChangeHook([this](const QString &keyword, const std::optional<QString> &choice) {
        if (!choice)
            return;
        m_lastChosen = keyword;
        record(keyword.toUtf8(), choice->toUtf8(), Origin::Panel);
    });
}

std::vector<std::pair<QString, QString>> PrinterSetup::claimedChoices() const
{
    std::vector<std::pair<QString, QString>> choices;
    for (const QString &keyword : claimedKeywords()) {
        if (const std::optional<QString> choice = ppd().markedChoice(keyword))
            choices.emplace_back(keyword, *choice);
    }
    return choices;
}

void PrinterSetup::announcePanel()
{
    if (!panel())
        return;
    const auto wanted = claimedChoices();
    panel()->willShow();
    tellPanel(wanted);
}

void PrinterSetup::tellPanel(const std::vector<std::pair<QString, QString>> &wanted)
{
    // When it is shown for the first time, a panel begins with the PPD's own defaults and marks them. What
    // the queue, the user and the command line want instead is then told like any change made elsewhere.
    bool isNews = false;
    for (const auto &[keyword, choice] : wanted) {
        if (ppd().markedChoice(keyword) == choice)
            continue;
        m_state->changeOption(keyword, choice, nullptr);
        isNews = true;
    }
    QString error;
    if (isNews && !panel()->restoreValuesAndReturnError(&error))
        m_panelProblem = PanelError{PanelFailure::NoPanel, error};
    pressWanted(wanted);
}

void PrinterSetup::pressWanted(const std::vector<std::pair<QString, QString>> &wanted)
{
    // A panel that refreshes all its controls goes back to a ready-made combination, which may lack what only
    // a click can add. So the click is made again, where the panel still allows it.
    QWidget *const view = panel()->panelView();
    for (QCheckBox *const box : view->findChildren<QCheckBox *>()) {
        const QString keyword = box->property("ppdKeyword").toString();
        const auto found = std::ranges::find(wanted, keyword, &std::pair<QString, QString>::first);
        if (found == wanted.end() || box->isHidden() || !box->isEnabledTo(view))
            continue;
        const bool isOn = ppd().choiceIndex(keyword, found->second) == 1;
        if (box->isChecked() != isOn)
            box->click();
    }
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
    const auto known = std::ranges::find(m_choices, name, &JobChoice::name);
    const bool isPanels = origin == Origin::Panel;
    if (known == m_choices.end()) {
        m_choices.push_back({name, value, origin, isPanels});
        return;
    }
    known->isPanels = known->isPanels || isPanels;
    // A panel that hands over what the user has asked for has not chosen anything.
    if (known->value == value)
        return;
    known->value = value;
    known->origin = origin;
}

void PrinterSetup::choosePaper(const PpdPaper &paper)
{
    m_paper = paper;
    record(paperKeyword, paper.name, Origin::You);
    m_state->setPaper(panelPaper(paper));
    m_state->changeOption(QString::fromLatin1(paperKeyword), QString::fromUtf8(paper.name), nullptr);
    m_state->postPaperDidChange();
    if (panel())
        pressWanted(claimedChoices());
}

void PrinterSetup::choose(const QByteArray &keyword, const QByteArray &value)
{
    m_lastChosen = QString::fromUtf8(keyword);
    record(keyword, value, Origin::You);
    m_state->changeOption(m_lastChosen, QString::fromUtf8(value), nullptr);
    // Panels take note of such a change, but show it only when they are asked to.
    QString error;
    if (panel() && claimedKeywords().contains(m_lastChosen) && !panel()->restoreValuesAndReturnError(&error))
        m_panelProblem = PanelError{PanelFailure::NoPanel, error};
    if (panel())
        pressWanted(claimedChoices());
}

std::vector<Conflict> PrinterSetup::conflicts() const
{
    return m_constraints ? m_constraints->conflicts() : std::vector<Conflict>();
}

std::optional<Remedy> PrinterSetup::remedy() const
{
    if (!m_constraints)
        return std::nullopt;
    return m_constraints->remedy(m_lastChosen.isEmpty() ? std::set<QString>()
                                                        : std::set<QString>{m_lastChosen});
}

void PrinterSetup::apply(const Remedy &remedy)
{
    const QString chosen = m_lastChosen;
    for (const Remedy::Change &change : remedy.changes)
        choose(change.keyword.toUtf8(), change.choice.toUtf8());
    m_lastChosen = chosen;
}

std::optional<QString> PrinterSetup::savePanel()
{
    PDEPanel *const shown = panel();
    if (!shown)
        return std::nullopt;
    m_beforeSaves.push_back({claimedChoices(), m_state->recorded(), m_choices, m_lastChosen});
    const QScopedValueRollback saving(m_isSaving, true);
    QString error;
    if (!shown->saveValuesAndReturnError(&error))
        return Text::tr("\"%1\" cannot save its settings: %2").arg(shown->panelName(), error);
    if (!shown->shouldPrint())
        return Text::tr("\"%1\" does not let the job be printed with these settings.")
            .arg(shown->panelName());
    return std::nullopt;
}

void PrinterSetup::undoSave()
{
    if (m_beforeSaves.empty())
        return;
    Saved before = std::move(m_beforeSaves.back());
    m_beforeSaves.pop_back();
    m_state->putBack(before.marked, std::move(before.recorded));
    m_choices = std::move(before.choices);
    m_lastChosen = std::move(before.lastChosen);
}

void PrinterSetup::setDidChangeHook(std::function<void()> hook)
{
    PanelHost *const host = panelHost();
    if (!host)
        return;
    if (hook)
        host->setDidChangeHook([this, changed = std::move(hook)] {
            if (!m_isSaving)
                changed();
        });
    else
        host->setDidChangeHook({});
}

} // namespace host
