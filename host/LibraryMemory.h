// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

/// Ends the program when calls of libcups had no memory while the object lived. libcups leaves out what it
/// has no memory for, a choice of a PPD or an option of a job, and returns the rest: labels would be cut
/// otherwise than chosen. A failed allocation shows in "errno" only, which must not be set to another value
/// meanwhile.
class LibraryMemory {
public:
    LibraryMemory();
    ~LibraryMemory();
    LibraryMemory(const LibraryMemory &) = delete;
    LibraryMemory &operator=(const LibraryMemory &) = delete;
};

} // namespace host
