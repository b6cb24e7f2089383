// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QSize>

#include <optional>

namespace platform {
inline namespace files {

/// Returns the picture's size in pixels if the bytes are an intact PNG file: it has the signature and the
/// header, ends with the end chunk, and the checksum of each chunk is correct. Returns std::nullopt
/// otherwise. Decoding would give the same result and takes fifty times as long.
std::optional<QSize> sizeOfIntactPng(const QByteArray &bytes);

} // namespace files
} // namespace platform
