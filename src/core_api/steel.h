// What steel is like.
#pragma once

inline constexpr double steelDensity = 7850;  // kg/m3, EN 1991-1-1 table A.4
