#include "bill/part_mass.h"

#include <array>
#include <numbers>

#include "core_api/steel.h"

namespace {

constexpr double cubicMillimetres = 1e9;  // of a cubic metre

/// Millimetres: across flats and height of the head (ISO 4014), height of the nut (ISO 4032, m
/// max), holes, outsides and heights of washers (ISO 7089).
struct BoltSize {
    double diameter, acrossFlats, head, nut, washerHole, washer, washerHeight;
};
constexpr std::array<BoltSize, 8> boltSizes{{
    {12, 18, 7.5, 10.8, 13, 24, 2.5},
    {16, 24, 10, 14.8, 17, 30, 3},
    {20, 30, 12.5, 18, 21, 37, 3},
    {22, 34, 14, 19.4, 23, 39, 3},
    {24, 36, 15, 21.5, 25, 44, 4},
    {27, 41, 17, 23.8, 28, 50, 4},
    {30, 46, 18.7, 25.6, 31, 56, 4},
    {36, 55, 22.5, 31, 37, 66, 5},
}};

double disc(double diameter) {
    return std::numbers::pi / 4 * diameter * diameter;
}

double hexagon(double acrossFlats) {
    return std::numbers::sqrt3 / 2 * acrossFlats * acrossFlats;
}

}  // namespace

std::optional<double> plateMass(double length, double width, double thickness) {
    if (length <= 0 || width <= 0 || thickness <= 0) return std::nullopt;
    return length * width * thickness * steelDensity / cubicMillimetres;
}

std::optional<double> boltMass(double diameter, double length) {
    if (length <= 0) return std::nullopt;
    for (const BoltSize& size : boltSizes) {
        if (size.diameter != diameter) continue;
        const double bolt = disc(diameter) * length + hexagon(size.acrossFlats) * size.head;
        const double nut = (hexagon(size.acrossFlats) - disc(diameter)) * size.nut;
        const double washer = (disc(size.washer) - disc(size.washerHole)) * size.washerHeight;
        return (bolt + nut + washer) * steelDensity / cubicMillimetres;
    }
    return std::nullopt;
}
