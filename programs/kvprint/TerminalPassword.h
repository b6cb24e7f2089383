// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <host/cups/server/Passwords.h>
#include <host/documents/DocumentPassword.h>

namespace programs {
inline namespace kvprint {

/// Reads a password or another answer from the controlling terminal, as lp does: standard input and output
/// may be redirected to documents and results.
class TerminalPassword {
public:
    /// Opens the terminal. isThere() returns false if there is none.
    TerminalPassword();
    ~TerminalPassword();
    TerminalPassword(const TerminalPassword &) = delete;
    TerminalPassword &operator=(const TerminalPassword &) = delete;

    /// Returns whether the program has a terminal.
    bool isThere() const { return m_terminal >= 0; }
    /// Whether typed characters are shown.
    enum class Typing {
        Unseen, ///< nothing of what is typed is shown
        Shown,
    };
    /// Shows the prompt and waits for a line. Absent if Ctrl-C or Ctrl-D is pressed, or without a terminal.
    std::optional<QString> ask(const QString &prompt, Typing typing = Typing::Unseen) const;

private:
    void write(const QByteArray &text) const;
    /// Returns the bytes that are typed after the prompt until the end of the line.
    std::optional<QByteArray> readLine(const QByteArray &prompt, Typing shown) const;

    int m_terminal = -1;
};

/// Returns a handler that asks on the terminal for each request, and rejects it without a terminal. It
/// processes no events while it waits: for runs without windows.
host::PasswordHandler askOnTerminal();

/// Asks on the terminal for the password of a document, up to three times for the same one. Returns nothing
/// without a terminal.
host::DocumentPasswordSource askDocumentPasswordOnTerminal();

} // namespace kvprint
} // namespace programs
