// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>
#include <string_view>

namespace host {
inline namespace printer {

/// The translations of a PPD in all its languages, from statements such as *de.PageSize W24H60/Band: "" and
/// *pt_BR.Translation KvHalfCut/Meio corte: "".
class PpdTranslations {
public:
    /// Adds a statement, given as its text up to the colon, including the asterisk. Ignores statements that
    /// are not translations.
    void addStatement(std::string_view statement);

    /// The text of the choice of an option, or of the option itself with the keyword "Translation", in the
    /// language ("pt_BR"), otherwise in the language without its country. Absent if the PPD has neither.
    std::optional<QByteArray> text(const QString &language, const QByteArray &keyword,
                                   const QByteArray &choice) const;

private:
    /// The texts in UTF-8; the keys have the form "language.Keyword choice".
    QHash<QByteArray, QByteArray> m_texts;
};

} // namespace printer
} // namespace host
