// SPDX-License-Identifier: Apache-2.0
#include "OutOfMemory.h"

#include <QByteArray>
#include <QCoreApplication>

#include <array>
#include <atomic>
#include <cstring>
#include <exception>
#include <new>
#include <system_error>

#include <sys/uio.h>
#include <unistd.h>

namespace host {
inline namespace base {

namespace {

struct OutOfMemoryText {
    Q_DECLARE_TR_FUNCTIONS(host::base::OutOfMemory)
};

/// Indexed by JobProgress.
constexpr std::array texts = {
    QT_TRANSLATE_NOOP("host::base::OutOfMemory", "Out of memory; nothing was printed."),
    QT_TRANSLATE_NOOP("host::base::OutOfMemory",
                      "Out of memory; the job may be incomplete, or left on the print server."),
    QT_TRANSLATE_NOOP("host::base::OutOfMemory", "Out of memory. The job was sent nevertheless."),
};

/// The texts that end() writes: in English, or in the language of the program after translate().
std::array<std::atomic<const char *>, texts.size()> sentences = {texts[0], texts[1], texts[2]};
std::atomic<JobProgress> jobProgress = JobProgress::Nothing;
std::atomic_flag isEnding;
std::atomic<void (*)()> endHook = nullptr;
std::terminate_handler previousTerminateHandler = nullptr;

/// Returns whether the exception means that memory or threads have run out.
bool isOutOfMemory(const std::exception_ptr &exception)
{
    if (!exception)
        return false;
    try {
        std::rethrow_exception(exception);
    } catch (const std::bad_alloc &) {
        return true;
    } catch (const std::system_error &error) {
        return error.code() == std::errc::resource_unavailable_try_again ||
               error.code() == std::errc::not_enough_memory;
    } catch (...) {
        return false;
    }
}

void endUncaught()
{
    if (isOutOfMemory(std::current_exception()))
        OutOfMemory::end();
    previousTerminateHandler();
}

/// Writes the sentence as one line to standard error without allocating memory.
void writeError(const char *sentence)
{
    const std::array<const char *, 3> parts = {"kvprint: ", sentence, "\n"};
    std::array<iovec, parts.size()> vector{};
    for (std::size_t i = 0; i < parts.size(); ++i)
        vector.at(i) = {const_cast<char *>(parts.at(i)), std::strlen(parts.at(i))};
    [[maybe_unused]] const ssize_t written =
        ::writev(STDERR_FILENO, vector.data(), static_cast<int>(vector.size()));
}

} // namespace

void OutOfMemory::installHandlers()
{
    previousTerminateHandler = std::set_terminate(endUncaught);
    std::set_new_handler(end);
}

void OutOfMemory::translate()
{
    // end() may read the texts until the process ends, so the array is never destroyed.
    static auto &translated = *new std::array<QByteArray, texts.size()>;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        translated.at(i) = OutOfMemoryText::tr(texts.at(i)).toLocal8Bit();
        sentences.at(i) = translated.at(i).constData();
    }
}

void OutOfMemory::end()
{
    // Only the first thread that gets here writes and exits; all others wait.
    while (isEnding.test_and_set())
        ::pause();
    if (void (*const hook)() = endHook)
        hook();
    writeError(sentences.at(static_cast<std::size_t>(jobProgress.load())));
    ::_exit(1);
}

void OutOfMemory::setEndHook(void (*hook)())
{
    endHook = hook;
}

void OutOfMemory::setJobProgress(JobProgress progress)
{
    jobProgress = progress;
}

} // namespace base
} // namespace host
