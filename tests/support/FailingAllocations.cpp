// SPDX-License-Identifier: Apache-2.0
// A library to be preloaded into a program that has a malloc() of its own: makes the allocations of the C
// library fail on which it builds. It counts malloc(), calloc(), realloc() and the aligned kinds, and with
// them operator new, in all threads from the beginning of main() on. Read from the environment:
//
//   KV_FAIL_AT      the number of the allocation that fails, from 1 on; without it none fails
//   KV_FAIL_SINCE   when it is set, all later allocations fail as well
//   KV_FAIL_COUNT   a file of 8 bytes, to which the number of allocations is written as it grows
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdlib>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

using Counter = std::atomic<std::uint64_t>;
static_assert(sizeof(Counter) == sizeof(std::uint64_t) && Counter::is_always_lock_free);

Counter ownCounter = 0;
Counter *counter = &ownCounter;
std::uint64_t failing = 0;
bool failsSince = false;
std::atomic<bool> isCounting = false;

using Main = int (*)(int, char **, char **);
Main realMain = nullptr;

/// Mapped to the file, so that the count is correct however the program ends.
Counter *sharedCounter(const char *path)
{
    const int descriptor = open(path, O_RDWR | O_CLOEXEC); // NOLINT
    void *const memory = mmap(nullptr, sizeof(Counter), PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    close(descriptor);
    return memory == MAP_FAILED ? &ownCounter : static_cast<Counter *>(memory); // NOLINT
}

int countedMain(int count, char **words, char **environment)
{
    if (const char *const path = std::getenv("KV_FAIL_COUNT"))
        counter = sharedCounter(path);
    constexpr int decimal = 10;
    if (const char *const number = std::getenv("KV_FAIL_AT"))
        failing = std::strtoull(number, nullptr, decimal);
    failsSince = std::getenv("KV_FAIL_SINCE") != nullptr;
    isCounting = true;
    return realMain(count, words, environment);
}

bool fails()
{
    if (!isCounting)
        return false;
    const std::uint64_t number = ++*counter;
    const bool isFailing = failing > 0 && (number == failing || (failsSince && number > failing));
    if (isFailing)
        errno = ENOMEM;
    return isFailing;
}

/// Returns the function of the C library that this library replaces.
template<typename Function>
Function *hidden(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier,readability-inconsistent-declaration-parameter-name)
extern "C" {

__attribute__((visibility("default"))) int __libc_start_main(Main main, int count, char **words,
                                                             void (*begin)(), void (*end)(),
                                                             void (*endOfLinker)(), void *stack)
{
    realMain = main;
    const auto start = reinterpret_cast<decltype(&__libc_start_main)>(dlsym(RTLD_NEXT, "__libc_start_main"));
    return start(countedMain, count, words, begin, end, endOfLinker, stack);
}

__attribute__((visibility("default"))) void *__libc_malloc(std::size_t size)
{
    static const auto allocate = hidden<void *(std::size_t)>("__libc_malloc");
    return fails() ? nullptr : allocate(size);
}

__attribute__((visibility("default"))) void *__libc_calloc(std::size_t count, std::size_t size)
{
    static const auto allocate = hidden<void *(std::size_t, std::size_t)>("__libc_calloc");
    return fails() ? nullptr : allocate(count, size);
}

__attribute__((visibility("default"))) void *__libc_realloc(void *memory, std::size_t size)
{
    static const auto allocate = hidden<void *(void *, std::size_t)>("__libc_realloc");
    return fails() ? nullptr : allocate(memory, size);
}

__attribute__((visibility("default"))) void *__libc_memalign(std::size_t alignment, std::size_t size)
{
    static const auto allocate = hidden<void *(std::size_t, std::size_t)>("__libc_memalign");
    return fails() ? nullptr : allocate(alignment, size);
}

} // extern "C"
// NOLINTEND(bugprone-reserved-identifier,readability-inconsistent-declaration-parameter-name)
