// SPDX-License-Identifier: Apache-2.0
#include "PanelTrial.h"

#include "WindowWatch.h"

#include <host/panels/PanelSettings.h>
#include <host/printer/PpdOptions.h>

#include <QScopeGuard>

#include <map>
#include <utility>

namespace {

/// The marked choices of each option by its keyword.
using TrialMarks = std::map<QByteArray, std::vector<QByteArray>>;

TrialMarks marksOf(const host::PpdFile &ppd)
{
    TrialMarks marks;
    const host::PpdOptions options(ppd);
    for (const host::PpdGroup &group : options.groups()) {
        for (const QByteArray &keyword : group.keywords)
            marks[keyword] = options.markedChoices(keyword);
    }
    return marks;
}

/// The keywords whose marks differ.
QStringList changedKeywords(const TrialMarks &before, const TrialMarks &after)
{
    QStringList changed;
    for (const auto &[keyword, choices] : after) {
        const auto old = before.find(keyword);
        if (old == before.end() || old->second != choices)
            changed.append(QString::fromUtf8(keyword));
    }
    return changed;
}

} // namespace

QString choicesText(const PDEChoices &choices)
{
    QStringList pairs;
    for (const auto &[keyword, choice] : choices)
        pairs.append(keyword + u'=' + choice);
    return pairs.isEmpty() ? QStringLiteral("no choice") : pairs.join(u' ');
}

PanelTrial::PanelTrial(PDEPanel &panel, PDEPlugInFactory &factory, std::shared_ptr<host::DialogState> dialog,
                       std::shared_ptr<host::PanelHost> host, QStringList metadataKeywords,
                       BreachList &breaches)
    : m_panel(panel)
    , m_factory(factory)
    , m_dialog(std::move(dialog))
    , m_host(std::move(host))
    , m_metadataKeywords(std::move(metadataKeywords))
    , m_breaches(breaches)
{
    m_window.setAttribute(Qt::WA_DontShowOnScreen);
    m_window.resize(800, 600);
}

PanelTrial::~PanelTrial()
{
    if (m_view && m_view->parentWidget() == &m_window)
        m_view->setParent(nullptr);
}

std::optional<PDEChoices> PanelTrial::call(const CallRules &rules, const std::function<void()> &function)
{
    const TrialMarks before = marksOf(m_dialog->ppd());
    const WindowWatch windows;
    PDEChoices requested;
    bool isDone = false;
    if (rules.carriesOut) {
        m_host->setWillChangeHook([&](const QString &keyword, const std::optional<QString> &choice) {
            if (choice)
                host::setChoice(requested, keyword, *choice);
        });
        const QScopeGuard removeHook([this] { m_host->setWillChangeHook({}); });
        isDone = m_breaches.guard(function);
    } else {
        requested = m_host->collect([&] { isDone = m_breaches.guard(function); });
    }

    if (!rules.mayOpenWindows && !windows.opened().isEmpty())
        report(QStringLiteral("no window"),
               QStringLiteral("the window \"%1\" opens").arg(windows.opened().constFirst()));
    checkRequests(rules, requested);
    for (const QString &keyword : changedKeywords(before, marksOf(m_dialog->ppd()))) {
        if (!rules.carriesOut)
            report(QStringLiteral("a change of an option through willChangePPDOptionKeyValue() only"),
                   QStringLiteral("the mark of \"%1\" in the PPD changes").arg(keyword));
        else if (m_handled && !m_handled->contains(keyword) && !host::findChoice(requested, keyword))
            report(QStringLiteral("marks of the panel's own options only"),
                   QStringLiteral("the mark of \"%1\" in the PPD changes").arg(keyword));
    }
    checkView();
    return isDone ? std::optional(requested) : std::nullopt;
}

std::optional<PDEChoices> PanelTrial::save()
{
    const QString check = m_breaches.setCall(QStringLiteral("saveValuesAndReturnError"));
    bool isDone = true;
    QString error;
    auto choices = call(saves, [&] { isDone = m_panel.saveValuesAndReturnError(&error); });
    if (!isDone)
        report(QStringLiteral("that the panel saves"),
               QStringLiteral("it returns false with the error \"%1\"").arg(error));
    m_breaches.setCall(check);
    return choices;
}

void PanelTrial::restore()
{
    const QString check = m_breaches.setCall(QStringLiteral("restoreValuesAndReturnError"));
    bool isDone = true;
    QString error;
    call(notifies, [&] { isDone = m_panel.restoreValuesAndReturnError(&error); });
    if (!isDone)
        report(QStringLiteral("that the panel shows the marked choices"),
               QStringLiteral("it returns false with the error \"%1\"").arg(error));
    m_breaches.setCall(check);
}

void PanelTrial::checkRequests(const CallRules &rules, const PDEChoices &requested)
{
    if (!rules.mayRequest && !requested.empty())
        report(QStringLiteral("an answer that changes nothing"),
               QStringLiteral("it requests %1").arg(choicesText(requested)));
    for (const auto &[keyword, choice] : requested) {
        if (m_handled && !m_handled->contains(keyword))
            report(QStringLiteral("a change of an option in supportedPPDOptionKeys()"),
                   QStringLiteral("it changes \"%1\"").arg(keyword));
        else if (!hasChoice(keyword, choice))
            report(QStringLiteral("choices of the PPD"),
                   QStringLiteral("it requests \"%1\" for \"%2\"").arg(choice, keyword));
    }
}

void PanelTrial::checkView()
{
    if (m_isViewPlaced && !m_view) {
        m_isViewPlaced = false;
        report(QStringLiteral("a view that exists as long as the panel"), QStringLiteral("it is deleted"));
    }
}

void PanelTrial::mark(const QString &keyword, const QString &choice)
{
    m_dialog->ppd().mark(keyword, choice);
}

void PanelTrial::placeView(QWidget *view)
{
    m_view = view;
    m_isViewPlaced = true;
    m_view->setParent(&m_window);
    m_view->show();
    m_window.show();
}

QStringList PanelTrial::choicesOf(const QString &keyword) const
{
    QStringList names;
    const auto option = host::PpdOptions(m_dialog->ppd()).option(keyword.toUtf8());
    for (const host::PpdChoice &choice : option ? option->choices : std::vector<host::PpdChoice>())
        names.append(QString::fromUtf8(choice.name));
    return names;
}

bool PanelTrial::hasChoice(const QString &keyword, const QString &choice) const
{
    if (choicesOf(keyword).contains(choice))
        return true;
    const auto option = host::PpdOptions(m_dialog->ppd()).option(keyword.toUtf8());
    return option && option->customText && choice.startsWith(QStringLiteral("Custom"));
}
