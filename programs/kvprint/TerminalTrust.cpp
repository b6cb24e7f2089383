// SPDX-License-Identifier: Apache-2.0
#include "TerminalTrust.h"

#include "TerminalPassword.h"

#include <dialog/job/TrustText.h>

#include <QCoreApplication>

namespace programs {
inline namespace kvprint {

namespace {

struct TerminalTrustText {
    Q_DECLARE_TR_FUNCTIONS(programs::kvprint::TerminalTrust)
};

/// Must be typed in full, so that a wrong key grants nothing; the same in every language.
constexpr QLatin1String consent("yes");

QString promptFor(const dialog::TrustText &words)
{
    return words.question + u'\n' + words.details + u'\n' +
           TerminalTrustText::tr("Type \"%1\" to continue:").arg(consent);
}

} // namespace

host::TrustHandler askTrustOnTerminal()
{
    return [](const host::TrustRequest &request) {
        const TerminalPassword terminal;
        const std::optional<QString> answer =
            terminal.ask(promptFor(dialog::TrustText(request)), TerminalPassword::Typing::Shown);
        if (answer && answer->trimmed().compare(consent, Qt::CaseInsensitive) == 0)
            request.grant();
        else
            request.reject();
    };
}

} // namespace kvprint
} // namespace programs
