// SPDX-License-Identifier: Apache-2.0
#include "PanelSource.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace host {
inline namespace setup {

namespace {

struct PanelSourceText {
    Q_DECLARE_TR_FUNCTIONS(host::setup::PanelSource)
};

/// The options that the dialog itself controls: no panel may claim them.
bool isOfDialog(const QString &keyword)
{
    static const QStringList keywords{QStringLiteral("PageSize"), QStringLiteral("PageRegion"),
                                      QStringLiteral("Collate"), QStringLiteral("OutputOrder")};
    return keywords.contains(keyword, Qt::CaseInsensitive);
}

/// Loads the panels of one printer, one bundle after the other.
class Loading {
public:
    Loading(std::shared_ptr<DialogState> state, const QStringList &languages)
        : m_state(std::move(state))
        , m_languages(languages)
    {
    }

    void add(const BundleDescription &bundle)
    {
        const auto guard = std::make_shared<PanelGuard>(bundle.folder);
        std::optional<BundleError> error;
        const std::shared_ptr<PanelSession> session = load(bundle, *guard, error);
        const auto panels = session ? session->panels().value_or(PDEPanelList()) : PDEPanelList();
        std::vector<std::unique_ptr<HostedPanel>> added;
        added.reserve(panels.size());
        for (const std::shared_ptr<PDEPanel> &panel : panels)
            added.push_back(std::make_unique<HostedPanel>(session, panel, guard));
        if (session && panels.empty())
            error = PanelBundle::error(BundleErrorKind::Unusable, bundle.folder,
                                       PanelSourceText::tr("it could not create its panel"));
        if (session)
            prepare(bundle, *session, guard, added, error);
        if (guard->error())
            error = guard->error();
        if (error)
            m_loaded.errors.push_back(*error);
        else
            std::ranges::move(added, std::back_inserter(m_loaded.panels));
    }

    LoadedPanels result() && { return std::move(m_loaded); }
    LoadedPanels &loaded() { return m_loaded; }

private:
    std::shared_ptr<PanelSession> load(const BundleDescription &bundle, PanelGuard &guard,
                                       std::optional<BundleError> &error)
    {
        return guard.call("PDEPanelsForType", std::shared_ptr<PanelSession>(), [&] {
            Result<PanelBundle, BundleError> loaded = PanelBundle::load(bundle, m_languages);
            if (!loaded) {
                error = loaded.error();
                return std::shared_ptr<PanelSession>();
            }
            auto host = std::make_shared<PanelHost>(m_state);
            // A panel sets the size of its view while the view is loaded, if the dialog handles the
            // notification.
            host->setPanelViewDidResizeHook([] {});
            return std::make_shared<PanelSession>(std::move(loaded).value(), std::move(host));
        });
    }

    void prepare(const BundleDescription &bundle, PanelSession &session,
                 const std::shared_ptr<PanelGuard> &guard, std::vector<std::unique_ptr<HostedPanel>> &panels,
                 std::optional<BundleError> &error)
    {
        QStringList free = bundle.keywords;
        free.removeIf([&](const QString &keyword) { return isOfDialog(keyword) || isClaimed(keyword); });
        session.host().setGuard(guard);
        session.host().restrictTo(free);
        for (const std::unique_ptr<HostedPanel> &panel : panels)
            panel->setKeywords(claim(bundle, *panel, free));
        std::erase_if(panels, [](const auto &panel) { return panel->keywords().isEmpty(); });
        for (const std::unique_ptr<HostedPanel> &panel : panels) {
            if (!guard->error() && !panel->view())
                error = PanelBundle::error(
                    BundleErrorKind::Unusable, bundle.folder,
                    PanelSourceText::tr("its panel cannot be shown: its layout file cannot be used"));
        }
    }

    bool isClaimed(const QString &keyword) const
    {
        return std::ranges::any_of(m_loaded.panels, [&](const std::unique_ptr<HostedPanel> &panel) {
            return panel->keywords().contains(keyword);
        });
    }

    /// Returns the keywords that the panel receives: those that it asks for and that are free.
    QStringList claim(const BundleDescription &bundle, HostedPanel &panel, QStringList &free)
    {
        QStringList claimed;
        QStringList rejected;
        for (const QString &keyword : panel.askForKeywords())
            (free.removeAll(keyword) > 0 ? claimed : rejected).append(keyword);
        if (!rejected.isEmpty())
            m_loaded.notices.append(
                PanelSourceText::tr("The panel bundle \"%1\" does not control %2: another panel or the "
                                    "dialog does, or its description does not list it.")
                    .arg(bundle.name, QLocale().createSeparatedList(rejected)));
        return claimed;
    }

    std::shared_ptr<DialogState> m_state;
    const QStringList &m_languages;
    LoadedPanels m_loaded;
};

} // namespace

std::map<QString, BundleError> PanelSource::excluded() const
{
    std::map<QString, BundleError> excluded = m_failed;
    for (const InterruptedCall &call : PanelCallRecord::interrupted()) {
        const QString time = QLocale().toString(call.time, QLocale::ShortFormat);
        excluded.insert({call.bundle,
                         PanelBundle::error(BundleErrorKind::Interrupted, call.bundle,
                                            PanelSourceText::tr("the program ended or was stopped during its "
                                                                "\"%1\" on %2")
                                                .arg(call.call, time))});
    }
    return excluded;
}

LoadedPanels PanelSource::panelsFor(const std::shared_ptr<DialogState> &state) const
{
    const Result<BundleCatalog, BundleError> catalog =
        m_folder ? BundleCatalog::inFolder(*m_folder) : BundleCatalog::installed();
    Loading loading(state, m_languages);
    if (!catalog) {
        loading.loaded().errors.push_back(catalog.error());
        return std::move(loading).result();
    }
    loading.loaded().notices = catalog.value().skipped();
    const std::vector<BundleDescription> bundles = catalog.value().bundlesFor(state->ppd());
    const std::map<QString, BundleError> excluded =
        bundles.empty() ? std::map<QString, BundleError>() : this->excluded();
    for (const BundleDescription &bundle : bundles) {
        if (const auto found = excluded.find(bundle.folder); found != excluded.end())
            loading.loaded().errors.push_back(found->second);
        else
            loading.add(bundle);
    }
    return std::move(loading).result();
}

} // namespace setup
} // namespace host
