// SPDX-License-Identifier: Apache-2.0
// A renderer that does on some pages what a hostile PDF could make it do.
#include "FaultyPages.h"

#include <programs/renderer/RenderService.h>

#include <csignal>
#include <cstdlib>
#include <new>

#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

/// More memory than the sandbox allows. AddressSanitizer has a limit of its own.
#ifdef KV_SANITIZED
constexpr std::size_t tooMuch = std::size_t{1} << 46U;
#else
constexpr std::size_t tooMuch = std::size_t{3} << 30U;
#endif

void crash()
{
    // Without a handler of a sanitizer, which reports the crash and exits.
    std::signal(SIGSEGV, SIG_DFL);
    std::raise(SIGSEGV);
}

void hang()
{
    volatile bool goesOn = true;
    while (goesOn) {
    }
}

/// Exits with a status that no other fault has if the system allows it.
void attempt(bool isAllowed)
{
    if (isAllowed)
        std::_Exit(0);
    // Draws the page.
}

void beforeDrawing(int page)
{
    switch (static_cast<FaultyPage>(page)) {
    case FaultyPage::Sound:
        break;
    case FaultyPage::Crash:
        return crash();
    case FaultyPage::Hang:
        return hang();
    case FaultyPage::Memory:
        // Throws; as in the library for PDFs, no function catches it.
        static_cast<void>(new char[tooMuch]);
        std::_Exit(0);
    case FaultyPage::File:
        return attempt(open("/etc/passwd", O_RDONLY) >= 0); // NOLINT
    case FaultyPage::Socket:
        return attempt(socket(AF_INET, SOCK_STREAM, 0) >= 0);
    case FaultyPage::Process:
        return attempt(fork() >= 0);
    case FaultyPage::Exit:
        std::_Exit(0);
    }
}

} // namespace

int main()
{
    programs::RenderService service;
    service.setBeforeDrawing(beforeDrawing);
    service.run();
    return 0;
}
