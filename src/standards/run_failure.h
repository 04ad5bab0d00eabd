// Where the steps of a run leave why they failed, for lastRunFailure (run_observer.h) and for the
// equation that called a child.
#pragma once

#include "core_api/text/vor_string.h"

void setRunFailure(const Vor_String& text);
void clearRunFailure();
