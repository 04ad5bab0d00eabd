// CONVERT: units of measure by name. Names differ by letter case ("Pa" is a pressure, "pa" none).

#include <array>
#include <cmath>
#include <optional>
#include <string_view>

#include "spread/control/formula/functions/arguments.h"
#include "spread/control/formula/functions/family_parts.h"

namespace formula {
namespace {

enum class Quantity : uint8_t {
    mass,
    length,
    time,
    pressure,
    force,
    energy,
    power,
    magnetism,
    temperature,
    volume,
    area,
    information,
    speed,
};

/// Which prefixes a unit takes, and how often they count: km2 is a million square metres.
enum class Prefixes : uint8_t { none, decimal, squared, cubed, binary };

/// A unit is `factor` times the unit of its quantity that has the factor 1; temperatures also have
/// an offset: kelvin = (degrees + offset) * factor.
struct Unit {
    std::string_view name;
    Quantity quantity;
    double factor;
    Prefixes prefixes = Prefixes::none;
    double offset = 0;
};

using enum Quantity;
constexpr auto decimal = Prefixes::decimal;

constexpr double inch = 0.0254;
constexpr double foot = 0.3048;
constexpr double yard = 0.9144;
constexpr double mile = 1609.344;
constexpr double nauticalMile = 1852;
constexpr double lightYear = 9460730472580800.0;  // 365.25 days at 299,792,458 m/s
constexpr double point = inch / 72;
constexpr double surveyFoot = 1200.0 / 3937;
constexpr double pound = 0.45359237;  // kg
constexpr double gravity = 9.80665;   // m/s2, standard
constexpr double gallon = 231 * inch * inch * inch;
constexpr double imperialGallon = 0.00454609;
constexpr double atmosphere = 101325;
constexpr double horsepowerBritish = 550 * foot * pound * gravity;

constexpr double squared(double x) {
    return x * x;
}
constexpr double cubed(double x) {
    return x * x * x;
}

constexpr Unit units[] = {
    // gram
    {"g", mass, 1, decimal},
    {"u", mass, 1.66053100460465e-24, decimal},
    {"sg", mass, 14593.9029372064},
    {"lbm", mass, pound * 1000},
    {"ozm", mass, pound * 1000 / 16},
    {"grain", mass, pound / 7},
    {"cwt", mass, pound * 100'000},
    {"shweight", mass, pound * 100'000},
    {"uk_cwt", mass, pound * 112'000},
    {"lcwt", mass, pound * 112'000},
    {"hweight", mass, pound * 112'000},
    {"stone", mass, pound * 14'000},
    {"ton", mass, pound * 2'000'000},
    {"uk_ton", mass, pound * 2'240'000},
    {"LTON", mass, pound * 2'240'000},
    {"brton", mass, pound * 2'240'000},
    // metre
    {"m", length, 1, decimal},
    {"mi", length, mile},
    {"Nmi", length, nauticalMile},
    {"in", length, inch},
    {"ft", length, foot},
    {"yd", length, yard},
    {"ang", length, 1e-10, decimal},
    {"ell", length, 45 * inch},
    {"ly", length, lightYear, decimal},
    {"parsec", length, 3.08567758128155e16, decimal},
    {"pc", length, 3.08567758128155e16, decimal},
    {"Picapt", length, point},
    {"Pica", length, point},
    {"pica", length, inch / 6},
    {"survey_mi", length, surveyFoot * 5280},
    // second
    {"yr", time, 365.25 * 86400},
    {"day", time, 86400},
    {"d", time, 86400},
    {"hr", time, 3600},
    {"mn", time, 60},
    {"min", time, 60},
    {"sec", time, 1, decimal},
    {"s", time, 1, decimal},
    // pascal
    {"Pa", pressure, 1, decimal},
    {"p", pressure, 1, decimal},
    {"atm", pressure, atmosphere, decimal},
    {"at", pressure, atmosphere, decimal},
    {"mmHg", pressure, 133.322, decimal},
    {"psi", pressure, pound* gravity / (inch * inch)},
    {"Torr", pressure, atmosphere / 760},
    // newton
    {"N", force, 1, decimal},
    {"dyn", force, 1e-5, decimal},
    {"dy", force, 1e-5, decimal},
    {"lbf", force, pound* gravity},
    {"pond", force, gravity / 1000, decimal},
    // joule
    {"J", energy, 1, decimal},
    {"e", energy, 1e-7, decimal},
    {"c", energy, 4.184, decimal},
    {"cal", energy, 4.1868, decimal},
    {"eV", energy, 1.602176487e-19, decimal},
    {"ev", energy, 1.602176487e-19, decimal},
    {"HPh", energy, horsepowerBritish * 3600},
    {"hh", energy, horsepowerBritish * 3600},
    {"Wh", energy, 3600, decimal},
    {"wh", energy, 3600, decimal},
    {"flb", energy, foot* pound* gravity},
    {"BTU", energy, 1055.05585262},
    {"btu", energy, 1055.05585262},
    // watt
    {"W", Quantity::power, 1, decimal},
    {"w", Quantity::power, 1, decimal},
    {"HP", Quantity::power, horsepowerBritish},
    {"h", Quantity::power, horsepowerBritish},
    {"PS", Quantity::power, 75 * gravity},
    // tesla
    {"T", magnetism, 1, decimal},
    {"ga", magnetism, 1e-4, decimal},
    // kelvin
    {"K", temperature, 1, decimal},
    {"kel", temperature, 1, decimal},
    {"C", temperature, 1, Prefixes::none, 273.15},
    {"cel", temperature, 1, Prefixes::none, 273.15},
    {"F", temperature, 1 / 1.8, Prefixes::none, 459.67},
    {"fah", temperature, 1 / 1.8, Prefixes::none, 459.67},
    {"Rank", temperature, 1 / 1.8},
    {"Reau", temperature, 1.25, Prefixes::none, 218.52},
    // cubic metre
    {"m3", volume, 1, Prefixes::cubed},
    {"m^3", volume, 1, Prefixes::cubed},
    {"l", volume, 0.001, decimal},
    {"L", volume, 0.001, decimal},
    {"lt", volume, 0.001, decimal},
    {"tsp", volume, gallon / 768},
    {"tspm", volume, 5e-6},
    {"tbs", volume, gallon / 256},
    {"oz", volume, gallon / 128},
    {"cup", volume, gallon / 16},
    {"pt", volume, gallon / 8},
    {"us_pt", volume, gallon / 8},
    {"uk_pt", volume, imperialGallon / 8, decimal},
    {"qt", volume, gallon / 4},
    {"uk_qt", volume, imperialGallon / 4},
    {"gal", volume, gallon},
    {"uk_gal", volume, imperialGallon},
    {"ang3", volume, cubed(1e-10), Prefixes::cubed},
    {"ang^3", volume, cubed(1e-10), Prefixes::cubed},
    {"barrel", volume, gallon * 42},
    {"bushel", volume, 2150.42 * cubed(inch)},
    {"ft3", volume, cubed(foot)},
    {"ft^3", volume, cubed(foot)},
    {"in3", volume, cubed(inch)},
    {"in^3", volume, cubed(inch)},
    {"ly3", volume, cubed(lightYear)},
    {"ly^3", volume, cubed(lightYear)},
    {"mi3", volume, cubed(mile)},
    {"mi^3", volume, cubed(mile)},
    {"yd3", volume, cubed(yard)},
    {"yd^3", volume, cubed(yard)},
    {"Nmi3", volume, cubed(nauticalMile)},
    {"Nmi^3", volume, cubed(nauticalMile)},
    {"Picapt3", volume, cubed(point)},
    {"Picapt^3", volume, cubed(point)},
    {"Pica3", volume, cubed(point)},
    {"Pica^3", volume, cubed(point)},
    {"GRT", volume, 100 * cubed(foot)},
    {"regton", volume, 100 * cubed(foot)},
    {"MTON", volume, 40 * cubed(foot)},
    // square metre
    {"m2", area, 1, Prefixes::squared},
    {"m^2", area, 1, Prefixes::squared},
    {"uk_acre", area, 4840 * squared(yard)},
    {"us_acre", area, 43560 * squared(surveyFoot)},
    {"ang2", area, squared(1e-10), Prefixes::squared},
    {"ang^2", area, squared(1e-10), Prefixes::squared},
    {"ar", area, 100, decimal},
    {"ha", area, 10000},
    {"Morgen", area, 2500},
    {"ft2", area, squared(foot)},
    {"ft^2", area, squared(foot)},
    {"in2", area, squared(inch)},
    {"in^2", area, squared(inch)},
    {"ly2", area, squared(lightYear)},
    {"ly^2", area, squared(lightYear)},
    {"mi2", area, squared(mile)},
    {"mi^2", area, squared(mile)},
    {"Nmi2", area, squared(nauticalMile)},
    {"Nmi^2", area, squared(nauticalMile)},
    {"Picapt2", area, squared(point)},
    {"Picapt^2", area, squared(point)},
    {"Pica2", area, squared(point)},
    {"Pica^2", area, squared(point)},
    {"yd2", area, squared(yard)},
    {"yd^2", area, squared(yard)},
    // bit
    {"bit", information, 1, Prefixes::binary},
    {"byte", information, 8, Prefixes::binary},
    // metre a second
    {"m/s", speed, 1, decimal},
    {"m/sec", speed, 1, decimal},
    {"m/h", speed, 1.0 / 3600, decimal},
    {"m/hr", speed, 1.0 / 3600, decimal},
    {"mph", speed, mile / 3600},
    {"kn", speed, nauticalMile / 3600},
    {"admkn", speed, 6080 * foot / 3600},
};

struct Prefix {
    std::string_view name;
    double factor;
};

constexpr Prefix decimalPrefixes[] = {
    {"Y", 1e24}, {"Z", 1e21}, {"E", 1e18},  {"P", 1e15},  {"T", 1e12},  {"G", 1e9},   {"M", 1e6},
    {"k", 1e3},  {"h", 1e2},  {"da", 1e1},  {"e", 1e1},   {"d", 1e-1},  {"c", 1e-2},  {"m", 1e-3},
    {"u", 1e-6}, {"n", 1e-9}, {"p", 1e-12}, {"f", 1e-15}, {"a", 1e-18}, {"z", 1e-21}, {"y", 1e-24},
};

constexpr Prefix binaryPrefixes[] = {
    {"ki", 0x1p10}, {"Mi", 0x1p20}, {"Gi", 0x1p30}, {"Ti", 0x1p40},
    {"Pi", 0x1p50}, {"Ei", 0x1p60}, {"Zi", 0x1p70}, {"Yi", 0x1p80},
};

const Unit* unitNamed(std::string_view name) {
    for (const Unit& unit : units)
        if (unit.name == name) return &unit;
    return nullptr;
}

/// `text` as one of `prefixes` followed by a unit that takes it.
std::optional<Unit> withPrefix(std::string_view text, std::span<const Prefix> prefixes,
                               bool areBinary) {
    for (const Prefix& prefix : prefixes) {
        if (!text.starts_with(prefix.name)) continue;
        const Unit* unit = unitNamed(text.substr(prefix.name.size()));
        if (!unit || unit->prefixes == Prefixes::none) continue;
        if (areBinary && unit->prefixes != Prefixes::binary) continue;
        Unit result = *unit;
        result.factor *= unit->prefixes == Prefixes::squared ? squared(prefix.factor)
                         : unit->prefixes == Prefixes::cubed ? cubed(prefix.factor)
                                                             : prefix.factor;
        return result;
    }
    return std::nullopt;
}

std::optional<Unit> findUnit(std::string_view text) {
    if (const Unit* unit = unitNamed(text)) return *unit;
    if (const auto unit = withPrefix(text, binaryPrefixes, true)) return unit;
    return withPrefix(text, decimalPrefixes, false);
}

/// The unit that an argument names; #N/A when it is none.
Result<Unit> unitOf(const Value& argument) {
    if (argument.isError()) return argument.error();
    if (argument.isBoolean()) return ErrorCode::value;
    const auto unit = argument.isText() ? findUnit(argument.text()) : std::nullopt;
    if (!unit) return ErrorCode::na;
    return *unit;
}

Value convert(Calculation&, std::span<const Value> args) {
    const Result<double> number = strictNumber(args[0]);
    if (!number) return number.error();
    const Result<Unit> from = unitOf(args[1]);
    if (!from) return from.error();
    const Result<Unit> to = unitOf(args[2]);
    if (!to) return to.error();
    if (from->quantity != to->quantity) return ErrorCode::na;
    if (from->factor == to->factor && from->offset == to->offset) return *number;
    return numberOrError((*number + from->offset) * (from->factor / to->factor) - to->offset);
}

constexpr FunctionSpec rows[] = {
    {"CONVERT", 3, 3, "v", convert, plain, "number, from unit, to unit",
     "A measure in another unit, as CONVERT(1, \"in\", \"mm\"); units of mass, length, time, "
     "pressure, force, energy, power, temperature, volume, area, speed and others."},
};

}  // namespace

std::span<const FunctionSpec> unitFunctions() {
    return rows;
}

}  // namespace formula
