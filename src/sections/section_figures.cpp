#include "sections/section_figures.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

#include "core_api/sections/section_tables.h"
#include "core_api/steel.h"
#include "core_api/text/text_helpers.h"
#include "drawing/section_outline.h"
#include "platform/encodings.h"
#include "sections/section_area.h"
#include "sections/section_shape.h"
#include "sections/section_types.h"
#include "sections/vor_prof_values_table.h"

namespace {

using drawing::Contour, drawing::Point, drawing::cross;

constexpr std::string_view massColumn = "Mass kg/m", innerRadiusColumn = "Inner radius";
constexpr int rectangularTube = 10;

// In the order of catalogues.
constexpr std::string_view catalogue[] = {
    massColumn, "Area cm2",  "cy mm",     "cz mm",     "ez mm",     "Iy cm4", "Iz cm4", "Iu cm4",
    "Iv cm4",   "Wel,y cm3", "Wel,z cm3", "Wpl,y cm3", "Wpl,z cm3", "iy cm",  "iz cm",
};

/// Whose figures are known exactly; those of cold formed sections depend on bends that tables lack.
bool isRolledOrTube(int type) {
    constexpr int types[] = {1, 3, 5, 6, 7, 8, 9, 10, 11, 17};
    return std::ranges::find(types, type) != std::end(types);
}

/// With the back of the web at the left edge.
bool isChannel(int type) {
    constexpr int types[] = {4, 7, 12, 22};
    return std::ranges::find(types, type) != std::end(types);
}

// --- columns ------------------------------------------------------------------------------------

struct ColumnName {
    std::string name;  ///< "Wely", without the marks that catalogues put before an axis
    int power = 0;     ///< of a length
    double unit = 1;   ///< mm to that power
};

/// Nothing unless the last word is a power of mm, cm or m.
std::optional<ColumnName> readColumn(std::string_view column) {
    constexpr struct {
        std::string_view text;
        double millimetres;
    } lengths[] = {{"mm", 1}, {"cm", 10}, {"m", 1000}};
    const size_t blank = column.rfind(' ');
    if (blank == column.npos) return std::nullopt;
    const std::string_view unit = column.substr(blank + 1);
    const std::string_view digits("234");
    const bool hasPower = !unit.empty() && digits.find(unit.back()) != digits.npos;
    ColumnName read;
    read.power = hasPower ? unit.back() - '0' : 1;
    const std::string_view length = hasPower ? unit.substr(0, unit.size() - 1) : unit;
    const auto found = std::ranges::find_if(
        lengths, [&](const auto& each) { return encodings::equalFolded(each.text, length); });
    if (found == std::end(lengths)) return std::nullopt;
    read.unit = std::pow(found->millimetres, read.power);
    for (const char c : column.substr(0, blank))
        if (c != ',' && c != '.' && c != '_' && c != ' ') read.name += c;
    return read;
}

/// Half of the last place that is printed.
double halfPlaceOf(std::string_view printed) {
    const size_t point = printed.find('.');
    const auto decimals = point == printed.npos ? 0 : static_cast<int>(printed.size() - point - 1);
    return 0.5 * std::pow(10.0, -decimals);
}

// --- integrals ----------------------------------------------------------------------------------

struct Integrals {
    double area = 0;
    double x = 0, y = 0;            // first moments
    double xx = 0, yy = 0, xy = 0;  // second moments

