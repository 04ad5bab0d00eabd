// Symbols are hidden by default; what a host may call is marked with VORMANT_API, classes whole.
#pragma once

#define VORMANT_API __attribute__((visibility("default")))
