// SPDX-License-Identifier: Apache-2.0
#include "TerminalPassword.h"

#include "SignalWatch.h"

#include <host/documents/DocumentError.h>

#include <QCoreApplication>

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace programs {
inline namespace kvprint {

namespace {

struct TerminalPasswordText {
    Q_DECLARE_TR_FUNCTIONS(programs::kvprint::TerminalPassword)
};

/// During its lifetime, the terminal shows no typed characters and delivers each key immediately, including
/// those that would end the program and leave the terminal in this state.
class UnseenTyping {
public:
    explicit UnseenTyping(int terminal)
        : m_terminal(terminal)
        , m_works(tcgetattr(terminal, &m_usual) == 0)
    {
        termios unseen = m_usual;
        unseen.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON | IEXTEN | ISIG);
        unseen.c_cc[VMIN] = 1;
        unseen.c_cc[VTIME] = 0;
        m_works = m_works && tcsetattr(terminal, TCSAFLUSH, &unseen) == 0;
    }
    ~UnseenTyping()
    {
        if (m_works)
            tcsetattr(m_terminal, TCSAFLUSH, &m_usual);
    }
    UnseenTyping(const UnseenTyping &) = delete;
    UnseenTyping &operator=(const UnseenTyping &) = delete;

    /// A password is not read if the echo cannot be turned off.
    bool works() const { return m_works; }
    bool isKey(char typed, int key) const { return static_cast<cc_t>(typed) == m_usual.c_cc[key]; }

private:
    int m_terminal;
    termios m_usual = {};
    bool m_works;
};

QString documentPrompt(const QString &name, host::PasswordRound round)
{
    const QString prompt = name == host::standardInputName
                               ? TerminalPasswordText::tr("Password for the document on standard input:")
                               : TerminalPasswordText::tr("Password for the document \"%1\":").arg(name);
    return round == host::PasswordRound::Again
               ? TerminalPasswordText::tr("The password is wrong.") + u'\n' + prompt
               : prompt;
}

void removeLastCharacter(QByteArray &line)
{
    // One character may be several bytes of UTF-8.
    while (!line.isEmpty() && (line.back() & 0xC0) == 0x80)
        line.chop(1);
    if (!line.isEmpty())
        line.chop(1);
}

} // namespace

TerminalPassword::TerminalPassword()
    : m_terminal(::open("/dev/tty", O_RDWR | O_CLOEXEC | O_NOCTTY)) // NOLINT
{
}

TerminalPassword::~TerminalPassword()
{
    if (isThere())
        ::close(m_terminal);
}

std::optional<QString> TerminalPassword::ask(const QString &prompt, Typing typing) const
{
    if (!isThere())
        return std::nullopt;
    const std::optional<QByteArray> line = readLine(prompt.toLocal8Bit() + ' ', typing);
    write("\n");
    return line ? std::optional(QString::fromLocal8Bit(*line)) : std::nullopt;
}

void TerminalPassword::write(const QByteArray &text) const
{
    // A prompt that cannot be written does not prevent an answer.
    [[maybe_unused]] const ssize_t written =
        ::write(m_terminal, text.constData(), static_cast<std::size_t>(text.size()));
}

std::optional<QByteArray> TerminalPassword::readLine(const QByteArray &prompt, Typing shown) const
{
    const UnseenTyping typing(m_terminal);
    // Not earlier: letters typed before the echo is off would be visible, and would be lost.
    write(prompt);
    QByteArray line;
    // Rewritten from the start of its row after each key.
    const QByteArray row = prompt.mid(prompt.lastIndexOf('\n') + 1);
    while (typing.works()) {
        // Signals that end the program may be received at any time.
        constexpr int lookInterval = 100; // milliseconds
        pollfd keys{.fd = m_terminal, .events = POLLIN, .revents = 0};
        const int ready = ::poll(&keys, 1, lookInterval);
        if (SignalWatch::hasCaught())
            return std::nullopt;
        if (ready == 0 || (ready < 0 && errno == EINTR))
            continue;
        char typed = 0;
        const ssize_t length = ::read(m_terminal, &typed, 1);
        if (length <= 0 || typing.isKey(typed, VINTR) || typing.isKey(typed, VEOF))
            return std::nullopt;
        if (typed == '\n' || typed == '\r')
            return line;
        if (typing.isKey(typed, VERASE))
            removeLastCharacter(line);
        else if (typing.isKey(typed, VKILL))
            line.clear();
        else
            line += typed;
        if (shown == Typing::Shown)
            write("\r\x1b[K" + row + line);
    }
    return std::nullopt;
}

host::PasswordHandler askOnTerminal()
{
    return [](const host::PasswordRequest &request) {
        const TerminalPassword terminal;
        if (const std::optional<QString> password = terminal.ask(request.prompt()))
            request.answer(request.user(), *password);
        else
            request.reject();
    };
}

host::DocumentPasswordSource askDocumentPasswordOnTerminal()
{
    return [rounds = 0](const QString &name, host::PasswordRound round) mutable {
        constexpr int maxRounds = 3;
        rounds = round == host::PasswordRound::First ? 1 : rounds + 1;
        return rounds > maxRounds ? std::nullopt : TerminalPassword().ask(documentPrompt(name, round));
    };
}

} // namespace kvprint
} // namespace programs
