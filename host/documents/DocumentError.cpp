// SPDX-License-Identifier: Apache-2.0
#include "DocumentError.h"

#include <QCoreApplication>

namespace host {
inline namespace documents {

namespace {

struct DocumentErrorText {
    Q_DECLARE_TR_FUNCTIONS(host::documents::LabelDocument)
};

} // namespace

DocumentError documentError(const DocumentErrorReason &reason, const QString &name)
{
    if (name == standardInputName)
        return {reason.kind,
                DocumentErrorText::tr("Cannot open the document on standard input: %1").arg(reason.reason)};
    return {reason.kind,
            DocumentErrorText::tr("Cannot open the document \"%1\": %2").arg(name, reason.reason)};
}

} // namespace documents
} // namespace host
