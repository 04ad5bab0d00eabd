// How large a picture file is, without decoding it.
#pragma once

#include <optional>
#include <string_view>

struct PictureSize {
    int width = 0;   ///< pixels
    int height = 0;  ///< pixels
};

/// The size of a bitmap (.bmp), PNG, JPEG or GIF file by the headers in its bytes. Nothing for
/// others and for what no picture can be.
std::optional<PictureSize> pictureSizeOf(std::string_view bytes);
