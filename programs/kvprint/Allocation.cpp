// SPDX-License-Identifier: Apache-2.0
// The program's malloc() and its kin. An allocation that fails ends the program with a message: Qt, libcups
// and fontconfig leave out what they have no memory for, a cut option of a job or a glyph of a label, and
// report no error. Memory comes from the C library, and its free() receives it.
#include <host/base/OutOfMemory.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>

extern "C" {
// The C library's own, for programs that replace the public ones.
void *__libc_malloc(std::size_t size);                    // NOLINT(bugprone-reserved-identifier)
void *__libc_calloc(std::size_t count, std::size_t size); // NOLINT(bugprone-reserved-identifier)
void *__libc_realloc(void *memory, std::size_t size);     // NOLINT(bugprone-reserved-identifier)
void *__libc_memalign(std::size_t alignment,
                      std::size_t size); // NOLINT(bugprone-reserved-identifier)
}

namespace {

/// In bytes. Code that allocates as much at once, for the pixels of a page, checks the result and reports
/// what is too large.
constexpr std::size_t largeSize = std::size_t{64} << 20U;

void *checked(void *memory, std::size_t size)
{
    if (!memory && size < largeSize)
        host::OutOfMemory::end();
    return memory;
}

std::size_t product(std::size_t count, std::size_t size)
{
    std::size_t bytes = 0;
    return __builtin_mul_overflow(count, size, &bytes) ? SIZE_MAX : bytes;
}

bool isAlignment(std::size_t alignment)
{
    return alignment >= sizeof(void *) && (alignment & (alignment - 1)) == 0;
}

} // namespace

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

__attribute__((visibility("default"))) void *malloc(std::size_t size)
{
    return checked(__libc_malloc(size), size);
}

__attribute__((visibility("default"))) void *calloc(std::size_t count, std::size_t size)
{
    return checked(__libc_calloc(count, size), product(count, size));
}

__attribute__((visibility("default"))) void *realloc(void *memory, std::size_t size)
{
    void *const resized = __libc_realloc(memory, size);
    // A size of zero frees the memory.
    return size == 0 ? resized : checked(resized, size);
}

__attribute__((visibility("default"))) void *memalign(std::size_t alignment, std::size_t size)
{
    return checked(__libc_memalign(alignment, size), size);
}

__attribute__((visibility("default"))) void *aligned_alloc(std::size_t alignment, std::size_t size)
{
    return memalign(alignment, size);
}

__attribute__((visibility("default"))) int posix_memalign(void **memory, std::size_t alignment,
                                                          std::size_t size)
{
    if (!isAlignment(alignment))
        return EINVAL;
    void *const aligned = memalign(alignment, size);
    if (!aligned)
        return ENOMEM;
    *memory = aligned;
    return 0;
}

} // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
