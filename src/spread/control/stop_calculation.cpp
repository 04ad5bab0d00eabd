#include "spread/control/stop_calculation.h"

#include <utility>

namespace control {
namespace {

StopCalculation& asked() {
    static StopCalculation stop;
    return stop;
}

}  // namespace

void setStopCalculation(StopCalculation stop) {
    asked() = std::move(stop);
}

bool mustStopCalculation() {
    return asked() && asked()();
}

}  // namespace control