    void add(Point a, Point b) {
        const double twice = cross(a, b);
        area += twice / 2;
        x += (a.x + b.x) * twice / 6;
        y += (a.y + b.y) * twice / 6;
        xx += (a.x * a.x + a.x * b.x + b.x * b.x) * twice / 12;
        yy += (a.y * a.y + a.y * b.y + b.y * b.y) * twice / 12;
        xy += (a.x * b.y + 2 * a.x * a.y + 2 * b.x * b.y + b.x * a.y) * twice / 24;
    }
    void add(const Contour& contour) {
        for (size_t i = 0; i < contour.size(); ++i)
            add(contour[i], contour[(i + 1) % contour.size()]);
    }
};

/// What of a contour lies above y = `level`, measured from there.
Contour above(const Contour& contour, double level) {
    Contour part;
    for (size_t i = 0; i < contour.size(); ++i) {
        const Point a = contour[i], b = contour[(i + 1) % contour.size()];
        if (a.y >= level) part.push_back({a.x, a.y - level});
        if ((a.y >= level) != (b.y >= level))
            part.push_back({a.x + (b.x - a.x) * (level - a.y) / (b.y - a.y), 0});
    }
    return part;
}

Integrals integralsAbove(const std::vector<Contour>& contours, double level) {
    Integrals sum;
    for (const Contour& contour : contours) sum.add(above(contour, level));
    return sum;
}

/// The area alone, for those who look for a level: it makes no contours.
double areaAbove(const std::vector<Contour>& contours, double level) {
    double twice = 0;
    for (const Contour& contour : contours) {
        Point a = contour.back();
        for (const Point b : contour) {
            const double from = a.y - level, to = b.y - level;
            const double width = a.x - b.x;
            if (from >= 0 && to >= 0)
                twice += width * (from + to);
            else if (from >= 0 || to >= 0)  // the triangle on this side of where the edge crosses
                twice += width * std::max(from, to) * std::max(from, to) / std::abs(from - to);
            a = b;
        }
    }
    return twice / 2;
}

/// Mirrored, so that what stood lies.
std::vector<Contour> turned(const std::vector<Contour>& contours) {
    std::vector<Contour> all;
    for (const Contour& contour : contours) {
        Contour& made = all.emplace_back();
        for (size_t i = contour.size(); i-- > 0;) made.push_back({contour[i].y, contour[i].x});
    }
    return all;
}

/// About the horizontal line that halves the area.
double plasticModulusOf(const std::vector<Contour>& contours) {
    Integrals all;
    for (const Contour& contour : contours) all.add(contour);
    const drawing::Box box = drawing::boundsOf(contours.front());
    double low = box.bottom, high = box.top;
    constexpr int halvings = 50;
    for (int i = 0; i < halvings; ++i) {
        const double middle = (low + high) / 2;
        (areaAbove(contours, middle) > all.area / 2 ? low : high) = middle;
    }
    const double upper = integralsAbove(contours, low).y;
    const double lower = upper - (all.y - low * all.area);
    return upper + lower;
}

std::vector<double> numbersOf(std::span<const std::string_view> values) {
    std::vector<double> numbers;
    for (const std::string_view text : values) {
        if (!isNumber(text)) break;
        numbers.push_back(textToDouble(text));
    }
    return numbers;
}

}  // namespace

SectionFigures::SectionFigures(int type, std::vector<Contour> contours, double area)
    : m_type(type), m_contours(std::move(contours)), m_area(area) {
    m_box = drawing::boundsOf(m_contours.front());
    Integrals sum;
    for (const Contour& contour : m_contours) sum.add(contour);
    m_measured = sum.area;
    m_centroid = {sum.x / sum.area, sum.y / sum.area};
    m_y = sum.yy - m_centroid.y * sum.y;
    m_z = sum.xx - m_centroid.x * sum.x;
    m_yz = sum.xy - m_centroid.x * sum.y;
}

std::optional<SectionFigures> SectionFigures::of(int type, std::span<const double> values) {
    const auto area = sectionArea(type, values);
    if (!area) return std::nullopt;
    auto contours = sectionShape(type, values);
    if (contours.empty()) return std::nullopt;
    SectionFigures figures(type, std::move(contours), *area);
    if (type == rectangularTube)
        figures.m_innerRadius = drawing::innerTubeRadius(values[3], values[2]);
    return figures;
}

std::optional<SectionFigures> SectionFigures::of(std::string_view drawnAs,
                                                 std::span<const std::string_view> values) {
    return of(sectionTypeNumber(drawnAs), numbersOf(values));
}

std::optional<SectionFigures> SectionFigures::of(const Vor_ProfValuesTable& table, int row) {
    const Vor_StringArray& cells = table.rows[row];
    std::vector<std::string_view> values;
    for (int i = table.firstValueColumn(); i < cells.length(); ++i) values.push_back(cells[i]);
    return of(table.drawnAs, values);
}

bool SectionFigures::isAlikeAboutBothAxes() const {
    constexpr double roundOff = 1e-6;
    return std::abs(m_y - m_z) <= roundOff * m_y;
}

std::optional<double> SectionFigures::momentAbout(Axis axis) const {
    const double middle = (m_y + m_z) / 2;
    const double radius = std::hypot((m_y - m_z) / 2, m_yz);
    switch (axis) {
        case Axis::y:
            return m_y;
        case Axis::z:
            return m_z;
        case Axis::u:
            return middle + radius;
        case Axis::v:
            return middle - radius;
        default:
            return isAlikeAboutBothAxes() ? std::optional(m_y) : std::nullopt;
    }
}

std::optional<double> SectionFigures::elasticModulus(Axis axis) const {
    if (axis == Axis::u || axis == Axis::v) return std::nullopt;
    const auto moment = momentAbout(axis);
    if (!moment) return std::nullopt;
    const double farthest = axis == Axis::z
                                ? std::max(m_centroid.x - m_box.left, m_box.right - m_centroid.x)
                                : std::max(m_centroid.y - m_box.bottom, m_box.top - m_centroid.y);
    return *moment / farthest;
}

std::optional<double> SectionFigures::plasticModulus(Axis axis) const {
    if (axis == Axis::u || axis == Axis::v) return std::nullopt;
    if (axis == Axis::none && !isAlikeAboutBothAxes()) return std::nullopt;
    return plasticModulusOf(axis == Axis::z ? turned(m_contours) : m_contours);
}

