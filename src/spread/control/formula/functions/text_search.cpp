#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "platform/encodings.h"
#include "spread/control/formula/functions/argument_reader.h"
#include "spread/control/formula/functions/criteria.h"
#include "spread/control/formula/functions/text_family.h"

namespace formula {
namespace {

using Arguments = std::span<const Value>;

/// Where the first "*" of `pattern` stands, which has one, and how many characters fit what lies
/// before it.
std::pair<size_t, size_t> beforeStar(std::string_view pattern) {
    size_t at = 0, length = 0;
    for (; pattern[at] != '*'; ++length) at += isEscape(pattern, at) ? 2 : 1;
    return {at, length};
}

/// Where a text that fits `pattern` begins in `text` from `from` on.
size_t findPattern(std::string_view text, std::string_view pattern, size_t from) {
    // A "~" that escapes nothing is passed over.
    size_t tildes = 0;
    while (tildes < pattern.size() && pattern[pattern.size() - 1 - tildes] == '~') ++tildes;
    std::string open(pattern.substr(0, pattern.size() - tildes % 2));
    // What begins with "*" fits from the start or nowhere.
    const size_t last = !open.empty() && open[0] == '*' ? from : text.size();
    open += '*';
    const auto [begin, length] = beforeStar(open);
    const std::string_view start = std::string_view(open).substr(0, begin);
    const std::string_view rest = std::string_view(open).substr(begin);
    // What follows the first place where the start fits holds all that later places have behind
    // them: when the rest does not fit there, it fits nowhere.
    for (size_t at = from; at <= last && at + length <= text.size(); ++at)
        if (matchesWildcards(start, text.substr(at, length)))
            return matchesWildcards(rest, text.substr(at + length)) ? at : std::string_view::npos;
    return std::string_view::npos;
}

size_t findFolded(std::string_view text, std::string_view wanted, size_t from) {
    const auto found = std::search(
        text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), wanted.begin(), wanted.end(),
        [](char a, char b) { return encodings::toLower(a) == encodings::toLower(b); });
    if (found == text.end() && !wanted.empty()) return std::string_view::npos;
    return static_cast<size_t>(found - text.begin());
}

using Finder = size_t (*)(std::string_view text, std::string_view wanted, size_t from);

size_t findSame(std::string_view text, std::string_view wanted, size_t from) {
    return text.find(wanted, from);
}

size_t findLoosely(std::string_view text, std::string_view wanted, size_t from) {
    return hasWildcards(wanted) ? findPattern(text, wanted, from) : findFolded(text, wanted, from);
}

template <Finder finder>
Value position(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const std::string_view wanted = read.text(0);
    const std::string_view text = read.text(1);
    const double start = args.size() > 2 ? read.number(2) : 1;
    if (read.failed()) return read.error();
    if (start < 1 || start >= static_cast<double>(text.size()) + 2) return ErrorCode::value;
    if (!c.spend(static_cast<int64_t>(text.size() * wanted.size()))) return ErrorCode::num;
    const size_t found = finder(text, wanted, static_cast<size_t>(start) - 1);
    if (found == std::string_view::npos) return ErrorCode::value;
    return static_cast<double>(found) + 1;
}

Value shortEnough(Calculation& c, const std::string& text) {
    return text.size() > longestText ? Value(ErrorCode::value) : c.text(text);
}

/// A delimiter found in a text.
struct Hit {
    size_t begin, end;
};

struct Cut {
    std::string_view text;
    std::vector<std::string_view> delimiters;
    int instance = 1;  ///< below 0: counted from the end
    bool ignoresCase = false;
    bool matchesEnd = false;  ///< the end (from behind: the start) counts as a delimiter
};

/// The first delimiter in `text` from `from` on; the longest of those that begin there.
std::optional<Hit> nextHit(const Cut& cut, size_t from) {
    std::optional<Hit> best;
    for (const std::string_view delimiter : cut.delimiters) {
        const size_t at = cut.ignoresCase ? findFolded(cut.text, delimiter, from)
                                          : cut.text.find(delimiter, from);
        if (at == std::string_view::npos) continue;
        const Hit hit{at, at + delimiter.size()};
        if (!best || hit.begin < best->begin || (hit.begin == best->begin && hit.end > best->end))
            best = hit;
    }
    return best;
}

std::optional<Hit> chosenHit(const Calculation& c, const Cut& cut) {
    std::vector<Hit> hits;
    // An empty delimiter stands at the very start, or the very end when counted from behind.
    const bool isEmpty = std::any_of(cut.delimiters.begin(), cut.delimiters.end(),
                                     [](std::string_view delimiter) { return delimiter.empty(); });
    if (isEmpty) return cut.instance > 0 ? Hit{0, 0} : Hit{cut.text.size(), cut.text.size()};
    // A delimiter that is not there is looked for again behind every one that is.
    const auto work = static_cast<int64_t>(cut.text.size() * cut.delimiters.size());
    for (auto hit = nextHit(cut, 0); hit && c.spend(work); hit = nextHit(cut, hit->end))
        hits.push_back(*hit);
    if (cut.matchesEnd && cut.instance > 0) hits.push_back({cut.text.size(), cut.text.size()});
    if (cut.matchesEnd && cut.instance < 0) hits.insert(hits.begin(), {0, 0});
    const auto count = static_cast<int>(hits.size());
    const int index = cut.instance > 0 ? cut.instance - 1 : count + cut.instance;
    if (index < 0 || index >= count) return std::nullopt;
    return hits[static_cast<size_t>(index)];
}

/// Reads the arguments of TEXTBEFORE and TEXTAFTER. An instance must be possible in a text of that
/// length.
Result<Cut> readCut(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    Cut cut;
    cut.text = read.text(0);
    cut.instance = read.whole(2, 1);
    const int mode = read.whole(3, 0);
    const int matchEnd = read.whole(4, 0);
    if (read.failed()) return read.error();
    std::optional<ErrorCode> error;
    size_t longest = 0;
    c.each(args[1], [&](const Value& value) {
        const Result<std::string_view> delimiter = textOf(c, value);
        if (!delimiter) {
            if (!error) error = delimiter.error();
            return;
        }
        cut.delimiters.push_back(*delimiter);
        longest = std::max(longest, delimiter->size());
    });
    if (error) return *error;
    if (cut.delimiters.empty()) cut.delimiters.emplace_back();
    if (cut.instance == 0 || mode < 0 || mode > 1 || matchEnd < 0 || matchEnd > 1)
        return ErrorCode::value;
    const bool isImpossible =
        static_cast<size_t>(std::abs(cut.instance)) > cut.text.size() || longest > cut.text.size();
    if (read.has(2) && !cut.text.empty() && isImpossible) return ErrorCode::value;
    cut.ignoresCase = mode == 1;
    cut.matchesEnd = matchEnd == 1;
    return cut;
}

template <bool before>
Value partAtDelimiter(Calculation& c, Arguments args) {
    const Result<Cut> cut = readCut(c, args);
    if (!cut) return cut.error();
    const auto hit = chosenHit(c, *cut);
    if (!hit) {
        if (args.size() <= 5 || args[5].isMissing()) return ErrorCode::na;
        return args[5].isEmpty() ? Value::borrowedText("") : args[5];
    }
    return Value::borrowedText(before ? cut->text.substr(0, hit->begin)
                                      : cut->text.substr(hit->end));
}

}  // namespace

