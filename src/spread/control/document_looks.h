// A look as the rest of its line in a document: the kind and then every field that differs from the
// default look, as key=value, texts in quotes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "spread/control/document_text.h"
#include "spread/control/look.h"

namespace control {

void writeLook(DocumentOutput& out, const Look& look);
/// Nothing, with `error` saying what is wrong, when `text` is no look.
std::optional<Look> readLook(std::string_view text, std::string& error);

}  // namespace control
