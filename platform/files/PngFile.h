// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QSize>

#include <optional>

namespace platform {
inline namespace files {

/// The picture's size in pixels when the bytes are a PNG file that is whole: it begins as one, ends with its
/// end chunk, and the checksum of each chunk is right. Decoding would say the same and takes fifty times as
/// long.
std::optional<QSize> sizeOfIntactPng(const QByteArray &bytes);

} // namespace files
} // namespace platform
