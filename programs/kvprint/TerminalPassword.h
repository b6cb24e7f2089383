// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/Passwords.h>

namespace programs {
inline namespace kvprint {

/// Asks for a password, or something else, on the terminal that the program was started from, as lp does;
/// standard input and output may be something else, for they carry documents and results.
class TerminalPassword {
public:
    /// Opens the terminal. There may be none; see isThere().
    TerminalPassword();
    ~TerminalPassword();
    TerminalPassword(const TerminalPassword &) = delete;
    TerminalPassword &operator=(const TerminalPassword &) = delete;

    bool isThere() const { return m_terminal >= 0; }
    enum class Typing {
        Unseen, ///< nothing of what is typed is shown
        Shown,
    };
    /// Shows the prompt and waits for a line. Nothing when it was ended by Ctrl-C or Ctrl-D instead, or when
    /// there is no terminal.
    std::optional<QString> ask(const QString &prompt, Typing typing = Typing::Unseen) const;

private:
    void say(const QByteArray &text) const;
    /// The bytes typed behind the prompt until the end of the line.
    std::optional<QByteArray> readLine(const QByteArray &prompt, Typing shown) const;

    int m_terminal = -1;
};

/// Asks on the terminal for every request, and refuses it where there is none. It waits for the answer and
/// lets no other events come in meanwhile: for runs without windows.
host::PasswordHandler askOnTerminal();

} // namespace kvprint
} // namespace programs
