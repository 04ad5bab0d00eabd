#include "drawing/stroke_font.h"

#include <algorithm>
#include <array>

namespace drawing {

namespace {

/// Capitals are 16 units high, small letters 11; 4 units more hang below the base line.
constexpr double capUnits = 16;
constexpr int baseLine = 4;
constexpr double gapUnits = 4;

/// Lines are separated by blanks; a point is two signs, x and y, each 0 to 9 or a to z for 10
/// to 35. A line that begins with "~" is a curve that its points pull, closed when it ends where it
/// begins.
struct Glyph {
    char character;
    std::string_view lines;
};

constexpr Glyph glyphs[] = {
    {'A', "046kc4 2aaa"},
    {'B', "040k 0k5k ~5k9kbibe9c6c 0c6c ~6cacc9c7a464 6404"},
    {'C', "~bh9k4k0h074494b7"},
    {'D', "040k 0k4k ~4kakcgc8a444 4404"},
    {'E', "a4040kak 0c8c"},
    {'F', "040kak 0c8c"},
    {'G', "~bh9k4k0h074494b7bb 6bbb"},
    {'H', "040k b4bk 0cbc"},
    {'I', "2k24 0k4k 0444"},
    {'J', "7k79 ~7974140407"},
    {'K', "040k 0aak 3db4"},
    {'L', "0k0494"},
    {'M', "040k68ckc4"},
    {'N', "040kb4bk"},
    {'O', "~6k2k0g082464a4c8cgak6k"},
    {'P', "040k 0k6k ~6k9kbibd9b6b 6b0b"},
    {'Q', "~6k2k0g082464a4c8cgak6k 87c3"},
    {'R', "040k 0k6k ~6k9kbibd9b6b 6b0b 5bb4"},
    {'S', "~ah8k2k0i0e2c8caaa6842406"},
    {'T', "0kck 646k"},
    {'U', "0k0a ~0a053484b5ba babk"},
    {'V', "0k64ck"},
    {'W', "0k448kc4gk"},
    {'X', "04bk 0kb4"},
    {'Y', "0k6cck 6c64"},
    {'Z', "0kbk04b4"},
    {'a', "~4f1f0d06144484969d8f4f 9f94"},
    {'b', "~4f1f0d06144484969d8f4f 0k04"},
    {'c', "~9d7f2f0d06247496"},
    {'d', "~4f1f0d06144484969d8f4f 9k94"},
    {'e', "0a9a ~9a9d8f1f0d0614448496"},
    {'f', "~6k4k3k3h34 0f6f"},
    {'g', "~4f1f0d06144484969d8f4f 9f93 ~9390501001"},
    {'h', "0k04 ~0b0b1f5f8f8b84 8b84"},
    {'i', "0f04 0j0k"},
    {'j', "~3f3f3321000100 3j3k"},
    {'k', "0k04 087f 3b84"},
    {'l', "0k04"},
    {'m', "0f04 ~0b0b1f4f7f7b74 ~7b7b8fbfefeb e4eb 747b"},
    {'n', "0f04 ~0b0b1f5f8f8b84 8b84"},
    {'o', "~4f1f0d06144484969d8f4f"},
    {'p', "~4f1f0d06144484969d8f4f 0f00"},
    {'q', "~4f1f0d06144484969d8f4f 9f90"},
    {'r', "0f04 ~0a0a1f4f6e"},
    {'s', "~7e6f4f1f0e0c1a4a7a7876544414050506"},
    {'t', "~3k37343474 0f6f"},
    {'u', "~0f0f0804448494 9f94"},
    {'v', "0f44 8f44"},
    {'w', "0f347ba4ef"},
    {'x', "048f 0f84"},
    {'y', "0f44 8f20"},
    {'z', "0f8f0484"},
    {'0', "~5k1k0g08145494a8ag9k5k"},
    {'1', "0h4k44"},
    {'2', "~0g1k9kag8c04 04a4"},
    {'3', "~0i2k7k9i9e7c4c ~4c8caaa6842406"},
    {'4', "747k08a8"},
    {'5', "9k1k0c ~0c2e8eaca6842406"},
    {'6', "~9k4k0g09 ~5d1d0b06145494a6ab9d5d"},
    {'7', "0kak34"},
    {'8', "~5k2k1i1e2c5c8c9e9i8k5k ~5c1c0a06145494a6aa9c5c"},
    {'9', "~5k1k0i0d1b5b9badai9k5k ~1464a8af"},
    {'.', "0405"},
    {',', "1504 1501"},
    {'-', "0b7b"},
    {'+', "0b8b 4f47"},
    {'=', "0d8d 0989"},
    {'/', "028m"},
    {'%', "04ck ~3k1k0i0g1e3e5e6g6i5k3k ~9a7a68667494b4c6c8ba9a"},
    {'(', "~4m0i0c064042"},
    {')', "~0m4i4c464002"},
    {':', "0405 0d0e"},
    {'\'', "0k0g"},
    {'"', "0k0g 3k3g"},
    {'#', "343k 848k 09c9 0fcf"},
    {'_', "02a2"},
    {'<', "8f0b87"},
    {'>', "0f8b07"},
    {'?', "~0h2k8kahae5c58 5455"},
    {'!', "0k08 0405"},
    {';', "1504 1501 0d0e"},
    {'*', "0d8d 2h69 6h29"},
    {'\xB0', "~3k1k0i0g1e3e5e6g6i5k3k"},
    {'\xB2', "~0j0k2k5k5h2e0c 0c5c"},
    {'\xD7', "078f 0f87"},
    {'\xD8', "~6k2k0g082464a4c8cgak6k 04ck"},
    {'\xF8', "~4f1f0d06144484969d8f4f 039g"},
};

/// The base letters of 0xC0 to 0xFF.
constexpr std::string_view withoutAccents =
    "AAAAAAACEEEEIIIIDNOOOOO\xD7\xD8UUUUYPsaaaaaaaceeeeiiiidnooooo/\xF8uuuuypy";

constexpr std::string_view unknown = "040kak0404 04a4ak";

std::string_view linesOf(char character) {
    const auto* const found =
        std::find_if(std::begin(glyphs), std::end(glyphs),
                     [character](const Glyph& each) { return each.character == character; });
    if (found != std::end(glyphs)) return found->lines;
    const auto code = static_cast<unsigned char>(character);
    return code >= 0xC0 ? linesOf(withoutAccents[code - 0xC0u]) : unknown;
}

int digit(char sign) {
    return sign <= '9' ? sign - '0' : sign - 'a' + 10;
}

/// Cuts the corners off, so that a curve comes near its points.
std::vector<Point> smoothed(std::vector<Point> points) {
    const bool isClosed = points.front() == points.back();
    for (int round = 0; round < 3; ++round) {
        std::vector<Point> finer;
        if (!isClosed) finer.push_back(points.front());
        for (size_t i = 0; i + 1 < points.size(); ++i) {
            finer.push_back(points[i] * 0.75 + points[i + 1] * 0.25);
            finer.push_back(points[i] * 0.25 + points[i + 1] * 0.75);
        }
        finer.push_back(isClosed ? finer.front() : points.back());
        points = std::move(finer);
    }
    return points;
}

std::vector<std::vector<Point>> strokesOf(char character) {
    std::vector<std::vector<Point>> strokes;
    std::string_view rest = linesOf(character);
    while (!rest.empty()) {
        std::string_view line = rest.substr(0, rest.find(' '));
        rest.remove_prefix(std::min(rest.size(), line.size() + 1));
        const bool isCurve = line.starts_with('~');
        if (isCurve) line.remove_prefix(1);
        std::vector<Point> points;
        for (size_t i = 0; i + 1 < line.size(); i += 2)
            points.push_back({static_cast<double>(digit(line[i])),
                              static_cast<double>(digit(line[i + 1]) - baseLine)});
        strokes.push_back(isCurve ? smoothed(std::move(points)) : std::move(points));
    }
    return strokes;
}

constexpr double blankUnits = 6;

double unitsOf(char character) {
    if (character == ' ') return blankUnits;
    double width = 0;
    for (const auto& stroke : strokesOf(character)) width = std::max(width, boundsOf(stroke).right);
    return width + gapUnits;
}

}  // namespace

std::vector<std::vector<Point>> textStrokes(std::string_view text, double capHeight) {
    const double scale = capHeight / capUnits;
    std::vector<std::vector<Point>> strokes;
    double x = 0;
    for (const char character : text) {
        if (character != ' ')
            for (auto& stroke : strokesOf(character)) {
                for (Point& point : stroke) point = Point{point.x + x, point.y} * scale;
                strokes.push_back(std::move(stroke));
            }
        x += unitsOf(character);
    }
    return strokes;
}

double textWidth(std::string_view text, double capHeight) {
    double units = 0;
    for (const char character : text) units += unitsOf(character);
    return std::max(0.0, units - gapUnits) * capHeight / capUnits;
}

double strokeWidth(double capHeight) {
    return std::max(1.0, capHeight / 8);
}

}  // namespace drawing
