// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <optional>

namespace platform {
inline namespace system {

/// A folder that holds a loadable library and, in Resources/, what it needs at run time: layout
/// files, pictures and translated texts.
///
/// The host opens the bundle and shares it with the panels that come from it. A bundle only names
/// its files; loading its library is the host's work.
class Bundle : public std::enable_shared_from_this<Bundle> {
public:
    /// Opens the bundle folder at path. Texts are taken from the catalogue of the first of the
    /// languages ("de", "pt_BR") that has one, a language without its country included; English is
    /// always asked last. Never null: a folder that does not exist is a bundle without resources.
    static std::shared_ptr<const Bundle> open(const QString &path, const QStringList &languages);

    /// The bundle's folder as given to open().
    const QString &path() const { return m_path; }

    /// The language whose texts come first; "en" when none of the asked-for ones has a catalogue.
    const QString &language() const { return m_language; }

    /// The text for the key from the bundle's "Localizable" catalogues; the key itself when no
    /// catalogue has it, so that a missing translation can be seen and searched for.
    QString localizedStringForKey(const QString &key) const;

    /// Path of the picture of that name (without extension), or nothing when the bundle has no such file.
    std::optional<QString> pathForImageResource(const QString &name) const;

    /// Path of the layout file of that name (without extension), or nothing when the bundle has no such file.
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
