// How large a picture file is, without decoding it.
#pragma once

#include <optional>
#include <string_view>

struct PictureSize {
    int width = 0;   ///< pixels
    int height = 0;  ///< pixels
};

/// The size of a bitmap (.bmp) or PNG file by the header in its bytes. Nothing for other files.
std::optional<PictureSize> pictureSizeOf(std::string_view bytes);
