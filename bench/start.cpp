// Starting the program for an answer that needs no work; the floor is the start of a program that
// does nothing.
#include "bench/claim.h"
#include "bench/run_program.h"

namespace {

constexpr int starts = 20;

}  // namespace

int main() {
    const bool isGood = bench::compare(
        {"vormant --version, started and ended", starts, "starts", 1000 / 10.0, 1000 / 3.0},
        [] {
            for (int i = 0; i < starts; ++i) bench::runProgram({VORMANT_PROGRAM, "--version"});
        },
        [] {
            for (int i = 0; i < starts; ++i) bench::runProgram({"/bin/true"});
        });
    return isGood ? 0 : 1;
}
