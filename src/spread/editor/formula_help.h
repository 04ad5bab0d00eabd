// What an editor shows while a formula is typed: the functions with their arguments, which argument
// is being typed, names that fit, and the cells that the formula reads. Typed texts begin with "=";
// positions count from 0 in the whole text, the cursor stands before the character at its position.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/export.h"
#include "spread/control/grid.h"

namespace editor {

struct FunctionHelp {
    std::string_view name;               ///< upper case
    int family = 0;                      ///< number of the text that names its family
    std::vector<std::string> arguments;  ///< "text1", "[text2]", "…" when more may follow
    std::string summary;                 ///< one sentence
    std::string syntax() const;          ///< "ROUND(number, decimals)"
};

/// All functions of the engine, in the order of their names, with help in the working language.
/// The lists stay for good.
VORMANT_API const std::vector<FunctionHelp>& functionList();
/// Null for an unknown name; letter case does not matter.
VORMANT_API const FunctionHelp* functionHelp(std::string_view name);

/// The function whose argument is being typed.
struct ArgumentHint {
    const FunctionHelp* function = nullptr;
    int argument = 0;  ///< index into its arguments; -1 when it takes no more
};
VORMANT_API std::optional<ArgumentHint> argumentHint(std::string_view typed, size_t cursor);

/// Function names that begin with what stands before the cursor.
struct Completion {
    size_t start = 0;  ///< what is replaced by the chosen name
    size_t length = 0;
    std::vector<std::string_view> names;
};
/// Nothing when no name is being typed or none fits.
VORMANT_API std::optional<Completion> completeFunction(std::string_view typed, size_t cursor);

/// Where the formula is typed: its cell and the notation of the sheet (Grid::referenceStyle).
struct FormulaPlace {
    int col = 1;
    int row = 1;
    int style = 0;
};

/// A reference in the text and the cells it means.
struct ReferenceMark {
    size_t start = 0;
    size_t length = 0;
    control::Block block;
    int colour = 0;  ///< the same for the same cells; counts up from 0 in order of appearance
};
VORMANT_API std::vector<ReferenceMark> referenceMarks(std::string_view typed,
                                                      const FormulaPlace& place);
/// The colours of marks come again after these.
inline constexpr control::Colour markColours[] = {
    control::rgb(0, 90, 200),  control::rgb(200, 0, 0),   control::rgb(140, 60, 190),
    control::rgb(0, 130, 60),  control::rgb(190, 90, 0),  control::rgb(0, 140, 160),
    control::rgb(170, 0, 110), control::rgb(110, 110, 0),
};

/// A text with its characters start..start+length-1 selected.
struct EditedText {
    std::string text;
    size_t start = 0;
    size_t length = 0;
};
/// The reference at the cursor with its next kind of $: A1, $A$1, A$1, $A1. Nothing when no
/// reference touches the cursor.
VORMANT_API std::optional<EditedText> cycleReference(std::string_view typed, size_t cursor,
                                                     const FormulaPlace& place);

/// A block as a reference, relative, for pointing with the mouse.
VORMANT_API std::string referenceTo(const control::Block& block, const FormulaPlace& place);

}  // namespace editor