/// In mm to that power.
std::optional<double> SectionFigures::measure(std::string_view name, int power) const {
    const auto is = [&](std::string_view other) { return encodings::equalFolded(name, other); };
    if (power == 2) return is("Area") || is("A") ? std::optional(m_area) : std::nullopt;
    if (power == 1 && (is("cy") || is("cz")))
        return is("cy") ? m_centroid.y - m_box.bottom : m_centroid.x - m_box.left;
    if (power == 1 && is("ez"))
        return isChannel(m_type) ? std::optional(m_centroid.x - m_box.left) : std::nullopt;
    const auto axisAfter = [&](std::string_view symbol) -> std::optional<Axis> {
        if (!encodings::equalFolded(name.substr(0, symbol.size()), symbol)) return std::nullopt;
        const std::string_view rest = name.substr(symbol.size());
        constexpr std::string_view axes = "yzuv";
        if (rest.empty()) return Axis::none;
        const size_t at = axes.find(encodings::lowered(rest));
        return at == axes.npos || rest.size() > 1 ? std::nullopt
                                                  : std::optional(static_cast<Axis>(at + 1));
    };
    if (power == 3) {
        if (const auto axis = axisAfter("Wel")) return elasticModulus(*axis);
        if (const auto axis = axisAfter("Wpl")) return plasticModulus(*axis);
        return std::nullopt;
    }
    const auto axis = axisAfter("I");
    const auto moment = axis ? momentAbout(*axis) : std::nullopt;
    if (!moment || power == 4) return moment;
    return std::sqrt(*moment / m_measured);
}

std::optional<double> SectionFigures::valueOf(std::string_view column) const {
    constexpr double mm2PerM2 = 1e6;
    if (encodings::equalFolded(column, massColumn)) return m_area / mm2PerM2 * steelDensity;
    if (m_type == rectangularTube && encodings::equalFolded(column, innerRadiusColumn))
        return m_innerRadius;
    const auto read = readColumn(column);
    const auto found = read ? measure(read->name, read->power) : std::nullopt;
    return found ? std::optional(*found / read->unit) : std::nullopt;
}

Vor_String SectionFigures::textOf(std::string_view column) const {
    constexpr int digits = 4;
    const auto value = valueOf(column);
    if (!value) return {};
    const int places = *value > 0 ? static_cast<int>(std::floor(std::log10(*value))) + 1 : 0;
    if (places <= digits) return Vor_String(*value, digits - places);
    const double unit = std::pow(10.0, places - digits);
    return Vor_String(std::round(*value / unit) * unit, 0);
}

bool SectionFigures::allows(std::string_view column, std::string_view printed) const {
    constexpr double coldFormed = 0.15, mass = 0.015, rolled = 0.01;
    // From 0.1 kg/m on masses are rounded to a tenth, some of them twice.
    constexpr double smallestOfMass = 0.06;
    const auto value = isNumber(printed) ? valueOf(column) : std::nullopt;
    if (!value) return true;
    const bool isMass = encodings::equalFolded(column, massColumn);
    const double share = !isRolledOrTube(m_type) ? coldFormed : isMass ? mass : rolled;
    const double roundOff = std::max(halfPlaceOf(printed) * 1.01, isMass ? smallestOfMass : 0);
    return std::abs(textToDouble(printed) - *value) <= std::max(share * *value, roundOff);
}

std::vector<SectionFigures::Figure> SectionFigures::catalogueFigures() const {
    std::vector<Figure> figures;
    const bool isAngle = m_type == 3 || m_type == 2;
    for (const std::string_view column : catalogue) {
        const bool isOfAngles =
            column[0] == 'c' || column.starts_with("Iu") || column.starts_with("Iv");
        if (isOfAngles && !isAngle) continue;
        if (const auto value = valueOf(column)) figures.push_back({column, *value});
    }
    return figures;
}

bool namesFigure(std::string_view column) {
    if (encodings::equalFolded(column, massColumn)) return true;
    constexpr std::string_view lengths[] = {"i", "iy", "iz", "iu", "iv", "cy", "cz", "ez"};
    const auto read = readColumn(column);
    return read && (read->power > 1 || std::ranges::find(lengths, read->name) != std::end(lengths));
}

std::optional<DoubtfulMass> doubtfulMass(std::string_view section) {
    const auto place = gSectionTables.find(section);
    if (!place) return std::nullopt;
    std::vector<std::string_view> values;
    while (const Vor_String* value = place.table->value(place.row, static_cast<int>(values.size())))
        values.push_back(*value);
    const int column = place.table->valueColumns().find(Vor_String(massColumn));
    if (column < 0 || column >= static_cast<int>(values.size())) return std::nullopt;
    const Vor_String printed = values[static_cast<size_t>(column)];
    const auto figures = SectionFigures::of(place.table->drawnAs(), values);
    if (!figures || figures->allows(massColumn, printed)) return std::nullopt;
    return DoubtfulMass{printed, figures->textOf(massColumn)};
}
