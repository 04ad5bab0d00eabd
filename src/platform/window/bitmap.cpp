#include "platform/window/bitmap.h"

#include <algorithm>
#include <array>

#include "platform/files.h"

CBitmap::CBitmap(int width, int height, Pixel fill)
    : m_width(std::clamp(width, 1, largestSide)),
      m_height(std::clamp(height, 1, largestSide)),
      m_pixels(static_cast<size_t>(m_width) * static_cast<size_t>(m_height), fill & 0xFFFFFF) {}

namespace {

constexpr size_t fileHeader = 14;
constexpr size_t infoHeader = 40;

/// Little-endian numbers at fixed places.
class Bytes {
  public:
    explicit Bytes(std::string_view bytes) : m_bytes(bytes) {}
    size_t size() const { return m_bytes.size(); }
    uint32_t at(size_t place, int count) const {
        uint32_t number = 0;
        for (int i = count; i-- > 0;)
            number = number << 8 | static_cast<uint8_t>(m_bytes[place + static_cast<size_t>(i)]);
        return number;
    }

  private:
    std::string_view m_bytes;
};

struct Header {
    size_t pixels = 0;  ///< where they begin
    int width = 0;
    int height = 0;
    bool isTopDown = false;
    int bits = 0;
    size_t palette = 0;
    size_t colours = 0;
    size_t stride = 0;
};

size_t strideOf(int width, int bits) {
    return (static_cast<size_t>(width) * static_cast<size_t>(bits) + 31) / 32 * 4;
}

/// What is wrong, or empty.
std::string readHeader(const Bytes& bytes, Header& header) {
    if (bytes.size() < fileHeader + infoHeader || bytes.at(0, 2) != 0x4D42)
        return "it is no .bmp picture";
    header.pixels = bytes.at(10, 4);
    const size_t infoSize = bytes.at(14, 4);
    const auto width = static_cast<int32_t>(bytes.at(18, 4));
    const auto height = static_cast<int32_t>(bytes.at(22, 4));
    header.isTopDown = height < 0;
    if (width < 1 || width > CBitmap::largestSide || height == 0 ||
        height < -CBitmap::largestSide || height > CBitmap::largestSide)
        return "its sides are not between 1 and " + std::to_string(CBitmap::largestSide) +
               " pixels";
    header.width = width;
    header.height = height < 0 ? -height : height;
    header.bits = static_cast<int>(bytes.at(28, 2));
    if (const uint32_t packing = bytes.at(30, 4); packing != 0)
        return "it is compressed: save it without compression";
    constexpr std::array known{1, 4, 8, 24, 32};
    if (std::find(known.begin(), known.end(), header.bits) == known.end())
        return "it has " + std::to_string(header.bits) +
               " bits a pixel: save it with 1, 4, 8, 24 or 32";
    header.palette = fileHeader + infoSize;
    if (header.bits <= 8) {
        header.colours = bytes.at(46, 4);
        const size_t most = size_t{1} << header.bits;
        if (header.colours == 0 || header.colours > most) header.colours = most;
    }
    header.stride = strideOf(header.width, header.bits);
    if (infoSize < infoHeader || header.palette + header.colours * 4 > bytes.size() ||
        header.pixels > bytes.size() ||
        header.stride * static_cast<size_t>(header.height) > bytes.size() - header.pixels)
        return "it ends too early";
    return {};
}

CBitmap::Pixel pixelAt(const Bytes& bytes, const Header& header, size_t line, int x) {
    const auto column = static_cast<size_t>(x);
    if (header.bits == 24) return bytes.at(line + column * 3, 3);
    if (header.bits == 32) return bytes.at(line + column * 4, 4) & 0xFFFFFF;
    const auto bits = static_cast<size_t>(header.bits);
    const size_t bit = column * bits;
    const uint32_t byte = bytes.at(line + bit / 8, 1);
    const uint32_t entry = byte >> (8 - bits - bit % 8) & ((1u << bits) - 1);
    if (entry >= header.colours) return CBitmap::black;
    return bytes.at(header.palette + entry * 4, 4) & 0xFFFFFF;
}

void append(std::string& text, uint32_t number, int count) {
    for (int i = 0; i < count; ++i) text += static_cast<char>(number >> (8 * i) & 0xFF);
}

constexpr size_t mostColours = 256;  // of a file with a palette

/// Sorted; one more than mostColours when there are too many.
std::vector<CBitmap::Pixel> coloursOf(const CBitmap& bitmap) {
    std::vector<CBitmap::Pixel> colours;
    for (int y = 0; y < bitmap.height(); ++y) {
        for (int x = 0; x < bitmap.width(); ++x) {
            const CBitmap::Pixel pixel = bitmap.at(x, y);
            if (x > 0 && pixel == bitmap.at(x - 1, y)) continue;
            const auto at = std::lower_bound(colours.begin(), colours.end(), pixel);
            if (at == colours.end() || *at != pixel) colours.insert(at, pixel);
            if (colours.size() > mostColours) return colours;
        }
    }
    return colours;
}

/// All up to the palette.
std::string fileStart(const CBitmap& bitmap, int bits, size_t colours) {
    const size_t size = strideOf(bitmap.width(), bits) * static_cast<size_t>(bitmap.height());
    const auto headers = static_cast<uint32_t>(fileHeader + infoHeader + 4 * colours);
    std::string text = "BM";
    append(text, headers + static_cast<uint32_t>(size), 4);
    append(text, 0, 4);
    append(text, headers, 4);
    append(text, infoHeader, 4);
    append(text, static_cast<uint32_t>(bitmap.width()), 4);
    append(text, static_cast<uint32_t>(bitmap.height()), 4);
    append(text, 1, 2);  // planes
    append(text, static_cast<uint32_t>(bits), 2);
    append(text, 0, 4);  // not compressed
    append(text, static_cast<uint32_t>(size), 4);
    append(text, 0, 4);  // resolution: none
    append(text, 0, 4);
    append(text, static_cast<uint32_t>(colours), 4);
    append(text, 0, 4);
    return text;
}

constexpr int boxSide = 13;

/// The picture of a check-box cell.
CBitmap boxPicture(bool isChecked) {
    CBitmap picture(boxSide, boxSide);
    for (int i = 0; i < boxSide; ++i)
        for (const auto& [x, y] : {std::pair{i, 0}, {i, boxSide - 1}, {0, i}, {boxSide - 1, i}})
            picture.set(x, y, 0x707070);
    if (!isChecked) return picture;
    // A tick three pixels thick: down to (5, 9), then up to (10, 4).
    for (int thick = -1; thick <= 1; ++thick) {
        for (int i = 0; i <= 3; ++i) picture.set(2 + i, 6 + i + thick, CBitmap::black);
        for (int i = 0; i <= 5; ++i) picture.set(5 + i, 9 - i + thick, CBitmap::black);
    }
    return picture;
}

}  // namespace

