// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

/// What has become of the job that the program prints.
enum class JobProgress {
    Nothing,  ///< nothing can be printed or written yet, or it has been canceled
    Underway, ///< the print server may have the job, or some of its files may be written
    Printed,  ///< the job is sent, or all of its files are written
};

/// Ends the program when there is no memory left: with a line on standard error that says whether something
/// was printed, and with status 1. Qt and the C++ library cannot go on without memory, and an exception would
/// leave them half-changed. Nothing is cleaned up; the program's next start removes temporary files and
/// reports jobs that are left, as after a crash.
class OutOfMemory {
public:
    /// Has every allocation by "new" that fails, and every exception for want of memory that is not caught,
    /// end the program. In English.
    static void endsProgram();
    /// Says it in the language of the program from now on. To be called when translations are installed.
    static void translate();
    /// Ends the program now. For results of libraries that can mean nothing else.
    [[noreturn]] static void end();

    /// For all threads: what end() says of the job.
    static void setJobProgress(JobProgress progress);
};

} // namespace host
