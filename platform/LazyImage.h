// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Image.h"

#include <QIcon>

namespace platform {

/// A picture that is read when it is first asked for, so that a panel with two dozen pictures opens without
/// touching the files of those it never shows.
class LazyImage {
public:
    /// No picture.
    LazyImage() = default;
    /// The picture in the file.
    explicit LazyImage(QString path)
        : m_path(std::move(path))
    {
    }

    /// Null when there is none or its file cannot be read as an image. Read once; lives as long as this.
    const Image *get() const;

private:
    /// Empty once the file has been read.
    mutable QString m_path;
    mutable std::shared_ptr<const Image> m_image;
};

/// An icon that draws the picture, always in the variant that suits the application's theme. Nothing is read
/// before it is drawn.
QIcon iconFromImage(LazyImage image);

} // namespace platform
