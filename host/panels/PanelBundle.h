// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/base/Result.h>
#include <platform/Bundle.h>
#include <protocol/PDEPlugIn.h>

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace host {

enum class BundleFailure {
    Missing,               ///< no bundle where one was looked for
    NotABundle,            ///< something else, or a library that cannot be loaded
    WrongInterfaceVersion, ///< made for another version of the print dialog
    Unusable,              ///< the bundle itself refused this system
    ResourceMissing,       ///< the library is there, but a file that it needs is not
};
using BundleError = Failure<BundleFailure>;

/// A loaded bundle of panels: its principal object, and its resources.
///
/// A bundle is a folder NAME.bundle that holds the library NAME.so and, in Resources/, the files that the
/// library lists in its metadata. Move-only; end the panels first.
class PanelBundle {
public:
    /// The folder name of the bundle that the programs look for.
    static const QString folderName;

    /// The bundle's folder, as an absolute path. Looked for in the given folder (the bundle itself or the
    /// folder that holds it); without one, beside the program and then where installed programs keep it.
    static Result<QString, BundleError> find(const std::optional<QString> &folder);

    /// Loads the bundle in that folder. The interface version is read from the library before any of its
    /// code runs, and the resources are looked for before that too. Texts come in the first of the
    /// languages that the bundle has, as platform::Bundle::open() says.
    static Result<PanelBundle, BundleError> load(const QString &folder, const QStringList &languages);

    /// The principal object, which has accepted the bundle.
    PDEPlugIn &plugIn() const { return *m_plugIn; }
    /// The bundle's look inside its panels; null when it has none.
    PDEPanelInspection *inspection() const { return m_factory->panelInspection(); }
    const platform::Bundle &resources() const { return *m_resources; }

private:
    PanelBundle() = default;

    /// Borrowed from the library, which stays loaded until the process ends: code of a bundle may still be
    /// named in Qt's tables after its panels are gone.
    PDEPlugInFactory *m_factory = nullptr;
    std::shared_ptr<const platform::Bundle> m_resources;
    std::unique_ptr<PDEPlugIn> m_plugIn;
};

} // namespace host
