// SPDX-License-Identifier: Apache-2.0
#include "Conversion.h"

#include <cstdio>
#include <exception>
#include <new>

namespace programs {
inline namespace conversion {

namespace {

int failed(const char *program, ConversionError::Status status, const char *reason)
{
    std::fprintf(stderr, "%s: %s\n", program, reason);
    return status;
}

} // namespace

std::vector<unsigned char> readStandardInput()
{
    constexpr std::size_t blockSize = std::size_t{1} << 20U;
    std::vector<unsigned char> data;
    std::size_t size = 0;
    do {
        data.resize(size + blockSize);
        size += std::fread(data.data() + size, 1, blockSize, stdin);
    } while (size == data.size());
    if (std::ferror(stdin) != 0)
        throw ConversionError(ConversionError::Damaged, "cannot read standard input");
    data.resize(size);
    return data;
}

void flushStandardOutput()
{
    if (std::fflush(stdout) != 0)
        throw ConversionError(ConversionError::Damaged, "cannot write the PDF to standard output");
}

int runConversion(const char *program, const std::function<void()> &conversion)
{
    try {
        conversion();
    } catch (const ConversionError &error) {
        return failed(program, error.status(), error.what());
    } catch (const std::bad_alloc &) {
        return failed(program, ConversionError::TooLarge, "out of memory");
    } catch (const std::exception &error) {
        return failed(program, ConversionError::Damaged, error.what());
    }
    return 0;
}

} // namespace conversion
} // namespace programs
