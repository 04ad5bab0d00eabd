// Standards runs: 8 inputs, 12 outputs, 20 locals, 120 equations, document reloaded by every run.
// The floor is the same computation as a C++ function that writes each result as a text and reads
// it back. Before anything is timed, both have to give the same results.
#include <cctype>
#include <cstdlib>
#include <thread>

#include "bench/claim.h"
#include "bench/typical_standard.h"
#include "core_api/macros/macro_data.h"
#include "core_api/settings.h"
#include "mapping/start_dlg_standards_ss.h"
#include "standards/run_observer.h"
#include "tests/support/temporary_folder.h"

namespace {

constexpr std::array<double, typical::blocks> ks{1.5, 2.25, 3};

TwDlgStandardsData request(const std::string& path) {
    TwDlgStandardsData data;
    data.mode = TwDlgStandardsData::Mode::variables;
    data.standardsName = path;
    data.varCells = typical::variables();
    return data;
}

void run(TwDlgStandardsData& data) {
    if (StartDlgStandardsSS(data)) return;
    std::printf("the run failed: %s\n", lastRunFailure().c_str());
    std::exit(1);
}

void floorRun() {
    typical::Inputs inputs;
    typical::Results results;
    bench::DoNotOptimize(inputs);
    typical::handWritten(inputs, ks, results);
    bench::DoNotOptimize(results);
}

/// Every equation ran, and both sides agree.
bool giveTheSame(TwDlgStandardsData data) {
    struct Failures : RunObserver {
        void equationDone(const EquationReport& report) override {
            if (report.ok && !report.value.starts_with('#')) return;
            ++count;
            std::printf("%.*s: %.*s\n", static_cast<int>(report.text.size()), report.text.data(),
                        static_cast<int>(report.message.size()), report.message.data());
        }
        int count = 0;
    } failures;
    setRunObserver(&failures);
    run(data);
    setRunObserver(nullptr);
    typical::Results wanted;
    typical::handWritten({}, ks, wanted);
    const double numbers[] = {
        wanted.BoltCount, wanted.PlateWidth, wanted.PlateLength, wanted.PlateThickness,
        wanted.Pitch,     wanted.EdgeEnd,    wanted.EdgeSide,    wanted.Weld,
        wanted.Gap,       wanted.Use,        wanted.Cope};
    bool same = failures.count == 0 && data.varCells[8].value() == Vor_String(wanted.Mark);
    for (size_t i = 0; i < std::size(numbers); ++i) {
        const TwVarCell& cell = data.varCells[9 + static_cast<int>(i)];
        const double got = textToDouble(cell.value());
        if (std::fabs(got - numbers[i]) <= 1e-6 * (1 + std::fabs(numbers[i]))) continue;
        std::printf("%s is %s instead of %.7f\n", cell.name().c_str(), cell.value().c_str(),
                    numbers[i]);
        same = false;
    }
    return same;
}

/// Documents that were never seen before, no two with an equation in common.
bool firstLoads(const TemporaryFolder& folder) {
    constexpr int perTurn = 10;
    constexpr double seconds = 0.06;
    std::vector<std::string> paths;
    for (int i = 0; i < 1500; ++i) {
        const std::string digits = std::to_string(1000 + i);
        paths.push_back(folder.write(
            "new" + digits + ".tws",
            typical::document(typical::equations({"1." + digits, "2." + digits, "3." + digits}))));
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    size_t next = 0;
    TwDlgStandardsData data = request({});
    return bench::compare(
        {"first load of a document and one run", perTurn, "runs", 8'000, 20'000},
        [&] {
            for (int i = 0; i < perTurn; ++i) {
                data.standardsName = paths.at(next++);
                run(data);
            }
        },
        [] {
            for (int i = 0; i < perTurn; ++i) floorRun();
        },
        seconds);
}

/// Inputs from the distances of a macro's plate, numeric outputs into others; the mapping comes
/// from its file in every run.
bool runsOnAMacro(const TemporaryFolder& folder, const std::string& document) {
    gSettings.setLibDir(folder.inside());
    folder.write("Connection Standards/typical.tws", document);
    auto plate = std::make_unique<Vor_PlainModule>("Plate", Vor_ModuleType::plate);
    TwSSMapping mapping;
    for (const TwVarCell& cell : typical::variables()) {
        if (cell.valueType() != TwValueType::Double) continue;
        plate->addVariable({cell.name(), textToDouble(cell.value())});
        mapping.mappedObjectsWrite().append(
            TwObjectMap("Plate", TwMapType::distance, cell.name(), cell.name()));
    }
    mapping.setMappingToFile("typical", "key");
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    Vor_Macro macro;
    macro.addModule(std::move(plate));
    Vor_DbMacro dbMacro(std::move(macro));
    MacroData dialogData = makeMacroData(dbMacro);
    AcTransaction transaction;
    TwDlgStandardsData data;
    data.initialize(&dbMacro, "typical", "key", &dialogData);
    data.transaction = &transaction;
    constexpr int runs = 200;
    return bench::compare(
        {"standards run on a macro, by name", runs, "runs"},
        [&] {
            for (int i = 0; i < runs; ++i) run(data);
        },
        [] {
            for (int i = 0; i < runs; ++i) floorRun();
        });
}

}  // namespace

int main() {
    TemporaryFolder folder;
    const std::string document = typical::document(typical::equations({"1.5", "2.25", "3"}));
    const std::string path = folder.write("typical.tws", document);
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    TwDlgStandardsData data = request(path);
    if (!giveTheSame(data)) return 1;
    constexpr int runs = 200;
    bool isGood = bench::compare(
        {"standards run, document unchanged", runs, "runs", 25'000, 80'000, 4, 1.25},
        [&] {
            for (int i = 0; i < runs; ++i) run(data);
        },
        [] {
            for (int i = 0; i < runs; ++i) floorRun();
        });
    isGood &= firstLoads(folder);
    isGood &= runsOnAMacro(folder, document);
    return isGood ? 0 : 1;
}
