// Every call that the manual shows is made again and must print what the manual shows; links must
// lead somewhere.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <filesystem>

#include "manual/page.h"
#include "support/temporary_folder.h"
#include "test_folders.h"

namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

/// All that `command` prints, run by the shell in `folder` with our program at hand.
Lines run(const std::string& command, const fs::path& folder) {
    const std::string script = "exec 2>&1; cd '" + folder.string() +
                               "'; PATH='" VORMANT_PROGRAM_FOLDER "':$PATH\n" + command;
    FILE* pipe = popen(script.c_str(), "r");
    std::string printed;
    char buffer[4096];
    for (size_t n = 0; (n = fread(buffer, 1, sizeof buffer, pipe)) > 0;) printed.append(buffer, n);
    EXPECT_TRUE(WIFEXITED(pclose(pipe))) << command;
    Lines lines = manual::linesOf(printed);
    if (lines.back().empty()) lines.pop_back();
    return lines;
}

/// Whether `shown` is `printed` but for what "…" leaves out. Of the places where lines behind a "…"
/// could go on, the first will do, until a later line does not fit.
bool fits(const Lines& shown, const Lines& printed) {
    size_t at = 0;
    size_t behindGap = shown.size() + 1;  // none so far
    size_t gapEnd = 0;
    for (size_t line = 0; line < printed.size();) {
        if (at < shown.size() && shown[at] == "…") {
            behindGap = ++at;
            gapEnd = line;
        } else if (at < shown.size() && shown[at] == printed[line]) {
            ++at;
            ++line;
        } else if (behindGap <= shown.size()) {
            at = behindGap;
            line = ++gapEnd;
        } else {
            return false;
        }
    }
    while (at < shown.size() && shown[at] == "…") ++at;
    return at == shown.size();
}

std::string joined(const Lines& lines) {
    std::string text;
    for (const auto& line : lines) text += line + "\n";
    return text;
}

/// The name under which a heading can be linked to.
std::string anchorOf(std::string_view heading) {
    std::string anchor;
    for (const char c : heading.substr(heading.find(' ') + 1)) {
        if (c == ' ' || c == '-') anchor += '-';
        if (std::isalnum(static_cast<unsigned char>(c)) || c == '_')
            anchor += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return anchor;
}

bool hasAnchor(std::string_view page, std::string_view anchor) {
    const Lines lines = manual::linesOf(page);
    return std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
        return line.starts_with('#') && anchorOf(line) == anchor;
    });
}

/// The targets of all links that stay in the source tree.
/// The page without its blocks of code, where "[](" begins a lambda and no link.
std::string proseOf(std::string_view page) {
    std::string prose;
    for (bool isCode = false; !page.empty(); isCode = !isCode) {
        const size_t end = std::min(page.find("```"), page.size());
        if (!isCode) prose += page.substr(0, end);
        page.remove_prefix(std::min(end + 3, page.size()));
    }
    return prose;
}

Lines linksOf(std::string_view page) {
    Lines targets;
    for (size_t at = page.find("]("); at != page.npos; at = page.find("](", at + 2)) {
        const std::string_view target = page.substr(at + 2, page.find(')', at) - at - 2);
        if (target.find(':') == target.npos) targets.emplace_back(target);
    }
    return targets;
}

class Manual : public testing::TestWithParam<std::string> {};

TEST_P(Manual, ShowsWhatIsPrinted) {
    const TemporaryFolder folder;
    for (const char* name : {"library", "docs"})
        fs::copy(VORMANT_SOURCE_DIR "/" + std::string(name), folder.path() / name,
                 fs::copy_options::recursive);
    for (const manual::Call& call : manual::calls(manual::read(GetParam()))) {
        const Lines printed = run(call.command, folder.path());
        EXPECT_TRUE(fits(call.output, printed)) << "$ " << call.command << "\nprints\n"
                                                << joined(printed);
    }
}

TEST_P(Manual, LinksToWhatIsThere) {
    const std::string page = manual::read(GetParam());
    const std::string folder = fs::path(GetParam()).parent_path().string();
    for (const std::string& target : linksOf(proseOf(page))) {
        const size_t mark = std::min(target.find('#'), target.size());
        const std::string path =
            mark == 0 ? GetParam() : (fs::path(folder) / target.substr(0, mark)).string();
        ASSERT_TRUE(fs::exists(VORMANT_SOURCE_DIR "/" + path)) << target;
        EXPECT_TRUE(mark == target.size() || hasAnchor(manual::read(path), target.substr(mark + 1)))
            << target;
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, Manual, testing::ValuesIn(manual::pages()), [](const auto& page) {
    std::string name = page.param;
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
    return name;
});

}  // namespace
