#include "sections/section_area.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "core_api/sections/section_tables.h"
#include "core_api/steel.h"
#include "core_api/text/text_helpers.h"
#include "drawing/section_outline.h"
#include "platform/encodings.h"
#include "sections/section_types.h"
#include "sections/value_rules.h"
#include "sections/vor_prof_values_table.h"

namespace {

using Values = std::span<const double>;  // in the order of the type's value columns
constexpr double pi = std::numbers::pi;
constexpr double rightAngle = 90;

double cotOfHalf(double degrees) {
    return 1 / std::tan(degrees * pi / 360);
}

/// What a radius fills in, or takes off, at a corner of `degrees`.
double rounding(double radius, double degrees = rightAngle) {
    return radius * radius * (cotOfHalf(degrees) - (180 - degrees) * pi / 360);
}

/// What two strips of this thickness have in common where they meet at an angle.
double overlap(double thickness, double degrees = rightAngle) {
    return thickness * thickness * cotOfHalf(degrees);
}

// --- rolled sections: h, b, tw, tf, then radii --------------------------------------------------

// 2 b tf + (h - 2 tf) tw + 4 fillets
double iSection(Values v) {
    return 2 * v[1] * v[3] + (v[0] - 2 * v[3]) * v[2] + 4 * rounding(v[4]);
}

// h tw + (b - tw) tf + fillet - 2 toes
double angleSection(Values v) {
    return v[0] * v[2] + (v[1] - v[2]) * v[3] + rounding(v[4]) - 2 * rounding(v[5]);
}

// b tf + (h - tf) tw + 2 fillets
double tSection(Values v) {
    return v[1] * v[3] + (v[0] - v[3]) * v[2] + 2 * rounding(v[4]);
}

/// The parts of a flange beside the web, `width` wide: tf thick at the slope position and thicker
/// by the slope towards the web; a fillet at the web and a rounded toe at the edge.
double taperedOutstand(Values v, double width) {
    const double slope = v[6] / 100;
    const double meanThickness = v[3] + slope * (width / 2 - v[7]);
    const double corner = rightAngle + std::atan(slope) * 180 / pi;
    return width * meanThickness + rounding(v[4], corner) - rounding(v[5], corner);
}

// h tw + 4 outstands of (b - tw) / 2
double taperedI(Values v) {
    return v[0] * v[2] + 4 * taperedOutstand(v, (v[1] - v[2]) / 2);
}

// h tw + 2 outstands of b - tw
double taperedChannel(Values v) {
    return v[0] * v[2] + 2 * taperedOutstand(v, v[1] - v[2]);
}

// --- bars and tubes -----------------------------------------------------------------------------

double flat(Values v) {
    return v[0] * v[1];
}

double roundBar(Values v) {
    return pi / 4 * v[0] * v[0];
}

// 2 t (h + b - 2 t) - 4 corners outside + 4 corners inside
double rectangularTube(Values v) {
    const double inner = drawing::innerTubeRadius(v[3], v[2]);
    return 2 * v[2] * (v[0] + v[1] - 2 * v[2]) - 4 * rounding(v[3]) + 4 * rounding(inner);
}

double roundTube(Values v) {
    return pi * v[1] * (v[0] - v[1]);
}

// --- cold formed sections: a strip with sharp bends, measured outside ---------------------------

// h tw + (b - tw) tf
double coldAngle(Values v) {
    return v[0] * v[2] + (v[1] - v[2]) * v[3];
}

/// A part that is bent off another one; none when it is no longer than the other is thick.
double bentPart(double length, double thickness, double degrees = rightAngle) {
    return std::max(length * thickness - overlap(thickness, degrees), 0.0);
}

// Web h, flanges 1 and 2.
double coldChannel(Values v) {
    return v[0] * v[3] + bentPart(v[1], v[3]) + bentPart(v[2], v[3]);
}

double lippedChannel(double height, double width, double lip1, double lip2, double thickness,
                     double lipAngle) {
    return height * thickness + 2 * bentPart(width, thickness) +
           bentPart(lip1, thickness, lipAngle) + bentPart(lip2, thickness, lipAngle);
}

double cSection(Values v) {
    return lippedChannel(v[0], v[1], v[2], v[2], v[3], rightAngle);
}

double unequalC(Values v) {
    return lippedChannel(v[0], v[1], v[2], v[4], v[3], v[5]);
}

double cSleeve(Values v) {
    return lippedChannel(v[0], v[2], v[1], v[1], v[3], rightAngle);
}

// Web h, flanges 1 and 2 to either side, a lip at each.
double zSection(Values v) {
    const double t = v[5];
    return v[0] * t + bentPart(v[1], t) + bentPart(v[2], t) + bentPart(v[3], t) + bentPart(v[4], t);
}

// Two legs at an angle.
double vSection(Values v) {
    return 2 * v[0] * v[1] - overlap(v[1], v[2]);
}

// Top b, two webs below it, two feet outside the webs.
double hat(Values v) {
    return v[2] * (v[1] + 2 * (v[0] - v[2]) + 2 * v[3]);
}

/// None for types whose parts lie as only their drawing says.
using Formula = double (*)(Values);
constexpr Formula formulas[sectionTypeCount] = {
    iSection,       coldAngle, angleSection, coldChannel,     tSection,  taperedI,
    taperedChannel, flat,      roundBar,     rectangularTube, roundTube, cSection,
    zSection,       vSection,  hat,          nullptr,         tSection,  nullptr,
    nullptr,        nullptr,   unequalC,     cSleeve,         nullptr,   nullptr,
};

std::optional<double> numberIn(std::string_view text) {
    if (!isNumber(text)) return std::nullopt;
    return textToDouble(text);
}

std::optional<double> massOf(std::optional<double> area) {
    constexpr double mm2PerM2 = 1e6;
    if (!area) return std::nullopt;
    return *area / mm2PerM2 * steelDensity;
}

/// The value columns of a table, or what a row has in them.
std::vector<std::string_view> valuesOf(const Vor_ProfValuesTable& table,
                                       const Vor_StringArray& cells) {
    std::vector<std::string_view> values;
    for (int i = table.firstValueColumn(); i < cells.length(); ++i) values.push_back(cells[i]);
    return values;
}

}  // namespace

