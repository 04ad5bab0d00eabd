#include "platform/host/growing_array.h"

#include "platform/host/host.h"

void reportInvalidIndex(const char* action) {
    acutPrintf("*Error* Invalid index passed to %s.\n", action);
}
