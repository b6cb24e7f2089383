// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <optional>

namespace host {
inline namespace documents {

/// The kinds of documents that can be printed.
enum class DocumentKind { Pdf, Png, Jpeg, Svg };

/// The number of first bytes that determine the kind of a document. A PDF may begin this late.
inline constexpr qsizetype documentHeadSize = 1024;

/// Returns the kind by the document's first bytes; names can be wrong, and standard input has none. Svg
/// means only that the document looks like XML. Absent for unknown kinds.
std::optional<DocumentKind> documentKind(const QByteArray &head);

} // namespace documents
} // namespace host
