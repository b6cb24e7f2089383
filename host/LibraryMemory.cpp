// SPDX-License-Identifier: Apache-2.0
#include "LibraryMemory.h"

#include "OutOfMemory.h"

#include <cerrno>

namespace host {

LibraryMemory::LibraryMemory()
{
    errno = 0;
}

LibraryMemory::~LibraryMemory()
{
    if (errno == ENOMEM)
        OutOfMemory::end();
}

} // namespace host
