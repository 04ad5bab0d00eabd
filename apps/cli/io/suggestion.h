// What somebody who mistyped a word will have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace cli {

/// The one of `words` (UTF-8) that is most like `typed`, letter case aside: a letter or two
/// changed, missing, too many or swapped. Empty when none is like it, or when it is too short to
/// tell.
std::string nearest(std::string_view typed, const std::vector<std::string>& words);

/// "; did you mean NEAREST?", empty without one.
std::string didYouMean(const std::string& nearest);

}  // namespace cli
