// Bytes as letters that every text file takes: RFC 4648, with padding.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/export.h"

VORMANT_API std::string toBase64(std::string_view bytes);
/// Nothing when `text` is not what toBase64 gives for some bytes.
VORMANT_API std::optional<std::string> fromBase64(std::string_view text);
