#include <algorithm>
#include <optional>
#include <string>

#include "platform/encodings.h"
#include "spread/control/formula/functions/argument_reader.h"
#include "spread/control/formula/functions/text_family.h"

namespace formula {
namespace {

using Arguments = std::span<const Value>;

/// `change`d copy of the text.
template <class Change>
Value changed(Calculation& c, Arguments args, Change&& change) {
    ArgumentReader read(c, args);
    std::string text(read.text(0));
    if (read.failed()) return read.error();
    change(text);
    return c.text(text);
}

bool isLetter(char c) {
    // Only the sharp s and its like have no capital.
    return encodings::toLower(c) != encodings::toUpper(c) || c == '\xDF' || c == '\xAA' ||
           c == '\xBA' || c == '\x83';
}

size_t countOf(double number) {
    return static_cast<size_t>(std::min(number, 1e9));
}

}  // namespace

Value charOfCode(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const int code = read.whole(0);
    if (read.failed()) return read.error();
    if (code < 1 || code > 255) return ErrorCode::value;
    const char letter = static_cast<char>(code);
    return c.text({&letter, 1});
}

Value codeOfChar(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const std::string_view text = read.text(0);
    if (read.failed()) return read.error();
    if (text.empty()) return ErrorCode::value;
    return static_cast<double>(static_cast<unsigned char>(text[0]));
}

Value unichar(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const int code = read.whole(0);
    if (read.failed()) return read.error();
    const auto letter = code < 1 ? std::nullopt : encodings::byteOf(static_cast<char32_t>(code));
    return letter ? c.text({&*letter, 1}) : Value(ErrorCode::value);
}

Value unicode(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const std::string_view text = read.text(0);
    if (read.failed()) return read.error();
    if (text.empty()) return ErrorCode::value;
    return static_cast<double>(encodings::characterOf(static_cast<unsigned char>(text[0])));
}

Value clean(Calculation& c, Arguments args) {
    return changed(c, args, [](std::string& text) {
        std::erase_if(text, [](char letter) { return static_cast<unsigned char>(letter) < 32; });
    });
}

Value trim(Calculation& c, Arguments args) {
    return changed(c, args, [](std::string& text) {
        std::string kept;
        for (const char letter : text)
            if (letter != ' ' || (!kept.empty() && kept.back() != ' ')) kept += letter;
        if (!kept.empty() && kept.back() == ' ') kept.pop_back();
        text = kept;
    });
}

Value lower(Calculation& c, Arguments args) {
    return changed(c, args, [](std::string& text) { text = encodings::lowered(text); });
}

Value upper(Calculation& c, Arguments args) {
    return changed(c, args, [](std::string& text) { text = encodings::uppered(text); });
}

Value proper(Calculation& c, Arguments args) {
    return changed(c, args, [](std::string& text) {
        bool isInWord = false;
        for (char& letter : text) {
            letter = isInWord ? encodings::toLower(letter) : encodings::toUpper(letter);
            isInWord = isLetter(letter);
        }
    });
}

Value exact(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const std::string_view a = read.text(0);
    const std::string_view b = read.text(1);
    if (read.failed()) return read.error();
    return Value::boolean(a == b);
}

Value len(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const std::string_view text = read.text(0);
    if (read.failed()) return read.error();
    return static_cast<double>(text.size());
}

Value left(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const std::string_view text = read.text(0);
    const double count = args.size() > 1 ? read.number(1) : 1;
    if (read.failed()) return read.error();
    if (count < 0) return ErrorCode::value;
    return Value::borrowedText(text.substr(0, countOf(count)));
}

Value right(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const std::string_view text = read.text(0);
    const double count = args.size() > 1 ? read.number(1) : 1;
    if (read.failed()) return read.error();
    if (count < 0) return ErrorCode::value;
    return Value::borrowedText(text.substr(text.size() - std::min(text.size(), countOf(count))));
}

Value mid(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const std::string_view text = read.text(0);
    const double start = read.number(1);
    const double count = read.number(2);
    if (read.failed()) return read.error();
    if (start < 1 || count < 0) return ErrorCode::value;
    const size_t first = std::min(countOf(start) - 1, text.size());
    return Value::borrowedText(text.substr(first, countOf(count)));
}

Value rept(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const std::string_view text = read.text(0);
    const double count = read.number(1);
    if (read.failed()) return read.error();
    if (count < 0 || static_cast<double>(text.size()) * count >= longestText + 1.0)
        return ErrorCode::value;
    std::string repeated;
    if (!text.empty())
        for (size_t i = countOf(count); i > 0; --i) repeated += text;
    return c.text(repeated);
}

Value textOnly(Calculation& c, Arguments args) {
    const Value first = c.element(args[0], 0, 0);
    return first.isText() || first.isError() ? first : Value::borrowedText("");
}

}  // namespace formula
