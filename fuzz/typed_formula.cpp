// What is shown while a formula is typed: any text with the cursor anywhere gives answers that lie
// inside the text.
#include <cstdint>
#include <cstdlib>

#include "spread/editor/formula_help.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t longest = 200;
    const std::string text(reinterpret_cast<const char*>(data), size < longest ? size : longest);
    for (const int style : {0, 2}) {
        const editor::FormulaPlace place{3, 4, style};
        for (const auto& mark : editor::referenceMarks(text, place))
            if (mark.start + mark.length > text.size()) std::abort();
        // At most some thirty cursors: each costs a look at the whole text.
        const std::size_t step = 1 + text.size() / 32;
        for (std::size_t cursor = text.size() % step; cursor <= text.size(); cursor += step) {
            if (const auto hint = editor::argumentHint(text, cursor))
                if (hint->argument >= static_cast<int>(hint->function->arguments.size()))
                    std::abort();
            if (const auto completion = editor::completeFunction(text, cursor))
                if (completion->start + completion->length > text.size()) std::abort();
            if (const auto edited = editor::cycleReference(text, cursor, place))
                if (edited->start + edited->length > edited->text.size()) std::abort();
        }
    }
    return 0;
}
