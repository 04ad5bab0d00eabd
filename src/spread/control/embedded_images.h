// Pictures that a sheet carries along: picture cells name them as they would name a file, and show
// them without any file. Equal ones are kept once.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/export.h"

namespace control {

/// The bytes of a picture file, shared between copies of the sheet.
struct EmbeddedImage {
    std::shared_ptr<const std::string> bytes;
    bool operator==(const EmbeddedImage& other) const { return *bytes == *other.bytes; }
};

/// By their names, which no file has.
using EmbeddedImages = std::map<std::string, EmbeddedImage, std::less<>>;

/// "#" and a number made from the bytes, so that equal pictures have equal names in all sheets.
VORMANT_API std::string pictureName(std::string_view bytes);
VORMANT_API bool isPictureName(std::string_view text);

/// The name under which the picture is in `pictures` afterwards.
VORMANT_API std::string keepPicture(EmbeddedImages& pictures, std::string bytes);

}  // namespace control
