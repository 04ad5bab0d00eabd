#include "sections/value_rules.h"

#include <algorithm>
#include <cstdint>

namespace {

using Values = std::span<const double>;

/// One bit a type.
using Types = std::uint32_t;

template <class... Numbers>
constexpr Types types(Numbers... numbers) {
    return ((Types{1} << numbers) | ...);
}

struct Rule {
    Types types;
    BrokenRule broken;
    bool (*holds)(Values);
};

// Values of rolled sections: h 0, b 1, tw 2, tf 3, radii 4 and 5, slope 6 and its position 7.
constexpr Types iShapes = types(1, 6), tShapes = types(5, 17), tapered = types(6, 7);

constexpr Rule rules[] = {
    {iShapes | tShapes | types(2, 3, 7),
     {2, "the web is not thinner than the section is wide"},
     [](Values v) { return v[2] < v[1]; }},
    {iShapes | types(7),
     {3, "two flanges are together not lower than the section is high"},
     [](Values v) { return 2 * v[3] < v[0]; }},
    {tShapes | types(2, 3),
     {3, "the flange is not thinner than the section is high"},
     [](Values v) { return v[3] < v[0]; }},
    {iShapes,
     {4, "the radii do not fit between the flanges or beside the web"},
     [](Values v) { return 2 * v[4] <= std::min(v[1] - v[2], v[0] - 2 * v[3]); }},
    {types(7),
     {4, "the radii do not fit between the flanges or beside the web"},
     [](Values v) { return v[4] <= std::min(v[1] - v[2], v[0] / 2 - v[3]); }},
    {tShapes,
     {4, "the radii do not fit beside the web or below the flange"},
     [](Values v) { return v[4] <= std::min((v[1] - v[2]) / 2, v[0] - v[3]); }},
    {types(3),
     {4, "the root radius does not fit between the legs"},
     [](Values v) { return v[4] <= std::min(v[1] - v[2], v[0] - v[3]); }},
    {tapered, {6, "a slope is given in percent, below 100"}, [](Values v) { return v[6] < 100; }},
    {tapered,
     {7, "the slope position does not lie beside the web"},
     [](Values v) { return v[7] <= v[1] - v[2]; }},
    {tapered,
     {7, "the flange tapers to nothing before its edge"},
     [](Values v) { return v[3] > v[6] / 100 * v[7]; }},
    // h, b, t, r
    {types(10),
     {2, "the wall is not thinner than half the tube"},
     [](Values v) { return 2 * v[2] < std::min(v[0], v[1]); }},
    {types(10),
     {3, "the radius is larger than half the tube"},
     [](Values v) { return 2 * v[3] <= std::min(v[0], v[1]); }},
    // d, t
    {types(11),
     {1, "the wall is not thinner than half the tube"},
     [](Values v) { return 2 * v[1] < v[0]; }},
    // h, flange widths 1 and 2, t
    {types(4),
     {3, "the sheet is not thinner than its parts"},
     [](Values v) { return 2 * v[3] < v[0] && v[3] < std::min(v[1], v[2]); }},
    // h, b, lip, t
    {types(12), {2, "the lips meet"}, [](Values v) { return 2 * v[2] < v[0]; }},
    {types(12),
     {3, "the sheet is not thinner than its parts"},
     [](Values v) { return 2 * v[3] < std::min(v[0], v[1]); }},
    // h, lip 1, flange 1, flange 2, lip 2, t
    {types(13),
     {5, "the sheet is not thinner than its parts"},
     [](Values v) { return 2 * v[5] < v[0] && v[5] < std::min(v[2], v[3]); }},
    // leg, t, angle
    {types(14),
     {1, "the sheet is not thinner than its legs"},
     [](Values v) { return v[1] < v[0]; }},
    {types(14),
     {2, "the angle lies between 0 and 180 degrees"},
     [](Values v) { return v[2] > 0 && v[2] <= 180; }},
    // h, b, t, then parts of the type's own
    {types(15, 16, 18, 19, 20, 23, 24),
     {2, "the sheet is not thinner than its parts"},
     [](Values v) { return v[2] < std::min(v[0], v[1]); }},
    // h, b, lip 1, t, lip 2, angle
    {types(21),
     {3, "the sheet is not thinner than its parts"},
     [](Values v) { return 2 * v[3] < std::min(v[0], v[1]); }},
    {types(21),
     {5, "the angle lies between 0 and 180 degrees"},
     [](Values v) { return v[5] > 0 && v[5] < 180; }},
    // h, lip, b, t
    {types(22), {1, "the lips meet"}, [](Values v) { return 2 * v[1] < v[0]; }},
    {types(22),
     {3, "the sheet is not thinner than its parts"},
     [](Values v) { return 2 * v[3] < std::min(v[0], v[2]); }},
};

}  // namespace

const BrokenRule* brokenRule(int type, Values values) {
    for (const Rule& rule : rules)
        if ((rule.types & types(type)) != 0 && !rule.holds(values)) return &rule.broken;
    return nullptr;
}

bool mayBeZero(std::string_view column) {
    constexpr std::string_view zeroNames[] = {"Radius", "Root radius",  "Toe radius",
                                              "Lip",    "Flange slope", "Slope position",
                                              "Foot",   "Edge length",  "Edge angle"};
    return std::ranges::any_of(zeroNames, [&](auto name) { return column.starts_with(name); });
}
