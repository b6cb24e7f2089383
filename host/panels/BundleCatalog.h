// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelBundle.h"

#include <host/printer/PpdFile.h>

#include <vector>

namespace host {
inline namespace panels {

/// The panel bundles that are available, as far as they can be described without running their code.
class BundleCatalog {
public:
    /// Returns the bundles in the folders of bundleFolders(). Bundles and folders that other users can change
    /// are skipped and reported by skipped(). If two folders have a bundle of the same name, the first one
    /// is used.
    static BundleCatalog installed();
    /// Returns the bundle in this folder, or all bundles that the folder contains. It is an error if there is
    /// none. The user has named the folder, so nothing is skipped.
    static Result<BundleCatalog, BundleError> inFolder(const QString &folder);

    /// All bundles: those that can be described, in the order of their folders and their names.
    const std::vector<BundleDescription> &bundles() const { return m_bundles; }
    /// One sentence for each bundle or folder that is skipped because other users can change it, or that
    /// contains no panels.
    const QStringList &skipped() const { return m_skipped; }

    /// Returns the bundles for the printer: those with a keyword of an option of the PPD. A bundle that the
    /// PPD itself names ("*kvPanelBundle: NAME") precedes the others.
    std::vector<BundleDescription> bundlesFor(const PpdFile &ppd) const;

private:
    void addFolder(const QString &folder, bool isTrusted);
    void addBundle(const QString &folder, bool isTrusted);

    std::vector<BundleDescription> m_bundles;
    QStringList m_skipped;
};

} // namespace panels
} // namespace host
