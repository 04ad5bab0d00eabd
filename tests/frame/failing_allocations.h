// The test program's own allocations, which fail when a test wants them to.
#pragma once

constexpr long unlimited = -1;

/// How many more succeed before one fails.
extern long allocationsLeft;
/// Whether all after that one fail too.
extern bool isForGood;
