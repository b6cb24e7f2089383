// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace programs {
inline namespace imagepdf {

/// An image and the size of its page, as PDF writes them.
struct ImagePage {
    int pixelsAcross = 0;
    int pixelsDown = 0;
    /// 1 for gray and 3 for RGB, of 8 bits each.
    int colors = 3;
    /// How the data is compressed: "/DCTDecode" for a JPEG, "/FlateDecode" for rows of pixels.
    std::string filter;
    /// In points.
    std::string width;
    std::string height;
    /// The data is borrowed and embedded unchanged.
    unsigned char *data = nullptr;
    std::size_t length = 0;
};

/// Writes a PDF with the page to standard output.
void writeImagePage(const ImagePage &page);

} // namespace imagepdf
} // namespace programs
