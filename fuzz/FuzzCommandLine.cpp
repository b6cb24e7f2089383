// SPDX-License-Identifier: Apache-2.0
// A command line, its arguments terminated by NUL as the system passes them. Every error has a message.
#include <programs/kvprint/CommandParser.h>

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QStringList arguments{QStringLiteral("kvprint")};
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    for (const QByteArray &argument : bytes.split('\0'))
        arguments.append(QString::fromUtf8(argument));
    const auto command = programs::parseCommandLine(arguments);
    if (!command && command.error().message.isEmpty())
        qFatal("refused without a word");
    return 0;
}