Value find(Calculation& c, Arguments args) {
    return position<findSame>(c, args);
}

Value search(Calculation& c, Arguments args) {
    return position<findLoosely>(c, args);
}

Value textBefore(Calculation& c, Arguments args) {
    return partAtDelimiter<true>(c, args);
}

Value textAfter(Calculation& c, Arguments args) {
    return partAtDelimiter<false>(c, args);
}

Value replace(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const std::string_view text = read.text(0);
    const int start = read.whole(1);
    const int count = read.whole(2);
    const std::string_view replacement = read.text(3);
    if (read.failed()) return read.error();
    if (start < 1 || count < 0) return ErrorCode::value;
    const size_t first = std::min(static_cast<size_t>(start) - 1, text.size());
    const size_t removed = std::min(static_cast<size_t>(count), text.size() - first);
    std::string result(text.substr(0, first));
    result += replacement;
    result += text.substr(first + removed);
    return shortEnough(c, result);
}

Value substitute(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const std::string_view text = read.text(0);
    const std::string_view wanted = read.text(1);
    const std::string_view replacement = read.text(2);
    const bool hasInstance = args.size() > 3;
    const int instance = hasInstance ? read.whole(3) : 0;
    if (read.failed()) return read.error();
    if (hasInstance && instance < 1) return ErrorCode::value;
    if (wanted.empty()) return Value::borrowedText(text);
    std::string result;
    size_t from = 0;
    int met = 0;
    for (size_t at = text.find(wanted); at != std::string_view::npos;
         at = text.find(wanted, at + wanted.size())) {
        ++met;
        if (hasInstance && met != instance) continue;
        result += text.substr(from, at - from);
        result += replacement;
        from = at + wanted.size();
        if (result.size() > longestText) return ErrorCode::value;
    }
    result += text.substr(from);
    return shortEnough(c, result);
}

}  // namespace formula
