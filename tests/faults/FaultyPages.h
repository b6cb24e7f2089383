// SPDX-License-Identifier: Apache-2.0
#pragma once

/// What the faulty renderer does before it draws a page: by the number of the page, from 0.
enum class FaultyPage {
    Sound,   ///< draws the page
    Crash,   ///< accesses memory that it does not have
    Hang,    ///< never ends
    Memory,  ///< allocates gigabytes
    File,    ///< opens a file, which the system refuses, and draws the page
    Socket,  ///< opens a socket
    Process, ///< starts a process
    Exit,    ///< ends without an answer
};
