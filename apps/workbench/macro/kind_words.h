// The kinds of values in a macro as people call them; mapping files have words of their own.
#pragma once

#include <QString>

#include "mapping/tw_map_type.h"

/// In the working language; empty for none.
QString kindWord(TwMapType kind);
