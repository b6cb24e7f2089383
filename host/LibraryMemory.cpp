// SPDX-License-Identifier: Apache-2.0
#include "LibraryMemory.h"

#include "OutOfMemory.h"

#include <cerrno>

namespace host {

namespace {

/// How many there are in the thread; an inner one leaves what an outer one waits for.
thread_local int depth = 0;

} // namespace

LibraryMemory::LibraryMemory()
{
    if (depth == 0)
        errno = 0;
    ++depth;
}

LibraryMemory::~LibraryMemory()
{
    --depth;
    if (errno == ENOMEM)
        OutOfMemory::end();
}

} // namespace host
