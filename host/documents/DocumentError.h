// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/base/Result.h>

#include <QString>

namespace host {
inline namespace documents {

/// Why a document cannot be printed.
enum class DocumentErrorKind {
    Missing,     ///< there is no such file, or no document was named
    NotAFile,    ///< a folder, a pipe or a device
    Unreadable,  ///< no permission, or the medium fails
    Empty,       ///< no bytes, or no pages
    UnknownKind, ///< none of the kinds that can be printed
    Damaged,     ///< of a known kind, but cut short or wrong inside
    Encrypted,   ///< a password is needed
    WrongPassword,
    UnsupportedEncryption,
    TooLarge,    ///< more bytes or pixels than are held at once
    BadPage,     ///< a page without area, or larger than any PDF page
    NeedsOthers, ///< it is not whole without other files, which are not read
    InputTaken,  ///< standard input is named a second time
    NotStored,   ///< there is no room for what is kept while the document is open
    Changed,     ///< the file is no longer the one that was opened
};
using DocumentError = Failure<DocumentErrorKind>;

/// The reason why a document cannot be printed, without the document's name.
struct DocumentErrorReason {
    DocumentErrorKind kind;
    /// The end of a sentence, without a full stop: "it is empty".
    QString reason;
};

/// The name that stands for standard input.
inline constexpr QStringView standardInputName = u"-";

/// Returns the error for the user: names the document, by its path or as standard input for "-", and the
/// reason.
DocumentError documentError(const DocumentErrorReason &reason, const QString &name);

} // namespace documents
} // namespace host
