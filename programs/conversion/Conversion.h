// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace programs {
inline namespace conversion {

/// Why a document cannot be converted. The text is the reason, in English: kvprint reports the exit status in
/// the language of the user.
class ConversionError : public std::runtime_error {
public:
    /// The exit status of the program.
    enum Status {
        Damaged = 1,  ///< the document or an argument is invalid, or a stream cannot be read or written
        TooLarge = 2, ///< the document needs more memory or time than there is
        WrongPassword = 3,
    };

    /// An error with its reason.
    ConversionError(Status status, const std::string &reason)
        : std::runtime_error(reason)
        , m_status(status)
    {
    }

    /// The status of the error.
    Status status() const { return m_status; }

private:
    Status m_status;
};

/// Returns all bytes of standard input. Throws a ConversionError if it cannot be read.
std::vector<unsigned char> readStandardInput();

/// Writes what standard output still holds. Throws a ConversionError if it cannot be written.
void flushStandardOutput();

/// Executes the conversion and returns the exit status of the program: 0, or the status of the
/// ConversionError that the conversion throws. Too little memory is TooLarge, and any other exception is
/// Damaged. Writes the name of the program and the reason to standard error.
int runConversion(const char *program, const std::function<void()> &conversion);

} // namespace conversion
} // namespace programs
