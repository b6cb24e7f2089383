// SPDX-License-Identifier: Apache-2.0
#include "SharedPixels.h"

#include <fcntl.h>
#include <memory>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {
inline namespace rendering {

namespace {

constexpr qint64 bytesPerPixel = 4;
/// More than the largest picture that is drawn.
constexpr int maxSide = 65'536;

struct Mapping {
    void *address = nullptr;
    std::size_t length = 0;
};

void unmap(void *mapping)
{
    const std::unique_ptr<Mapping> owned(static_cast<Mapping *>(mapping));
    munmap(owned->address, owned->length);
}

qint64 byteCount(QSize size)
{
    return bytesPerPixel * size.width() * size.height();
}

bool isPossible(QSize size)
{
    return size.width() > 0 && size.height() > 0 && size.width() <= maxSide && size.height() <= maxSide;
}

/// Returns a null image if the memory cannot be mapped.
QImage mappedImage(int memory, QSize size)
{
    const auto length = static_cast<std::size_t>(byteCount(size));
    void *const address = mmap(nullptr, length, PROT_READ | PROT_WRITE, MAP_SHARED, memory, 0);
    if (address == MAP_FAILED) // NOLINT
        return {};
    return {static_cast<uchar *>(address), size.width(),         size.height(),
            bytesPerPixel * size.width(),  SharedPixels::format, unmap,
            new Mapping{address, length}};
}

} // namespace

SharedPixels::SharedPixels(OwnedDescriptor memory, QImage image)
    : m_memory(std::move(memory))
    , m_image(std::move(image))
{
}

std::optional<SharedPixels> SharedPixels::make(QSize size)
{
    if (!isPossible(size))
        return std::nullopt;
    OwnedDescriptor memory(memfd_create("kvprint-page", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    if (!memory || ftruncate(memory.number(), byteCount(size)) != 0 ||
        fcntl(memory.number(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) != 0)
        return std::nullopt;
    return map(std::move(memory), size);
}

std::optional<SharedPixels> SharedPixels::map(OwnedDescriptor memory, QSize size)
{
    struct stat state = {};
    if (!isPossible(size) || !memory || fstat(memory.number(), &state) != 0 ||
        state.st_size < byteCount(size))
        return std::nullopt;
    QImage image = mappedImage(memory.number(), size);
    if (image.isNull())
        return std::nullopt;
    return SharedPixels(std::move(memory), std::move(image));
}

} // namespace rendering
} // namespace host
