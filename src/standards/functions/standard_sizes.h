// Choosing a size that a mill or a shop keeps: the nearest listed one within tolerances, or the
// wanted value rounded to a step.
#pragma once

#include <optional>
#include <span>

/// How far below and above the wanted value a size may lie.
struct Tolerances {
    double down = 0;
    double up = 0;
};

/// The candidate nearest to `value`, the one below when both are equally near, the first in the
/// list among equals; if it lies outside the tolerances, the nearest on the other side.
std::optional<double> chooseStandard(std::span<const double> candidates, Tolerances tolerances,
                                     double value);

/// `value` rounded to the nearer multiple of `step` that lies within the tolerances, the lower
/// when both are equally near; the value itself, brought within the tolerances, when none does.
double roundWithinTolerance(double value, double step, Tolerances tolerances);
