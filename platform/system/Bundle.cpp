// SPDX-License-Identifier: Apache-2.0
#include "Bundle.h"

#include <QFileInfo>

namespace platform {
inline namespace system {

namespace {

/// Returns the names to search for: "pt_BR" and then "pt" for both "pt_BR" and "pt-BR".
QStringList catalogueNames(const QString &language)
{
    QString name = language;
    name.replace(u'-', u'_');
    QStringList names{name};
    for (qsizetype cut = name.lastIndexOf(u'_'); cut > 0; cut = name.lastIndexOf(u'_', cut - 1))
        names.append(name.left(cut));
    return names;
}

std::optional<QString> existingFile(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    return path;
}

} // namespace

Bundle::Bundle(QString path)
    : m_path(std::move(path))
    , m_language(QStringLiteral("en"))
{
}

std::shared_ptr<const Bundle> Bundle::open(const QString &path, const QStringList &languages)
{
    const std::shared_ptr<Bundle> bundle(new Bundle(path));
    bool found = false;
    for (const QString &language : languages) {
        for (const QString &name : catalogueNames(language)) {
            if (!found && bundle->loadCatalogue(name)) {
                bundle->m_language = name;
                found = true;
            }
        }
    }
    if (bundle->m_language != QStringLiteral("en") || !found)
        bundle->loadCatalogue(QStringLiteral("en"));
    return bundle;
}

bool Bundle::loadCatalogue(const QString &language)
{
    auto catalogue = std::make_unique<QTranslator>();
    const QString file =
        m_path + QStringLiteral("/Resources/Localizable_") + language + QStringLiteral(".qm");
    // The file must have exactly this name: QTranslator would also try shortened names.
    if (!QFileInfo::exists(file) || !catalogue->load(file))
        return false;
    m_catalogues.push_back(std::move(catalogue));
    return true;
}

QString Bundle::localizedStringForKey(const QString &key) const
{
    // A catalogue stores its header under the empty key.
    if (key.isEmpty())
        return key;
    const QByteArray utf8 = key.toUtf8();
    for (const std::unique_ptr<QTranslator> &catalogue : m_catalogues) {
        QString text = catalogue->translate("Localizable", utf8.constData());
        if (!text.isEmpty())
            return text;
    }
    return key;
}

std::optional<QString> Bundle::pathForImageResource(const QString &name) const
{
    return existingFile(m_path + QStringLiteral("/Resources/") + name + QStringLiteral(".png"));
}

std::optional<QString> Bundle::pathForLayout(const QString &name) const
{
    return existingFile(m_path + QStringLiteral("/Resources/") + name + QStringLiteral(".ui"));
}

} // namespace system
} // namespace platform
