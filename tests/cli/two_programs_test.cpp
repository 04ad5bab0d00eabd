// Two programs that change the same files of a library: what either of them acknowledged is there
// in the end.
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <functional>
#include <thread>

#include "cli/library.h"

namespace {

constexpr int rounds = 12;  // of each of the two

constexpr const char* macro =
    "properties 1\ni\tmacro.version\t1\ns\tmodule.Plate\tplate\n"
    "d\tmodule.Plate.var.Width\t100\nend\n";

int count(const std::string& text, const std::string& part) {
    int found = 0;
    for (size_t at = 0; (at = text.find(part, at)) != text.npos; at += part.size()) ++found;
    return found;
}

class TwoPrograms : public testing::Test {
  protected:
    TwoPrograms() { library.write("Mine.macro", macro); }

    using Arguments = std::function<std::vector<std::string>(const std::string& round)>;
    /// How many calls of both together succeeded; `arguments` get "0-0", "0-1", … "1-11".
    int succeed(const Arguments& arguments, const std::string& input = {}) const {
        std::atomic<int> done = 0;
        const auto work = [&](int program) {
            for (int i = 0; i < rounds; ++i) {
                auto call = arguments(std::to_string(program) + "-" + std::to_string(i));
                call.insert(call.begin(), {"--library", library.path().string()});
                if (program::run(call, input).exitCode == 0) ++done;
            }
        };
        std::thread other(work, 1);
        work(0);
        other.join();
        return done;
    }
    Library library;
};

TEST_F(TwoPrograms, KeepAllKeysAndAttachedStandards) {
    EXPECT_EQ(succeed([&](const std::string& round) {
                  return std::vector<std::string>{
                      "mapping",
                      "set",
                      round.starts_with("0") ? "Plate" : "Failing",
                      "--macro",
                      library / "Mine.macro",
                      "--key",
                      round,
                      "--attach",
                      round.starts_with("0") ? "Width=Plate.Width" : "W=Plate.Width"};
              }),
              2 * rounds);
    EXPECT_EQ(count(library.read("Mine.macro"), ".key\t"), 2 * rounds);
    EXPECT_EQ(succeed([&](const std::string& round) {
                  return std::vector<std::string>{"mapping",
                                                  "set",
                                                  "Plate",
                                                  "--macro",
                                                  library / "Mine.macro",
                                                  "--key",
                                                  "k" + round,
                                                  "Width=Plate.Width"};
              }),
              2 * rounds);
    EXPECT_EQ(count(library.read("Connection Standards/Plate.map"), "=Width"), 3 * rounds);
}

TEST_F(TwoPrograms, KeepAllItemsAndReplaceNoFile) {
    EXPECT_EQ(succeed(
                  [](const std::string& round) {
                      return std::vector<std::string>{"cutstock",  "import", "-",
                                                      "I" + round, "shp",    "--new"};
                  },
                  "1\n"),
              2 * rounds);
    EXPECT_EQ(count(library.read("Cutting Stock/Items.dat"), "Item\t"), 2 * rounds);
    const int acknowledged = succeed(
        [](const std::string&) {
            return std::vector<std::string>{"cutstock", "import", "-", "I0-0", "buy"};
        },
        "2\n");
    int written = 0;
    for (const auto& entry : std::filesystem::directory_iterator(library / "Cutting Stock/I0-0"))
        if (entry.path().extension() == ".buy") ++written;
    EXPECT_EQ(written, acknowledged);
    EXPECT_EQ(succeed(
                  [](const std::string& round) {
                      return std::vector<std::string>{
                          "cutstock", "import", "-", "I0-1", "shp", "--as", round.substr(2)};
                  },
                  "3\n"),
              rounds)
        << "of two that wrote the same file without --force one wrote it";
}

}  // namespace
