// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <optional>

namespace host {
inline namespace documents {

/// The kinds of documents that can be printed.
enum class DocumentKind { Pdf, Png, Jpeg, Svg };

/// How many of a document's first bytes tell its kind. A PDF may begin as late as this.
inline constexpr qsizetype documentHeadSize = 1024;

/// The kind, judged by the document's first bytes, since names lie and standard input has none. Svg means
/// no more than that it looks like XML.
std::optional<DocumentKind> documentKind(const QByteArray &head);

} // namespace documents
} // namespace host
