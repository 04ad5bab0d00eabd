// A look as the rest of its line in a document: the kind and then every field that differs from the
// default format, as key=value, texts in quotes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "spread/control/cell_format.h"
#include "spread/control/document_text.h"

namespace control {

void writeFormat(DocumentOutput& out, const CellFormat& format);
/// Nothing, with `error` saying what is wrong, when `text` is no format.
std::optional<CellFormat> readFormat(std::string_view text, std::string& error);

}  // namespace control
