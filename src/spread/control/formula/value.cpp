#include "spread/control/formula/value.h"

#include <algorithm>
#include <array>

namespace formula {
namespace {

struct ErrorName {
    ErrorCode code;
    std::string_view text;
};
constexpr std::array<ErrorName, 8> errorNames{{
    {ErrorCode::null, "#NULL!"},
    {ErrorCode::div0, "#DIV/0!"},
    {ErrorCode::value, "#VALUE!"},
    {ErrorCode::ref, "#REF!"},
    {ErrorCode::name, "#NAME?"},
    {ErrorCode::num, "#NUM!"},
    {ErrorCode::na, "#N/A"},
    {ErrorCode::circ, "#CIRC!"},
}};

char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

}  // namespace

std::string_view errorText(ErrorCode code) {
    for (const ErrorName& name : errorNames)
        if (name.code == code) return name.text;
    return "#VALUE!";
}

std::optional<ErrorCode> errorFromText(std::string_view text) {
    for (const ErrorName& name : errorNames) {
        const bool same = std::equal(text.begin(), text.end(), name.text.begin(), name.text.end(),
                                     [](char a, char b) { return upper(a) == b; });
        if (same) return name.code;
    }
    return std::nullopt;
}

}  // namespace formula
