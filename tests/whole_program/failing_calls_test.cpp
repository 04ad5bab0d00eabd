// One call after another to the system fails, or the program is killed there, under every command
// that writes. What may come of it: all is done as if nothing had failed, or the program ends with
// one sentence and everything is as it was. By default some of the calls are tried, spread over the
// whole run; all of them with VORMANT_EVERY_CALL set.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "whole_program/commands.h"

namespace whole_program {
namespace {

/// How calls fail, and how many of them are tried when not all are.
struct Trial {
    const char* kind;
    const char* how;
    int usual;
};

/// What a program that was killed may leave: temporary files, which the next write clears.
Files withoutTemporaries(Files files) {
    std::erase_if(files, [](const auto& file) {
        return file.first.ends_with(".tmp") ||
               (file.first.starts_with("tmp/") && file.first != "tmp/");
    });
    return files;
}

/// Whether the call was to take a temporary file or its folder away, or to look for it.
bool isOfTemporary(const std::string& call) {
    return call.starts_with("unlink ") || call.find("/tmp/vormant-") != std::string::npos;
}

/// The files of `now` that are neither as before nor as after.
std::string damaged(const Files& now, const Files& before, const Files& after) {
    std::string names;
    const auto isAsIn = [](const Files& files, const auto& file) {
        const auto found = files.find(file.first);
        return found != files.end() && found->second == file.second;
    };
    for (const auto& file : now)
        if (!isAsIn(before, file) && !isAsIn(after, file)) names += file.first + " ";
    for (const auto& file : before)
        if (!now.contains(file.first) && after.contains(file.first)) names += file.first + " ";
    return names;
}

/// From 1 to `count`: all of them, or about `usual`, the first and the last among them.
std::vector<long> positions(long count, long usual) {
    std::vector<long> chosen;
    const bool all = std::getenv("VORMANT_EVERY_CALL") || count <= usual;
    for (long i = 0; i < (all ? count : usual); ++i)
        chosen.push_back(all ? i + 1 : 1 + i * (count - 1) / (usual - 1));
    return chosen;
}

class FailingCalls : public testing::TestWithParam<Trial> {
  protected:
    std::vector<std::string> shim(const Trial& trial, long at) const {
        return {"LD_PRELOAD=" FAILING_CALLS_LIBRARY,  "FAIL_KIND=" + std::string(trial.kind),
                "FAIL_HOW=" + std::string(trial.how), "FAIL_AT=" + std::to_string(at),
                "FAIL_COUNT=" + m_notes / "count",    "FAIL_NAME=" + m_notes / "name"};
    }
    long countCalls(const Command& command, const Trial& trial) {
        m_place.run(command, shim(trial, 0));
        m_place.reset();
        return std::atol(m_notes.read("count").c_str());
    }
    std::string nameOfCall() const {
        const Files names = filesIn(m_notes.path());
        const auto found = names.find("name");
        return found == names.end() ? "" : found->second;
    }
    /// Empty when all is well.
    std::string judged(const program::Result& result, const program::Result& good,
                       const Files& before, const Files& after, const Trial& trial) {
        const bool isKilled = std::string(trial.how) == "kill";
        const Files now = m_place.files();
        const std::string broken = damaged(withoutTemporaries(now), before, after);
        if (!broken.empty()) return "damaged: " + broken;
        if (isKilled) return {};
        // Where taking a temporary file away fails, or all that comes after does, it stays.
        const bool mayStay = std::string(trial.kind) == "memory" ||
                             std::string(trial.how) == "on" || isOfTemporary(nameOfCall());
        const Files left = mayStay ? withoutTemporaries(now) : now;
        if (result.exitCode == 0) {
            if (left != after) return "done, but not all is there";
            return result.out == good.out ? "" : "done, with another output";
        }
        if (result.exitCode != 1) return "ended with " + std::to_string(result.exitCode);
        if (("\n" + result.err).find("\nvormant") == std::string::npos)
            return "failed without a sentence";
        // When all that comes after fails too, a step cannot be taken back.
        if (std::string(trial.how) == "on") return {};
        return left == before || left == after ? "" : "failed, and left something half done";
    }

    Workplace m_place;
    program::Folder m_notes;
};

TEST_P(FailingCalls, LeaveAllAsItWasOrEverythingDone) {
    const Trial& trial = GetParam();
    long tries = 0, faults = 0;
    for (const Command& command : writingCommands()) {
        const Files before = m_place.files();
        const program::Result good = m_place.run(command);
        ASSERT_EQ(good.exitCode, 0) << command.name << ": " << good.err;
        const Files after = m_place.files();
        m_place.reset();
        const long count = countCalls(command, trial);
        ASSERT_GT(count, 0) << command.name;
        for (const long at : positions(count, trial.usual)) {
            ++tries;
            const auto result = m_place.run(command, shim(trial, at));
            const std::string fault = judged(result, good, before, after, trial);
            m_place.reset();
            if (fault.empty()) continue;
            ++faults;
            ADD_FAILURE() << command.name << ", call " << at << " of " << count << ": " << fault
                          << "\n  " << nameOfCall() << "  " << result.err;
        }
    }
    RecordProperty("tries", static_cast<int>(tries));
    std::printf("%ld tries, %ld faults\n", tries, faults);
}

INSTANTIATE_TEST_SUITE_P(Each, FailingCalls,
                         testing::Values(Trial{"files", "once", 20}, Trial{"files", "on", 6},
                                         Trial{"files", "kill", 10}, Trial{"memory", "once", 15},
                                         Trial{"memory", "on", 15}),
                         [](const auto& each) {
                             return std::string(each.param.kind) + "_" + each.param.how;
                         });

}  // namespace
}  // namespace whole_program
