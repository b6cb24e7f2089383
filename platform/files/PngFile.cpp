// SPDX-License-Identifier: Apache-2.0
#include "PngFile.h"

#include <QtEndian>

#include <zlib.h>

namespace platform {
inline namespace files {

namespace {

constexpr qsizetype signatureLength = 8;
// A chunk consists of its length, a name of four letters, its data, and a checksum of name and data.
constexpr qsizetype lengthLength = 4;
constexpr qsizetype nameLength = 4;
constexpr qsizetype checksumLength = 4;

struct Chunk {
    QByteArrayView name;
    QByteArrayView data;
};

quint32 numberAt(QByteArrayView bytes, qsizetype position)
{
    return qFromBigEndian<quint32>(bytes.data() + position);
}

/// Moves the first chunk out of the bytes. Returns std::nullopt if the chunk is truncated or its checksum is
/// wrong.
std::optional<Chunk> moveOutChunk(QByteArrayView *bytes)
{
    constexpr qsizetype frame = lengthLength + nameLength + checksumLength;
    if (bytes->size() < frame)
        return std::nullopt;
    const qsizetype length = numberAt(*bytes, 0);
    if (length > bytes->size() - frame)
        return std::nullopt;
    const QByteArrayView checked = bytes->sliced(lengthLength, nameLength + length);
    const uLong checksum =
        crc32(0, reinterpret_cast<const Bytef *>(checked.data()), static_cast<uInt>(checked.size()));
    if (checksum != numberAt(*bytes, lengthLength + checked.size()))
        return std::nullopt;
    *bytes = bytes->sliced(frame + length);
    return Chunk{checked.first(nameLength), checked.sliced(nameLength)};
}

} // namespace

std::optional<QSize> sizeOfIntactPng(const QByteArray &bytes)
{
    if (!bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return std::nullopt;
    QByteArrayView left = QByteArrayView(bytes).sliced(signatureLength);
    std::optional<Chunk> chunk = moveOutChunk(&left);
    constexpr qsizetype headLength = 13;
    if (!chunk || chunk->name != "IHDR" || chunk->data.size() != headLength)
        return std::nullopt;
    const QSize size(static_cast<int>(numberAt(chunk->data, 0)), static_cast<int>(numberAt(chunk->data, 4)));
    bool hasPixels = false;
    while (chunk && chunk->name != "IEND") {
        chunk = moveOutChunk(&left);
        hasPixels = hasPixels || (chunk && chunk->name == "IDAT");
    }
    if (!chunk || !hasPixels || size.isEmpty())
        return std::nullopt;
    return size;
}

} // namespace files
} // namespace platform
