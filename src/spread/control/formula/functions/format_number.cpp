#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <span>

#include "spread/control/formula/functions/format_section.h"
#include "spread/control/formula/functions/number_format.h"

namespace formula::number_format {
namespace {

using Pieces = std::span<const Piece>;

/// What an empty place of this kind shows.
void appendEmpty(std::string& text, char symbol) {
    if (symbol == '0') text += '0';
    if (symbol == '?') text += ' ';
}

std::ptrdiff_t indexOf(Pieces pieces, Part part) {
    const auto found = std::find_if(pieces.begin(), pieces.end(),
                                    [part](const Piece& piece) { return piece.part == part; });
    return found == pieces.end() ? -1 : found - pieces.begin();
}

int countDigits(Pieces pieces) {
    return static_cast<int>(std::count_if(pieces.begin(), pieces.end(), [](const Piece& piece) {
        return piece.part == Part::digit;
    }));
}

/// The digits left of the point from `highest` power of ten down to `lowest`, with commas.
void appendWhole(std::string& text, const Decimal& decimal, int highest, int lowest, bool grouped) {
    for (int power = highest; power >= lowest; --power) {
        text += decimal.digitAt(power);
        if (grouped && power > 0 && power % 3 == 0) text += ',';
    }
}

/// The pieces before the point: every place takes a digit, the first also those that have none.
std::string writeWhole(Pieces pieces, const Decimal& decimal, bool grouped) {
    std::string text;
    int places = countDigits(pieces);
    const int digits = decimal.wholeDigits();
    if (places == 0) appendWhole(text, decimal, digits - 1, 0, grouped);
    bool isFirst = true;
    for (const Piece& piece : pieces) {
        if (piece.part == Part::percent) text += '%';
        if (piece.part != Part::digit) {
            text += piece.text;
            continue;
        }
        const int power = --places;
        if (power < digits) {
            appendWhole(text, decimal, isFirst ? digits - 1 : power, power, grouped);
        } else {
            appendEmpty(text, piece.symbol);
            if (grouped && piece.symbol == '0' && power > 0 && power % 3 == 0) text += ',';
        }
        isFirst = false;
    }
    return text;
}

/// The pieces behind the point. A "#" shows nothing where only zeros and more "#" follow.
std::string writeDecimals(Pieces pieces, const Decimal& decimal) {
    int needed = decimal.count - decimal.exponent - 1;
    int place = 0;
    for (const Piece& piece : pieces) {
        if (piece.part != Part::digit) continue;
        ++place;
        if (piece.symbol == '0') needed = std::max(needed, place);
    }
    std::string text;
    place = 0;
    for (const Piece& piece : pieces) {
        if (piece.part == Part::percent) text += '%';
        if (piece.part != Part::digit) {
            text += piece.text;
            continue;
        }
        ++place;
        if (place <= needed)
            text += decimal.digitAt(-place);
        else
            appendEmpty(text, piece.symbol);
    }
    return text;
}

/// Pieces around one point, `decimal` rounded to what they show.
std::string writeFixed(Pieces pieces, const Decimal& decimal, bool grouped) {
    const std::ptrdiff_t point = indexOf(pieces, Part::point);
    if (point < 0) return writeWhole(pieces, decimal, grouped);
    const auto at = static_cast<size_t>(point);
    return writeWhole(pieces.first(at), decimal, grouped) + "." +
           writeDecimals(pieces.subspan(at + 1), decimal);
}

int countDecimals(Pieces pieces) {
    const std::ptrdiff_t point = indexOf(pieces, Part::point);
    return point < 0 ? 0 : countDigits(pieces.subspan(static_cast<size_t>(point)));
}

int roundDown(int exponent, int period) {
    const int rest = exponent % period;
    return exponent - (rest < 0 ? rest + period : rest);
}

/// "0.00E+00"; several places before the point make the exponent a multiple of their count.
std::string writeScientific(Pieces pieces, size_t at, Decimal& decimal) {
    const Pieces mantissaPieces = pieces.first(at);
    const int decimals = countDecimals(mantissaPieces);
    const int period = std::max(1, countDigits(mantissaPieces) - decimals);
    int exponent = roundDown(decimal.exponent, period);
    decimal.exponent -= exponent;
    roundToPlaces(decimal, decimals);
    if (decimal.exponent >= period) {
        decimal.exponent -= period;
        exponent += period;
    }
    std::string text = writeFixed(mantissaPieces, decimal, false) + "E";
    if (exponent < 0)
        text += '-';
    else if (pieces[at].symbol == '+')
        text += '+';
    char digits[16];
    const std::string number(digits,
                             std::to_chars(digits, digits + sizeof digits, std::abs(exponent)).ptr);
    const Pieces rest = pieces.subspan(at + 1);
    int zeros = 0;
    for (const Piece& piece : rest) zeros += piece.part == Part::digit && piece.symbol == '0';
    const auto padding = std::max(0, zeros - static_cast<int>(number.size()));
    text.append(static_cast<size_t>(padding), '0') += number;
    for (const Piece& piece : rest) text += piece.text;
    return text;
}

/// Whole numbers, as doubles since a top has no limit.
struct Fraction {
    double top, bottom;
};

/// The fraction nearest to `number` whose bottom is at most `largest`; of two as near the one with
/// the smaller bottom.
Fraction nearestFraction(double number, double largest) {
    const double rest = number - std::floor(number);
    // The sums of tops and bottoms of two neighbours give the simplest fraction between them.
    Fraction below{0, 1};
    Fraction above{1, 1};
    while (below.bottom + above.bottom <= largest) {
        const Fraction between{below.top + above.top, below.bottom + above.bottom};
        (rest < between.top / between.bottom ? above : below) = between;
    }
    const Fraction simpler = above.bottom < below.bottom ? above : below;
    const Fraction other = above.bottom < below.bottom ? below : above;
    const auto difference = [&](Fraction f) { return std::fabs(rest - f.top / f.bottom); };
    const bool isNearer = difference(other) < difference(simpler) - 1e-12;
    const double bottom = isNearer ? other.bottom : simpler.bottom;
    return {std::round(number * bottom), bottom};
}

/// Where the parts of a fraction lie among the pieces: [wholes) other [tops) slash [bottoms).
struct FractionLayout {
    size_t top, end;    ///< the first piece of the top, the one behind the bottom
    double bottom = 0;  ///< a bottom written as number ("# ?/8"), else 0
};

FractionLayout layOut(std::vector<Piece>& pieces, size_t slash) {
    FractionLayout layout{slash, slash + 1};
    while (layout.top > 0 && pieces[layout.top - 1].part == Part::digit) --layout.top;
    std::string fixed;
    for (; layout.end < pieces.size(); ++layout.end) {
        Piece& piece = pieces[layout.end];
        const bool isDigits = piece.part == Part::literal && !piece.text.empty() &&
                              piece.text[0] >= '1' && piece.text[0] <= '9';
        if (isDigits) {
            // A literal may run on beyond its digits.
            const size_t size =
                std::min(piece.text.find_first_not_of("0123456789"), piece.text.size());
            fixed += piece.text.substr(0, size);
            piece.text.erase(0, size);
            if (!piece.text.empty()) break;
        } else if (piece.part == Part::digit) {
            if (!fixed.empty()) fixed += '0';
        } else {
            break;
        }
    }
    std::from_chars(fixed.data(), fixed.data() + std::min<size_t>(fixed.size(), 9), layout.bottom);
    return layout;
}

std::string padded(double number, Pieces places, bool isLeftAligned) {
    std::string text = formatFixed(number, 0, false);
    const auto width = static_cast<size_t>(std::max(countDigits(places), 1));
    if (text.size() >= width) return text;
    const char symbol = places.empty() ? '#' : places.front().symbol;
    if (symbol == '#') return text;
    text.insert(isLeftAligned ? text.size() : 0, width - text.size(),
                symbol == '0' && !isLeftAligned ? '0' : ' ');
    return text;
}

std::string writeFraction(std::vector<Piece> pieces, size_t slash, double number, bool& isZero) {
    const FractionLayout layout = layOut(pieces, slash);
    const Pieces all(pieces);
    const Pieces wholePieces = all.first(layout.top);
    const Pieces topPieces = all.subspan(layout.top, slash - layout.top);
    const Pieces bottomPieces = all.subspan(slash + 1, layout.end - slash - 1);
    const bool hasWhole = countDigits(wholePieces) > 0;
    double whole = hasWhole ? std::floor(number) : 0;
    const double rest = number - whole;
    const int places = std::clamp(countDigits(bottomPieces), 1, 4);
    Fraction fraction = layout.bottom > 0
                            ? Fraction{std::round(rest * layout.bottom), layout.bottom}
                            : nearestFraction(rest, std::pow(10, places) - 1);
    if (hasWhole && fraction.top == fraction.bottom) {
        whole += 1;
        fraction.top = 0;
    }
    isZero = whole == 0 && fraction.top == 0;
    std::string text = writeWhole(wholePieces, toDecimal(whole), false);
    const std::string top = padded(fraction.top, topPieces, false);
    const std::string bottom = layout.bottom > 0 ? formatFixed(layout.bottom, 0, false)
                                                 : padded(fraction.bottom, bottomPieces, true);
    if (hasWhole && fraction.top == 0) {
        // Nothing at all still shows as 0, even by "#".
        if (isZero && text.find('0') == std::string::npos) text.insert(0, "0");
        text.append(top.size() + 1 + bottom.size(), ' ');
    } else {
        text += top + "/" + bottom;
    }
    for (const Piece& piece : all.subspan(layout.end)) text += piece.text;
    return text;
}

bool hasGeneral(Pieces pieces) {
    return indexOf(pieces, Part::general) >= 0;
}

std::string writeGeneral(Pieces pieces, double magnitude) {
    std::string text;
    for (const Piece& piece : pieces)
        text += piece.part == Part::general   ? formatGeneral(magnitude)
                : piece.part == Part::percent ? std::string("%")
                                              : piece.text;
    return text;
}

/// Six digits and an exponent: "1.23457E+11".
std::string shortScientific(Decimal decimal) {
    keepDigits(decimal, 6);
    std::string text(1, decimal.digits[0]);
    if (decimal.count > 1) text += '.';
    for (int i = 1; i < decimal.count; ++i) text += decimal.digits[static_cast<size_t>(i)];
    text += decimal.exponent < 0 ? "E-" : "E+";
    const int exponent = std::abs(decimal.exponent);
    if (exponent < 10) text += '0';
    return text + std::to_string(exponent);
}

}  // namespace

std::string writeNumber(const Section& section, double magnitude, bool& isZero) {
    const Pieces pieces(section.pieces);
    isZero = magnitude == 0;
    Decimal decimal = toDecimal(magnitude);
    if (!decimal.isZero()) decimal.exponent += 2 * section.percents - 3 * section.thousands;
    if (hasGeneral(pieces)) return writeGeneral(pieces, magnitude);
    const std::ptrdiff_t slash = indexOf(pieces, Part::slash);
    if (slash >= 0 && countDigits(pieces) > 0)
        return writeFraction(section.pieces, static_cast<size_t>(slash), magnitude, isZero);
    const std::ptrdiff_t exponent = indexOf(pieces, Part::exponent);
    std::string text;
    if (exponent >= 0) {
        text = writeScientific(pieces, static_cast<size_t>(exponent), decimal);
    } else if (countDigits(pieces) == 0 && indexOf(pieces, Part::point) < 0) {
        for (const Piece& piece : pieces) text += piece.part == Part::percent ? "%" : piece.text;
        return text;
    } else {
        roundToPlaces(decimal, countDecimals(pieces));
        text = writeFixed(pieces, decimal, section.grouped);
    }
    isZero = decimal.isZero();
    return text;
}

}  // namespace formula::number_format