std::optional<CBitmap> decodeBitmap(std::string_view text, std::string& error) {
    const Bytes bytes(text);
    Header header;
    error = readHeader(bytes, header);
    if (!error.empty()) return std::nullopt;
    CBitmap bitmap(header.width, header.height);
    for (int y = 0; y < header.height; ++y) {
        const int fileRow = header.isTopDown ? y : header.height - 1 - y;
        const size_t line = header.pixels + header.stride * static_cast<size_t>(fileRow);
        for (int x = 0; x < header.width; ++x) bitmap.set(x, y, pixelAt(bytes, header, line, x));
    }
    return bitmap;
}

std::string encodeBitmap(const CBitmap& bitmap) {
    std::string text = fileStart(bitmap, 24, 0);
    const size_t stride = strideOf(bitmap.width(), 24);
    for (int y = bitmap.height() - 1; y >= 0; --y) {
        for (int x = 0; x < bitmap.width(); ++x) append(text, bitmap.at(x, y), 3);
        text.append(stride - static_cast<size_t>(bitmap.width()) * 3, '\0');
    }
    return text;
}

std::string packBitmap(const CBitmap& bitmap) {
    const std::vector<CBitmap::Pixel> colours = coloursOf(bitmap);
    if (colours.size() > mostColours) return encodeBitmap(bitmap);
    const int bits = colours.size() <= 2 ? 1 : colours.size() <= 16 ? 4 : 8;
    std::string text = fileStart(bitmap, bits, colours.size());
    for (const CBitmap::Pixel colour : colours) append(text, colour, 4);
    const size_t stride = strideOf(bitmap.width(), bits);
    auto found = colours.begin();
    for (int y = bitmap.height() - 1; y >= 0; --y) {
        std::string line(stride, '\0');
        for (int x = 0; x < bitmap.width(); ++x) {
            // Most pixels are as the one before.
            if (*found != bitmap.at(x, y))
                found = std::lower_bound(colours.begin(), colours.end(), bitmap.at(x, y));
            const size_t bit = static_cast<size_t>(x) * static_cast<size_t>(bits);
            const auto shift = 8 - static_cast<size_t>(bits) - bit % 8;
            line[bit / 8] |= static_cast<char>((found - colours.begin()) << shift);
        }
        text += line;
    }
    return text;
}

std::optional<CBitmap> readBitmap(std::string_view path, std::string& error) {
    const auto bytes = files::readWhole(path, error);
    if (!bytes) return std::nullopt;
    auto bitmap = decodeBitmap(*bytes, error);
    if (!bitmap) error = std::string(path) + ": " + error;
    return bitmap;
}

bool writeBitmap(const CBitmap& bitmap, std::string_view path, std::string& error) {
    if (bitmap.isEmpty()) {
        error = std::string(path) + ": the picture is empty";
        return false;
    }
    return files::writeWhole(path, encodeBitmap(bitmap), error);
}

CBitmap bitmapResource(int number) {
    if (number == bitmapChecked || number == bitmapUnchecked)
        return boxPicture(number == bitmapChecked);
    return {};
}
