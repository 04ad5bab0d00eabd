// Runs a program for the benchmarks that measure one from its start to its end.
#pragma once

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace bench {

/// Its standard output goes into `output`. A program that fails ends the benchmark.
inline void runProgram(std::vector<std::string> words, const std::string& output = "/dev/null") {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                     0600);
    std::vector<char*> argv;
    for (std::string& word : words) argv.push_back(word.data());
    argv.push_back(nullptr);
    pid_t child = 0;
    int status = -1;
    if (posix_spawn(&child, argv[0], &actions, nullptr, argv.data(), environ) == 0)
        waitpid(child, &status, 0);
    posix_spawn_file_actions_destroy(&actions);
    if (status == 0) return;
    std::printf("%s failed\n", argv[0]);
    std::exit(1);
}

}  // namespace bench