namespace formula {

std::string formatGeneral(double number) {
    constexpr int longest = 11;
    const Decimal decimal = toDecimal(std::fabs(number));
    if (decimal.isZero()) return "0";
    const std::string sign = number < 0 ? "-" : "";
    // A point takes one of the characters, a leading zero another.
    Decimal rounded = decimal;
    roundToPlaces(rounded, std::max(longest - 1 - std::max(decimal.exponent + 1, 1), 0));
    if (decimal.exponent < -4 || rounded.exponent >= longest)
        return sign + number_format::shortScientific(decimal);
    const int places = std::max(rounded.count - rounded.exponent - 1, 0);
    std::string text = sign;
    for (int power = std::max(rounded.exponent, 0); power >= 0; --power)
        text += rounded.digitAt(power);
    if (places > 0) text += '.';
    for (int place = 1; place <= places; ++place) text += rounded.digitAt(-place);
    return text;
}

std::string formatFixed(double number, int decimals, bool withCommas) {
    Decimal decimal = toDecimal(std::fabs(number));
    roundToPlaces(decimal, decimals);
    std::string text = number < 0 && !decimal.isZero() ? "-" : "";
    for (int power = std::max(decimal.exponent, 0); power >= 0; --power) {
        text += decimal.digitAt(power);
        if (withCommas && power > 0 && power % 3 == 0) text += ',';
    }
    if (decimals > 0) text += '.';
    for (int place = 1; place <= decimals; ++place) text += decimal.digitAt(-place);
    return text;
}

}  // namespace formula
