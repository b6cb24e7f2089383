// SPDX-License-Identifier: Apache-2.0
// Reads and draws PDFs in a sandbox. kvprint starts this program and sends it requests; it is of no use on a
// command line.
#include <programs/renderer/RenderService.h>

#include <cstdio>

#include <sys/socket.h>

namespace {

/// Returns whether the program was started with a channel.
bool hasChannel()
{
    int type = 0;
    socklen_t length = sizeof(type);
    return getsockopt(host::rendererDescriptor, SOL_SOCKET, SO_TYPE, &type, &length) == 0 &&
           type == SOCK_SEQPACKET;
}

} // namespace

int main()
{
    if (!hasChannel()) {
        std::fputs("kvprint-renderer: this program is started by kvprint\n", stderr);
        return 2;
    }
    programs::RenderService().run();
    return 0;
}
