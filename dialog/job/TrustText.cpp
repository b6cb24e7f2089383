// SPDX-License-Identifier: Apache-2.0
#include "TrustText.h"

#include <QCoreApplication>

namespace dialog {
inline namespace job {

namespace {

struct TrustWordsText {
    Q_DECLARE_TR_FUNCTIONS(dialog::job::TrustText)
};

} // namespace

TrustText::TrustText(const host::TrustRequest &request)
{
    if (request.subject() == host::TrustRequest::Subject::ReadablePassword) {
        title = TrustWordsText::tr("Connection without encryption");
        question = TrustWordsText::tr("The print server \"%1\" wants a password, and the connection to it is "
                                      "not encrypted.")
                       .arg(request.server());
        details = TrustWordsText::tr("Others on the network can read the password.");
        action = TrustWordsText::tr("Send anyway");
        return;
    }
    title = TrustWordsText::tr("Certificate of the print server");
    question = TrustWordsText::tr("The certificate of the print server \"%1\" is not trusted: %2.")
                   .arg(request.server(), request.reason());
    details = TrustWordsText::tr("Its SHA-256 fingerprint is:\n%1\n\nTrust it only if the server's "
                                 "administrator names the same fingerprint. It is trusted from then on.")
                  .arg(request.fingerprint());
    action = TrustWordsText::tr("Trust");
}

} // namespace job
} // namespace dialog
