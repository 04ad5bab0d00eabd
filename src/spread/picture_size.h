// How large a picture file is, without decoding it.
#pragma once

#include <optional>
#include <string_view>

struct PictureSize {
    int width = 0;   ///< pixels
    int height = 0;  ///< pixels
};

/// The size of a bitmap (.bmp) or PNG file by its header. Nothing for other files.
std::optional<PictureSize> pictureSize(std::string_view path);