std::optional<double> sectionArea(int type, std::span<const double> values) {
    if (type < 1 || type > sectionTypeCount) return std::nullopt;
    const Formula formula = formulas[type - 1];
    const auto needed = static_cast<size_t>(sectionTypeColumns(type).length());
    const auto isBad = [](double value) { return !std::isfinite(value) || value < 0; };
    if (values.size() < needed || std::ranges::any_of(values.first(needed), isBad))
        return std::nullopt;
    const Values own = values.first(needed);
    if (brokenRule(type, own)) return std::nullopt;
    const double area = formula ? formula(own) : drawing::sectionOutline(type, own).area();
    if (!std::isfinite(area) || area <= 0) return std::nullopt;
    return area;
}

std::optional<double> sectionArea(std::string_view drawnAs,
                                  std::span<const std::string_view> values) {
    std::vector<double> numbers;
    for (const std::string_view text : values) {
        const auto number = numberIn(text);
        if (!number) break;
        numbers.push_back(*number);
    }
    return sectionArea(sectionTypeNumber(drawnAs), numbers);
}

std::optional<double> sectionArea(const Vor_ProfValuesTable& table, int row) {
    return sectionArea(table.drawnAs, valuesOf(table, table.rows[row]));
}

std::optional<double> sectionMass(int type, std::span<const double> values) {
    return massOf(sectionArea(type, values));
}

std::optional<double> sectionMass(std::string_view drawnAs,
                                  std::span<const std::string_view> columns,
                                  std::span<const std::string_view> values) {
    for (size_t i = 0; i < std::min(columns.size(), values.size()); ++i) {
        if (!encodings::equalFolded(columns[i], "Mass kg/m")) continue;
        if (const auto printed = numberIn(values[i])) return printed;
    }
    return massOf(sectionArea(drawnAs, values));
}

std::optional<double> sectionMass(const Vor_ProfValuesTable& table, int row) {
    return sectionMass(table.drawnAs, valuesOf(table, table.columnNames),
                       valuesOf(table, table.rows[row]));
}

std::optional<double> sectionMass(std::string_view section) {
    const auto place = gSectionTables.find(section);
    if (!place) return std::nullopt;
    const Vor_StringArray columns = place.table->valueColumns();
    const std::vector<std::string_view> names(columns.begin(), columns.end());
    std::vector<std::string_view> values;
    while (const Vor_String* value = place.table->value(place.row, static_cast<int>(values.size())))
        values.push_back(*value);
    return sectionMass(place.table->drawnAs(), names, values);
}
