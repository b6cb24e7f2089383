// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>
#include <string_view>

namespace host {

/// The texts of a PPD in all its languages, from statements such as *de.PageSize W24H60/Band: "" and
/// *pt_BR.Translation KvHalfCut/Meio corte: "".
class PpdTranslations {
public:
    /// Takes a statement up to its colon, asterisk included; one that is no translation is passed over.
    void addStatement(std::string_view statement);

    /// The text for a choice of an option, or with the keyword "Translation" for the option itself, in the
    /// language ("pt_BR"), else in the language without its country. Nothing when the PPD has none.
    std::optional<QByteArray> text(const QString &language, const QByteArray &keyword,
                                   const QByteArray &choice) const;

private:
    /// UTF-8 texts by "language.Keyword choice".
    QHash<QByteArray, QByteArray> m_texts;
};

} // namespace host
