// Documents on paper, which the desktop program prints without showing itself.
#pragma once

#include <optional>
#include <string>

#include "core_api/text/vor_string.h"

namespace cli {

/// The desktop program: that of the environment variable VORMANT_WORKBENCH, the one beside this
/// program, or one in the PATH. Nothing, after telling what to do, when there is none.
std::optional<std::string> findPrinter();

/// Writes the pages of a document into a PDF file. False after telling why.
bool printDocument(const Vor_String& document, const Vor_String& pdf);

}  // namespace cli
