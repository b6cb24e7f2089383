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
inline namespace panels {

/// Why a bundle could not be found or loaded.
enum class BundleErrorKind {
    Missing,               ///< no bundle in any of the folders searched
    NotABundle,            ///< not a panel bundle, or its library cannot be loaded
    WrongInterfaceVersion, ///< built for another version of the panel interface
    Unusable,              ///< the bundle reported that it does not work on this system
    ResourceMissing,       ///< a file that the library needs is missing or unreadable
    Failed,                ///< the bundle threw an exception
    Interrupted,           ///< an earlier program ended, or had to be stopped, during a call into the bundle
};
/// An error of a bundle. The folder is that of the bundle.
struct BundleError : Failure<BundleErrorKind> {
    QString folder;
};

/// What the metadata of a bundle's library states.
struct BundleDescription {
    /// The bundle's folder as an absolute path.
    QString folder;
    /// The folder's name without ".bundle", by which a PPD and the user name the bundle.
    QString name;
    /// The PPD keywords that its panels may handle.
    QStringList keywords = {};
    /// The interface version for which the library was built; absent for the version of this program.
    std::optional<QString> otherVersion = {};
    /// The files in Resources/ that the library needs.
    QStringList resources = {};
};

/// A loaded panel bundle: its principal object and its resources.
///
/// A bundle is a folder NAME.bundle that contains the library NAME.so and, in Resources/, the files that the
/// library lists in its metadata. Move-only. Must outlive the panels that it made.
class PanelBundle {
public:
    /// Returns the folder of the bundle with this name as an absolute path. A given folder may be the bundle
    /// itself or the folder that contains it. If the folder is absent, the folder of the program and then the
    /// installation folder of the bundles are searched.
    static Result<QString, BundleError> find(const QString &name, const std::optional<QString> &folder);

    /// Reads the metadata of the bundle's library without running any of its code.
    static Result<BundleDescription, BundleError> describe(const QString &folder);

    /// Loads the bundle in this folder. The interface version in the library's metadata is checked, and the
    /// resources are searched for, before any code of the library runs. Texts are in the first of the
    /// languages that the bundle has; see platform::Bundle::open().
    static Result<PanelBundle, BundleError> load(const QString &folder, const QStringList &languages);
    /// Loads the bundle that describe() has described, without reading the metadata again.
    static Result<PanelBundle, BundleError> load(const BundleDescription &description,
                                                 const QStringList &languages);

    /// Returns the error about the bundle in this folder; the reason is the end of a sentence.
    static BundleError error(BundleErrorKind kind, const QString &folder, const QString &reason);

    /// The principal object, initialized with the bundle. Owned by the bundle.
    PDEPlugIn &plugIn() const { return *m_plugIn; }
    /// Access to the internal state of the bundle's panels, for tools; null if the bundle does not offer it.
    /// Not owned.
    PDEPanelInspection *inspection() const { return m_factory->panelInspection(); }
    /// The bundle's resources.
    const platform::Bundle &resources() const { return *m_resources; }

private:
    PanelBundle() = default;

    /// Owned by the library, which stays loaded until the process ends: Qt may still refer to code of the
    /// bundle after its panels are destroyed.
    PDEPlugInFactory *m_factory = nullptr;
    std::shared_ptr<const platform::Bundle> m_resources;
    std::unique_ptr<PDEPlugIn> m_plugIn;
};

} // namespace panels
} // namespace host
