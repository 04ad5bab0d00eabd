// A batch of 20,000 lines through the program, file to file, against a hand-written loop that
// reads the same lines, computes the same outputs and writes them. Before anything is timed, both
// have to give the same results.
#include <fstream>
#include <iterator>

#include "bench/claim.h"
#include "bench/run_program.h"
#include "bench/typical_standard.h"
#include "tests/support/temporary_folder.h"

namespace {

constexpr int lines = 20'000;
constexpr std::array<double, typical::blocks> ks{1.5, 2.25, 3};

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

/// Inputs that differ from line to line, as joints in a building do.
std::string inputLines() {
    std::string text = "Section,Grade,Height,Width,Flange,Web,Force,Bolt\n";
    for (int i = 0; i < lines; ++i) {
        text += i % 3 == 0 ? "HEA-" : "IPE-";
        text += std::to_string(100 + i % 40 * 10) + ",355," + std::to_string(96 + i % 200) + "," +
                std::to_string(100 + i % 170) + "," + std::to_string(8 + i % 13) + ".5," +
                std::to_string(5 + i % 9) + ".6," + std::to_string(100 + i % 977) + "." +
                std::to_string(i % 10) + "," + std::to_string(12 + i % 5 * 4) + "\n";
    }
    return text;
}

void runProgram(const std::string& standard, const std::string& input, const std::string& output) {
    bench::runProgram({VORMANT_PROGRAM, "standards", "batch", standard, input}, output);
}

double takeField(std::string_view& line) {
    double number = 0;
    const auto end = std::from_chars(line.data(), line.data() + line.size(), number).ptr;
    line.remove_prefix(static_cast<size_t>(end - line.data()));
    if (!line.empty()) line.remove_prefix(1);
    return number;
}

void takeLine(std::string_view line, typical::Inputs& in) {
    const size_t comma = line.find(',');
    in.Section.assign(line.substr(0, comma));
    line.remove_prefix(comma + 1);
    for (double* number :
         {&in.Grade, &in.Height, &in.Width, &in.Flange, &in.Web, &in.Force, &in.Bolt})
        *number = takeField(line);
}

void handWrittenLoop(const std::string& input, const std::string& output) {
    const std::string text = contentOf(input);
    std::string out =
        "Mark,BoltCount,PlateWidth,PlateLength,PlateThickness,Pitch,EdgeEnd,"
        "EdgeSide,Weld,Gap,Use,Cope,error\n";
    std::string_view rest(text);
    rest.remove_prefix(rest.find('\n') + 1);
    typical::Inputs in;
    typical::Results r;
    while (!rest.empty()) {
        const size_t end = rest.find('\n');
        takeLine(rest.substr(0, end), in);
        rest.remove_prefix(end + 1);
        typical::handWritten(in, ks, r);
        out += r.Mark + ",";
        for (const double number : {r.BoltCount, r.PlateWidth, r.PlateLength, r.PlateThickness,
                                    r.Pitch, r.EdgeEnd, r.EdgeSide, r.Weld, r.Gap, r.Use, r.Cope}) {
            char digits[32];
            out.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
            out += ',';
        }
        out += '\n';
    }
    std::ofstream(output, std::ios::binary) << out;
}

/// Both outputs hold the same numbers, read as numbers.
bool areTheSame(std::string_view a, std::string_view b) {
    int line = 1;
    while (!a.empty() && !b.empty()) {
        const size_t endA = a.find_first_of(",\n"), endB = b.find_first_of(",\n");
        const auto fieldA = a.substr(0, endA), fieldB = b.substr(0, endB);
        const double numberA = textToDouble(fieldA), numberB = textToDouble(fieldB);
        const bool same =
            isNumber(fieldA) ? std::fabs(numberA - numberB) <= 1e-6 : fieldA == fieldB;
        if (!same || a[endA] != b[endB]) {
            std::printf("line %d: %.*s instead of %.*s\n", line, static_cast<int>(fieldA.size()),
                        fieldA.data(), static_cast<int>(fieldB.size()), fieldB.data());
            return false;
        }
        line += a[endA] == '\n';
        a.remove_prefix(endA + 1);
        b.remove_prefix(endB + 1);
    }
    return a.empty() && b.empty();
}

}  // namespace

int main() {
    TemporaryFolder folder;
    const auto write = [&](const std::string& name, std::string_view content) {
        folder.write(name, content);
        return (folder.path() / name).string();
    };
    const std::string standard =
        write("typical.tws", typical::document(typical::equations({"1.5", "2.25", "3"})));
    const std::string input = write("in.csv", inputLines());
    const std::string output = write("out.csv", ""), floor = write("floor.csv", "");
    runProgram(standard, input, output);
    handWrittenLoop(input, floor);
    if (!areTheSame(contentOf(output), contentOf(floor))) return 1;
    const bool isGood = bench::compare(
        {"batch, start of the program included", lines, "lines", 0, 0, 1.5, 1.2},
        [&] { runProgram(standard, input, output); }, [&] { handWrittenLoop(input, floor); });
    return isGood ? 0 : 1;
}
