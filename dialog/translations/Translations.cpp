// SPDX-License-Identifier: Apache-2.0
#include "Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

// The catalogues lie in this library; a static library's resources must be asked for by name.
static void useCatalogues()
{
    Q_INIT_RESOURCE(kvprint_translations);
}

namespace dialog {
inline namespace translations {

namespace {

void install(const QLocale &locale, const QString &name, const QString &folder)
{
    auto *const translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(locale, name, QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

} // namespace

void installTranslations(const QLocale &locale)
{
    useCatalogues();
    install(locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(locale, QStringLiteral("kvprint"), QStringLiteral(":/translations"));
}

} // namespace translations
} // namespace dialog
