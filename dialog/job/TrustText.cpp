// SPDX-License-Identifier: Apache-2.0
#include "TrustText.h"

#include <QCoreApplication>

namespace dialog {
inline namespace job {

namespace {

struct TrustSentences {
    Q_DECLARE_TR_FUNCTIONS(dialog::job::TrustText)
};

} // namespace

TrustText::TrustText(const host::TrustRequest &request)
{
    if (request.subject() == host::TrustRequest::Subject::ReadablePassword) {
        title = TrustSentences::tr("Connection without encryption");
        question =
            TrustSentences::tr(
                "The print server \"%1\" requires a password, and the connection to it is not encrypted.")
                .arg(request.server());
        details = TrustSentences::tr("Others on the network can read the password.");
        action = TrustSentences::tr("Send anyway");
        return;
    }
    title = TrustSentences::tr("Certificate of the print server");
    question = TrustSentences::tr("The certificate of the print server \"%1\" is not trusted: %2.")
                   .arg(request.server(), request.reason());
    details =
        TrustSentences::tr("Its SHA-256 fingerprint is:\n%1\n\nTrust it only if the server's administrator "
                           "confirms this fingerprint. It stays trusted for later connections.")
            .arg(request.fingerprint());
    action = TrustSentences::tr("Trust");
}

} // namespace job
} // namespace dialog
