#include "cli/io/suggestion.h"

#include <algorithm>

#include "platform/encodings.h"

namespace cli {

namespace {

/// How many letters have to be changed, put in, taken out or swapped with their neighbour to make
/// `a` into `b`.
size_t distance(std::string_view a, std::string_view b) {
    std::vector<size_t> beforeLast, last(b.size() + 1), row(b.size() + 1);
    for (size_t j = 0; j <= b.size(); ++j) last[j] = j;
    for (size_t i = 1; i <= a.size(); ++i) {
        row[0] = i;
        for (size_t j = 1; j <= b.size(); ++j) {
            const bool isSame = a[i - 1] == b[j - 1];
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (isSame ? 0 : 1)});
            const bool isSwapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (isSwapped) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
        beforeLast = last;
        last = row;
    }
    return last[b.size()];
}

}  // namespace

std::string nearest(std::string_view typed, const std::vector<std::string>& words) {
    constexpr size_t longest = 100;
    if (typed.size() > longest) return "";
    const std::string wanted = encodings::lowered(typed);
    std::string best;
    size_t least = std::min<size_t>(wanted.size() / 3, 2) + 1;
    for (const auto& word : words) {
        if (word.size() > longest) continue;
        const size_t changes = distance(wanted, encodings::lowered(word));
        if (changes >= least) continue;
        least = changes;
        best = word;
    }
    return best;
}

std::string didYouMean(const std::string& nearest) {
    return nearest.empty() ? "" : "; did you mean " + nearest + "?";
}

}  // namespace cli
