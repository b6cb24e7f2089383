// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <optional>

namespace platform {
inline namespace system {

/// A folder that contains a loadable library and, in Resources/, the files that the library needs at run
/// time: layout files, pictures and translations.
///
/// The host opens the bundle and shares it with the panels that come from it. A bundle only locates its
/// files; the host loads the library.
class Bundle : public std::enable_shared_from_this<Bundle> {
public:
    /// Opens the bundle folder at path. Texts come from the catalogue of the first of the languages ("de",
    /// "pt_BR") that has one; a language with a country falls back to the language alone. English is always
    /// searched last. Never returns null: a folder that does not exist is a bundle without resources.
    static std::shared_ptr<const Bundle> open(const QString &path, const QStringList &languages);

    /// The bundle's folder as passed to open().
    const QString &path() const { return m_path; }

    /// The language whose texts are searched first; "en" if none of the requested languages has a catalogue.
    const QString &language() const { return m_language; }

    /// Returns the text for the key from the bundle's "Localizable" catalogues, or the key itself if no
    /// catalogue contains it, so that a missing translation is visible and can be searched for.
    QString localizedStringForKey(const QString &key) const;

    /// Returns the path of the picture with this name (without extension); std::nullopt if the bundle has no
    /// such file.
    std::optional<QString> pathForImageResource(const QString &name) const;

    /// Returns the path of the layout file with this name (without extension); std::nullopt if the bundle has
    /// no such file.
    std::optional<QString> pathForLayout(const QString &name) const;

private:
    explicit Bundle(QString path);

    bool loadCatalogue(const QString &language);

    QString m_path;
    QString m_language;
    std::vector<std::unique_ptr<QTranslator>> m_catalogues;
};

} // namespace system
} // namespace platform
