// SPDX-License-Identifier: Apache-2.0
// A library to be preloaded into a program: the lookup of "silent.test" never ends, as if the name server did
// not respond, and "printers.test" is this machine. All other names are looked up as usual. Creates the file
// KV_NAME_SERVER_ASKED when the endless lookup begins.
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <netdb.h>
#include <unistd.h>

extern "C" __attribute__((visibility("default"))) int getaddrinfo(const char *name, const char *service,
                                                                  const addrinfo *hints, addrinfo **found)
{
    const bool isNumericOnly = hints && (hints->ai_flags & AI_NUMERICHOST);
    if (name && !isNumericOnly && std::strcmp(name, "silent.test") == 0) {
        close(open(std::getenv("KV_NAME_SERVER_ASKED"), O_CREAT | O_WRONLY | O_CLOEXEC, 0600)); // NOLINT
        for (;;)
            pause();
    }
    const bool isHere = name && !isNumericOnly && std::strcmp(name, "printers.test") == 0;
    static const auto real = reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
    return real(isHere ? "127.0.0.1" : name, service, hints, found);
}
