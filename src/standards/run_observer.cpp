#include "standards/run_observer.h"

#include <utility>

#include "standards/run_failure.h"

namespace {
RunObserver* currentObserver = nullptr;
Vor_String failure;
}  // namespace

RunObserver* setRunObserver(RunObserver* observer) {
    return std::exchange(currentObserver, observer);
}

RunObserver* runObserver() {
    return currentObserver;
}

const Vor_String& lastRunFailure() {
    return failure;
}

void setRunFailure(const Vor_String& text) {
    failure = text;
}

void clearRunFailure() {
    failure.clear();
}
