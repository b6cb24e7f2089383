// SPDX-License-Identifier: Apache-2.0
// A PPD, byte by byte: plain or gzip, with everything that may stand in it.
#include "PpdExamination.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    examinePpd(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    return 0;
}
