// How heavy pieces of steel are.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "platform/export.h"

/// Kilograms a metre of a section by its full name; nothing when it is not known.
using MassPerMetre = std::function<std::optional<double>(std::string_view section)>;

/// Of a rectangular plate, sides in millimetres; nothing unless all are above 0.
VORMANT_API std::optional<double> plateMass(double length, double width, double thickness);

/// Of a hexagon bolt with its nut and one washer, from the sizes of ISO 4014, ISO 4032 and ISO
/// 7089: bodies without chamfers, threads as full as the shank, the bolt `length` millimetres long
/// under its head. Nothing for a diameter that the table lacks or an unknown length (0).
VORMANT_API std::optional<double> boltMass(double diameter, double length);
