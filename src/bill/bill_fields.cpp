#include "bill/bill_fields.h"

#include "core_api/text/text_helpers.h"
#include "core_api/texts/bill_text_numbers.h"
#include "core_api/texts/texts.h"
#include "platform/encodings.h"

namespace {

constexpr std::array<std::string_view, billFieldCount> codes = {
    "position", "name",      "kind",  "section", "material", "length",
    "width",    "thickness", "count", "mass",    "totalMass"};

std::string_view withoutUnit(std::string_view heading) {
    return trimmed(heading.substr(0, heading.find('(')));
}

}  // namespace

std::string_view billFieldCode(BillField field) {
    return codes[static_cast<size_t>(field)];
}

std::optional<BillField> billFieldOfCode(std::string_view code) {
    for (size_t i = 0; i < codes.size(); ++i)
        if (encodings::equalFolded(codes[i], code)) return static_cast<BillField>(i);
    return std::nullopt;
}

Vor_String billFieldName(BillField field) {
    return dialString(texts::billPosition + static_cast<int>(field));
}

std::optional<BillField> billFieldOfHeading(std::string_view heading) {
    heading = withoutUnit(heading);
    if (const auto field = billFieldOfCode(heading)) return field;
    for (int i = 0; i < billFieldCount; ++i)
        for (const Vor_String& name : dialStringAllLangs(texts::billPosition + i))
            if (encodings::equalFolded(withoutUnit(name), heading))
                return static_cast<BillField>(i);
    return std::nullopt;
}

Vor_String billPartKindName(BillPartKind kind) {
    return dialString(texts::billPlate + static_cast<int>(kind));
}
