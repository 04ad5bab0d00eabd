// How users name the languages of texts when they type: by their codes of ISO 639-1.
#pragma once

#include <optional>
#include <string_view>

#include "core_api/settings.h"

inline constexpr std::string_view languageCodes = "en, nl, de or fr";

/// Letter case aside; nothing for another text.
VORMANT_API std::optional<Language> languageOfCode(std::string_view code);
