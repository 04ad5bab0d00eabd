// A picture in memory: rows of 0x00RRGGBB pixels from the top. A value; an empty one has no pixels.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/export.h"
#include "platform/window/geometry.h"

class VORMANT_API CBitmap {
  public:
    using Pixel = uint32_t;
    static constexpr Pixel white = 0xFFFFFF;
    static constexpr Pixel black = 0x000000;
    /// Sides are limited, so that a damaged file cannot ask for all memory.
    static constexpr int largestSide = 16384;

    CBitmap() = default;
    /// Sides from 1 to largestSide.
    CBitmap(int width, int height, Pixel fill = white);

    int width() const { return m_width; }
    int height() const { return m_height; }
    bool isEmpty() const { return m_pixels.empty(); }
    /// Inside the picture.
    Pixel at(int x, int y) const { return m_pixels[index(x, y)]; }
    void set(int x, int y, Pixel pixel) { m_pixels[index(x, y)] = pixel & 0xFFFFFF; }
    const Pixel* row(int y) const { return m_pixels.data() + index(0, y); }

    bool operator==(const CBitmap&) const = default;

  private:
    size_t index(int x, int y) const {
        return static_cast<size_t>(y) * static_cast<size_t>(m_width) + static_cast<size_t>(x);
    }
    int m_width = 0;
    int m_height = 0;
    std::vector<Pixel> m_pixels;
};

/// Uncompressed ".bmp" files of 1, 4, 8, 24 or 32 bits a pixel. Nothing, with the reason in
/// `error` ("file: what is wrong"), for all else. Host-style path.
VORMANT_API std::optional<CBitmap> readBitmap(std::string_view path, std::string& error);
/// The same from the bytes of such a file; `error` without a file name.
VORMANT_API std::optional<CBitmap> decodeBitmap(std::string_view bytes, std::string& error);
/// As 24 bits a pixel.
VORMANT_API std::string encodeBitmap(const CBitmap& bitmap);
/// With as few bits a pixel as its colours take: a drawing is a sixth of the size. Reads back the
/// same.
VORMANT_API std::string packBitmap(const CBitmap& bitmap);
VORMANT_API bool writeBitmap(const CBitmap& bitmap, std::string_view path, std::string& error);

/// The bitmap of a resource number, as the module's dialogs and cells show it: those that are
/// drawn by the module itself (8134 and 8136, a check box with and without its tick). Empty for
/// numbers that only the screen has a picture for.
VORMANT_API CBitmap bitmapResource(int number);
inline constexpr int bitmapChecked = 8134;
inline constexpr int bitmapUnchecked = 8136;
