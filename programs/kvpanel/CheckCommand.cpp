// SPDX-License-Identifier: Apache-2.0
#include "CheckCommand.h"

#include "BundleCheck.h"

#include <cstdio>

int runCheck(const QStringList &arguments, bool hasBundleOption)
{
    if (arguments.size() != 2 || hasBundleOption) {
        std::fprintf(stderr, "kvpanel: --check needs a bundle and a PPD, and no other option\n");
        return 2;
    }
    const auto report = BundleCheck::run(arguments[0], arguments[1]);
    if (!report) {
        std::fprintf(stderr, "kvpanel: %s\n", qUtf8Printable(report.error().message));
        return 2;
    }
    if (!report.value().isForPrinter)
        std::fprintf(stderr, "kvpanel: \"%s\" has no option that \"%s\" handles; check it with another PPD\n",
                     qUtf8Printable(arguments[1]), qUtf8Printable(arguments[0]));
    for (const QString &line : report.value().breaches)
        std::printf("%s\n", qUtf8Printable(line));
    if (std::fflush(stdout) != 0) {
        std::fprintf(stderr, "kvpanel: cannot write the breaches to standard output\n");
        return 2;
    }
    return report.value().breaches.isEmpty() ? 0 : 1;
}
