// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

/// Ends the program when calls of libcups or Qt had no memory while the object lived. They leave out what
/// they have no memory for, a choice of a PPD, an option of a job or a text of a label, and return the rest:
/// labels would be cut otherwise than chosen, or lack a part. A failed allocation shows in "errno" only,
/// which must not be set to another value meanwhile. Several may live at a time in a thread.
class LibraryMemory {
public:
    LibraryMemory();
    ~LibraryMemory();
    LibraryMemory(const LibraryMemory &) = delete;
    LibraryMemory &operator=(const LibraryMemory &) = delete;
};

} // namespace host
