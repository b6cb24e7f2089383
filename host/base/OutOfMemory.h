// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {
inline namespace base {

/// The progress of the job that the program prints.
enum class JobProgress {
    Nothing,  ///< no part of the job can have been printed or written, or the job has been canceled
    Underway, ///< the print server may have received the job, or some output files may be written
    Printed,  ///< the job has been sent, or all output files are written
};

/// Ends the program when memory runs out: writes one line to standard error that reports whether anything was
/// printed, and exits with status 1. Qt and the C++ library cannot continue without memory, and an exception
/// would leave their objects in an inconsistent state. Nothing is cleaned up; as after a crash, the program
/// removes temporary files and reports remaining jobs at its next start.
class OutOfMemory {
public:
    /// Installs the handlers that call end() for every failed allocation by "new" and for every uncaught
    /// exception that is caused by a lack of memory or threads. The message is in English until translate()
    /// is called.
    static void installHandlers();
    /// Translates the message to the language of the program. Must be called after the translators are
    /// installed.
    static void translate();
    /// Ends the program immediately. Also called where the result of a library function can only mean that
    /// memory has run out.
    [[noreturn]] static void end();

    /// Sets a function that end() calls before it ends the program; null for none. It must not allocate
    /// memory and can be called in any thread.
    static void setEndHook(void (*hook)());

    /// Sets the progress that end() reports, for all threads. Can be called from any thread.
    static void setJobProgress(JobProgress progress);
};

} // namespace base
} // namespace host
