#include "standards/functions/standard_sizes.h"

#include "core_api/numbers.h"

namespace {

/// Farther away than any size; the distance of a candidate that is not there.
constexpr double veryFar = 999999999.0;

struct Nearest {
    bool exists = false;
    double size = 0;
    double distance = veryFar;

    void offer(double candidate, double itsDistance) {
        if (exists && !(itsDistance < distance)) return;
        *this = {true, candidate, itsDistance};
    }
};

}  // namespace

std::optional<double> chooseStandard(std::span<const double> candidates, Tolerances tolerances,
                                     double value) {
    Nearest below;
    Nearest above;
    for (const double candidate : candidates) {
        const double difference = candidate - value;
        if (difference <= 0)
            below.offer(candidate, -difference);
        else if (difference > 0)
            above.offer(candidate, difference);
    }
    const bool aboveFits =
        above.exists && above.distance <= tolerances.up && above.size >= value - tolerances.down;
    const bool belowFits =
        below.exists && below.distance <= tolerances.down && below.size <= value + tolerances.up;
    if (aboveFits && (!belowFits || above.distance < below.distance)) return above.size;
    if (belowFits) return below.size;
    return std::nullopt;
}

double roundWithinTolerance(double value, double step, Tolerances tolerances) {
    const double least = value - tolerances.down;
    const double most = value + tolerances.up;
    double x = value;
    if (most < x) x = most;
    if (x < least) x = least;

    const double upper = ObjectExportRoundUp(x, step, tolerances.up);
    double lower = ObjectExportRoundTo(x, step);
    if (lower > x) lower -= step;
    const double toUpper = upper - value;
    const double toLower = value - lower;
    const bool upperFits = toUpper <= tolerances.up && upper <= most;
    const bool lowerFits = toLower <= tolerances.down && least <= lower;
    if (lowerFits && (toLower <= toUpper || !upperFits)) return lower;
    return upperFits ? upper : x;
}
