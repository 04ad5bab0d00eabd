// What a benchmark of ours prints: how fast the work goes, how fast a hand-written loop over plain
// memory does the same work in the same run (the floor), and the ratio. Both sides are timed in
// turns, and the best of the turns counts: it is what the machine can do undisturbed.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>

#include <benchmark/benchmark.h>

namespace bench {

using benchmark::DoNotOptimize;

inline double secondsOf(auto&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

struct Claim {
    std::string work;  ///< what is measured
    double units;      ///< units of work that one call of either side does
    std::string unit;  ///< "cells", "runs"
    double must = 0;   ///< units a second that have to be reached; 0 for none
    double aim = 0;
    double mustRatio = 0;  ///< greatest time as a multiple of the floor's; 0 for none
    double aimRatio = 0;
};

/// Times `work` against `floor` for about `seconds` and prints one line.
inline bool compare(const Claim& claim, auto&& work, auto&& floor, double seconds = 1.0) {
    double best = 1e300, bestFloor = 1e300, spent = 0;
    for (int turn = 0; turn < 5 || spent < seconds; ++turn) {
        const double t = secondsOf(work);
        const double f = secondsOf(floor);
        best = std::min(best, t);
        bestFloor = std::min(bestFloor, f);
        spent += t + f;
    }
    const double rate = claim.units / best;
    const double ratio = best / bestFloor;
    const bool isMet = (claim.must == 0 || rate >= claim.must) &&
                       (claim.mustRatio == 0 || ratio <= claim.mustRatio);
    const bool isAim =
        isMet && rate >= claim.aim && (claim.aimRatio == 0 || ratio <= claim.aimRatio);
    std::printf("%-44s %12.4g %s/s  floor %12.4g  ratio %7.2f  %s\n", claim.work.c_str(), rate,
                claim.unit.c_str(), claim.units / bestFloor, ratio,
                isAim   ? "aim"
                : isMet ? "must"
                        : "MISSED");
    return isMet;
}

}  // namespace bench
