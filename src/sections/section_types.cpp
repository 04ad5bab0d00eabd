#include "sections/section_types.h"

#include <array>
#include <charconv>

#include "core_api/texts/texts.h"

namespace {

/// A value column: a text, with a number behind it where a section has several of them.
struct Column {
    int text = 0;  // 0: no column
    int number = 0;
};

constexpr int mostColumns = 9;

struct SectionTypeRow {
    std::string_view picture;
    int text;
    std::array<Column, mostColumns> columns;
};

constexpr Column height{736}, width{737}, webThickness{738}, flangeThickness{739}, radius{740};
constexpr Column rootRadius{741}, toeRadius{742}, thickness{744}, slope{745}, slopePlace{746};
constexpr Column diameter{747}, lipHeight{748}, lip{749}, leg{751}, angle{752}, foot{753};
constexpr Column webDepth{1685}, edgeLength{1686}, edgeAngle{1687};
constexpr Column width1{737, 1}, width2{737, 2}, flangeWidth1{743, 1}, flangeWidth2{743, 2};
constexpr Column lip1{749, 1}, lip2{749, 2}, flange1{750, 1}, flange2{750, 2};
constexpr Column webPart1{1684, 1}, webPart2{1684, 2}, edgeLength1{1686, 1}, edgeLength2{1686, 2};

constexpr SectionTypeRow types[sectionTypeCount] = {
    {"ProfSectionI", 719, {height, width, webThickness, flangeThickness, radius}},
    {"ProfSectionCL", 720, {height, width, webThickness, flangeThickness}},
    {"ProfSectionHL", 721, {height, width, webThickness, flangeThickness, rootRadius, toeRadius}},
    {"ProfSectionCU", 722, {height, flangeWidth1, flangeWidth2, thickness}},
    {"ProfSectionT", 723, {height, width, webThickness, flangeThickness, rootRadius}},
    {"ProfSectionOI",
     724,
     {height, width, webThickness, flangeThickness, rootRadius, toeRadius, slope, slopePlace}},
    {"ProfSectionOU",
     725,
     {height, width, webThickness, flangeThickness, rootRadius, toeRadius, slope, slopePlace}},
    {"ProfSectionRect", 726, {width, thickness}},
    {"ProfSectionRound", 727, {diameter}},
    {"ProfSectionRectTube", 728, {height, width, thickness, radius}},
    {"ProfSectionRoundTube", 729, {diameter, thickness}},
    {"ProfSectionC", 730, {height, width, lipHeight, thickness}},
    {"ProfSectionZ", 731, {height, lip1, flange1, flange2, lip2, thickness}},
    {"ProfSectionV", 732, {leg, thickness, angle}},
    {"ProfSectionO", 733, {height, width, thickness, foot}},
    {"ProfSectionQ", 734, {height, width, thickness, foot}},
    {"ProfSectionCuttedI", 735, {height, width, webThickness, flangeThickness, rootRadius}},
    {"ProfSectionSigma",
     1677,
     {height, width, thickness, webPart1, webPart2, webDepth, edgeLength}},
    {"ProfSectionSigma+",
     1678,
     {height, width, thickness, webPart1, webPart2, webDepth, edgeLength1, edgeLength2, edgeAngle}},
    {"ProfSectionSigma Sleeve", 1679, {height, width, thickness, webPart1, webPart2, webDepth}},
    {"ProfSectionC+", 1680, {height, width, lip1, thickness, lip2, edgeAngle}},
    {"ProfSectionC Sleeve", 1681, {height, lip, width, thickness}},
    {"ProfSectionSingle Cleat", 1682, {height, width, thickness, width2, edgeLength}},
    {"ProfSectionDouble Cleat",
     1683,
     {height, width, thickness, width1, width2, edgeLength, edgeAngle}},
};

const SectionTypeRow* find(int type) {
    return type >= 1 && type <= sectionTypeCount ? &types[type - 1] : nullptr;
}

}  // namespace

std::string_view sectionTypePicture(int type) {
    const SectionTypeRow* found = find(type);
    return found ? found->picture : std::string_view();
}

Vor_String sectionTypeText(int type) {
    const SectionTypeRow* found = find(type);
    return found ? dialString(found->text) : Vor_String();
}

Vor_String sectionTypeDisplay(int type) {
    return "<" + sectionTypeText(type) + ">";
}

int findSectionType(std::string_view display) {
    for (int type = 1; type <= sectionTypeCount; ++type)
        if (sectionTypeDisplay(type).view() == display) return type;
    return -1;
}

Vor_StringArray sectionTypeColumns(int type) {
    return sectionTypeColumns(type, gSettings.current().language);
}

Vor_StringArray sectionTypeColumns(int type, Language language) {
    Vor_StringArray names;
    const SectionTypeRow* found = find(type);
    if (!found) return names;
    for (const Column& column : found->columns) {
        if (column.text == 0) break;
        const Vor_String name = dialString(column.text, language);
        names.append(column.number ? name + std::to_string(column.number) : name);
    }
    return names;
}

int sectionTypeNumber(std::string_view drawnAs) {
    int type = 0;
    const char* const end = drawnAs.data() + drawnAs.size();
    const auto [stop, error] = std::from_chars(drawnAs.data(), end, type);
    return error == std::errc() && stop == end && find(type) ? type : -1;
}

bool isDrawnTemplate(const Vor_String& drawnAs) {
    return drawnAs.endsWith(".dwg");
}
