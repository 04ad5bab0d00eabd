// Starting the program for an answer that needs no work; the floor is the start of a program that
// does nothing.
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <cstdlib>

#include "bench/claim.h"

namespace {

constexpr int starts = 20;

void start(const char* program, const char* argument) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    char* const argv[] = {const_cast<char*>(program), const_cast<char*>(argument), nullptr};
    pid_t child = 0;
    int status = -1;
    if (posix_spawn(&child, program, &actions, nullptr, argv, environ) == 0)
        waitpid(child, &status, 0);
    posix_spawn_file_actions_destroy(&actions);
    if (status == 0) return;
    std::printf("%s failed\n", program);
    std::exit(1);
}

}  // namespace

int main() {
    const bool isGood = bench::compare(
        {"vormant --version, started and ended", starts, "starts", 1000 / 10.0, 1000 / 3.0},
        [] {
            for (int i = 0; i < starts; ++i) start(VORMANT_PROGRAM, "--version");
        },
        [] {
            for (int i = 0; i < starts; ++i) start("/bin/true", nullptr);
        });
    return isGood ? 0 : 1;
}
