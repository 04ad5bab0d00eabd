// What a benchmark of ours prints: how fast the work goes, how fast a hand-written loop over plain
// memory does the same work in the same run (the floor), and the ratio. Both sides are timed in
// turns, and the best of the turns counts: it is what the machine can do undisturbed. On a machine
// that others use, VORMANT_BENCH_CPU=1 counts processor time instead: waiting for a turn is left
// out, and so is waiting for a disk.
#pragma once

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include <sys/resource.h>

#include <benchmark/benchmark.h>

namespace bench {

using benchmark::DoNotOptimize;

/// Of the programs that this one has started and that have ended.
inline double processorSecondsOfChildren() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           1e-6 * static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec);
}

inline double seconds() {
    static const bool countsProcessor = std::getenv("VORMANT_BENCH_CPU") != nullptr;
    std::timespec now{};
    clock_gettime(countsProcessor ? CLOCK_PROCESS_CPUTIME_ID : CLOCK_MONOTONIC, &now);
    const double own = static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
    return countsProcessor ? own + processorSecondsOfChildren() : own;
}

inline double secondsOf(auto&& work) {
    const double start = seconds();
    work();
    return seconds() - start;
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
