// Whole runs of standards with children: the engine, on hidden sheets and on one that is shown,
// must give what the literal reading gives. The bytes choose what the sheets hold.
#include <cstdio>
#include <cstdlib>

#include "support/compare_runs.h"
#include "support/random_standard.h"
#include "support/standard_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static TemporaryLibrary library;
    static const std::string table = library.writeData("table.txt", "3\tthree\nt\t1.5\nM20\t22\n");
    size_t at = 0;
    const Choices choose = [&](unsigned n) { return at < size ? data[at++] % n : 0; };
    RandomStandard standard(choose);
    for (const char* child : {"Child0", "Child1"})
        library.writeStandard(child, RandomStandard(choose).document());
    const std::string path = library.writeStandard("Sheet", standard.document());
    const GenValues gen = standard.gen();
    const std::string difference =
        CompareRuns(path, standard.given(), gen, standard.others()).difference();
    if (difference.empty()) return 0;
    std::fprintf(stderr, "%s\n%s", difference.c_str(), standard.document().c_str());
    std::abort();
}
