#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "spread/control/formula/functions/argument_reader.h"
#include "spread/control/formula/functions/text_family.h"

namespace formula {
namespace {

using Arguments = std::span<const Value>;

/// Joins texts up to the longest text there may be.
class Joiner {
  public:
    Joiner(Calculation& c, std::vector<std::string_view> delimiters, bool ignoresEmpty)
        : m_calculation(c), m_delimiters(std::move(delimiters)), m_ignoresEmpty(ignoresEmpty) {
        // With nothing between them empty texts do not show.
        const auto isEmpty = [](std::string_view delimiter) { return delimiter.empty(); };
        if (std::all_of(m_delimiters.begin(), m_delimiters.end(), isEmpty)) m_ignoresEmpty = true;
    }

    bool failed() const { return m_failed; }
    Value result() { return m_failed ? Value(m_error) : m_calculation.text(m_text); }

    /// Adds every element of `argument`, row by row.
    void add(const Value& argument) {
        if (argument.isSingle()) return addOne(argument);
        // Without empty elements the stored cells are enough.
        const Value source = m_ignoresEmpty ? m_calculation.clipped(argument) : argument;
        const int rows = Calculation::rows(source);
        const int cols = Calculation::cols(source);
        for (int row = 0; row < rows && !m_failed; ++row)
            for (int col = 0; col < cols && !m_failed; ++col) {
                if (!m_calculation.spend(5)) return fail(ErrorCode::num);
                addOne(m_calculation.element(source, row, col));
            }
    }

  private:
    void addOne(const Value& value) {
        const Result<std::string_view> text = textOf(m_calculation, value);
        if (!text) return fail(text.error());
        if (m_ignoresEmpty && text->empty()) return;
        if (m_count > 0 && !m_delimiters.empty())
            m_text += m_delimiters[(m_count - 1) % m_delimiters.size()];
        m_text += *text;
        // Counting as well ends a walk over empty cells with a list of mostly empty delimiters.
        if (++m_count > maxElements || m_text.size() > longestText) fail(ErrorCode::value);
    }
    void fail(ErrorCode error) {
        m_failed = true;
        m_error = error;
    }

    static constexpr size_t maxElements = 4'000'000;
    Calculation& m_calculation;
    std::vector<std::string_view> m_delimiters;
    bool m_ignoresEmpty;
    std::string m_text;
    size_t m_count = 0;
    bool m_failed = false;
    ErrorCode m_error = ErrorCode::value;
};

Value joined(Joiner& joiner, Arguments args) {
    for (const Value& argument : args) {
        joiner.add(argument);
        if (joiner.failed()) break;
    }
    return joiner.result();
}

}  // namespace

Value concat(Calculation& c, Arguments args) {
    Joiner joiner(c, {}, true);
    return joined(joiner, args);
}

Value concatenate(Calculation& c, Arguments args) {
    return concat(c, args);
}

Value textJoin(Calculation& c, Arguments args) {
    ArgumentReader read(c, args);
    const bool ignoresEmpty = read.truth(1, true);
    if (read.failed()) return read.error();
    std::vector<std::string_view> delimiters;
    const Value source = c.clipped(args[0]);
    for (int row = 0; row < c.rows(source); ++row)
        for (int col = 0; col < c.cols(source); ++col) {
            if (!c.spend(20)) return ErrorCode::num;
            const Result<std::string_view> text = textOf(c, c.element(source, row, col));
            if (!text) return text.error();
            delimiters.push_back(*text);
        }
    Joiner joiner(c, std::move(delimiters), ignoresEmpty);
    return joined(joiner, args.subspan(2));
}

}  // namespace formula
