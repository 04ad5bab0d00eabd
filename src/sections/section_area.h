// What a section of a built-in type weighs: its area from the values of its table, and the mass
// that follows. Fillets, toe radii and flange slopes count where the type has them; bends of cold
// formed sections are taken as sharp, since their types have no radius for them, but for those that
// are measured as drawn.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "platform/export.h"

class Vor_ProfValuesTable;

/// In mm2, from the values in the order of the type's value columns (mm, degrees, percent); more
/// of them are left out. Nothing when a value is missing or the values give no shape (a wall
/// thicker than its tube). The formulas stand in section_area.cpp; crash barriers, sigmas and
/// cleats (16, 18 to 20, 23, 24) have none and are measured as they are drawn.
VORMANT_API std::optional<double> sectionArea(int type, std::span<const double> values);
/// The same of a size as its table has it, whose values are texts; the first that is no number
/// and those after it count as missing.
VORMANT_API std::optional<double> sectionArea(std::string_view drawnAs,
                                              std::span<const std::string_view> values);
/// The same of row `row` of a table, which it has.
VORMANT_API std::optional<double> sectionArea(const Vor_ProfValuesTable& table, int row);

/// Catalogues give areas in cm2.
inline constexpr double mm2PerCm2 = 100;

/// kg for a metre of steel.
VORMANT_API std::optional<double> sectionMass(int type, std::span<const double> values);
/// The same of a size: what its table says in a column "Mass kg/m", else from its values. Nothing
/// for drawn sections without such a column. `columns` are the table's value columns.
VORMANT_API std::optional<double> sectionMass(std::string_view drawnAs,
                                              std::span<const std::string_view> columns,
                                              std::span<const std::string_view> values);
/// The same of row `row` of a table, which it has.
VORMANT_API std::optional<double> sectionMass(const Vor_ProfValuesTable& table, int row);
/// The same of a section by its full or user name; nothing for an unknown one.
VORMANT_API std::optional<double> sectionMass(std::string_view section);
