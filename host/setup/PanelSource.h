// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/panels/BundleCatalog.h>
#include <host/panels/HostedPanel.h>

#include <map>

namespace host {
inline namespace setup {

/// The panels for one printer.
struct LoadedPanels {
    /// In the order of their pages. Each has keywords of its own.
    std::vector<std::unique_ptr<HostedPanel>> panels;
    /// Why bundles that have options of this printer cannot be used.
    std::vector<BundleError> errors;
    /// One sentence for each bundle that is not used because other users can change it, and for each option
    /// that two panels claim.
    QStringList notices;
};

/// Where panels are loaded from, and which bundles are not used because they have failed.
class PanelSource {
public:
    /// The installed bundles (BundleCatalog::installed()), without texts in other languages than English.
    PanelSource() = default;
    /// The bundle in the folder, or all bundles that it contains; the installed ones if it is absent. Texts
    /// are in the first of the languages that a bundle has.
    PanelSource(std::optional<QString> folder, QStringList languages)
        : m_folder(std::move(folder))
        , m_languages(std::move(languages))
    {
    }

    /// Loads the bundles that have options of the printer, and creates their panels. Their views are loaded.
    /// A bundle that cannot be used is left out and reported.
    LoadedPanels panelsFor(const std::shared_ptr<DialogState> &state) const;

    /// Does not load the bundle in this folder any more, because of the error.
    void exclude(const QString &bundle, const BundleError &error)
    {
        m_failed.insert_or_assign(bundle, error);
    }

private:
    /// The errors of the bundles that are not loaded, by the bundle's folder.
    std::map<QString, BundleError> excluded() const;

    std::optional<QString> m_folder;
    QStringList m_languages;
    /// The errors of bundles that have failed in this process, by the bundle's folder.
    std::map<QString, BundleError> m_failed;
};

} // namespace setup
} // namespace host
