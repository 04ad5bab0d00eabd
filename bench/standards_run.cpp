// Standards runs of 8 inputs, 12 outputs and 120 equations, document reloaded by every run: one
// that mostly calculates numbers, and one of which half the results are texts. The floor is the
// same computation as a C++ function that writes each number as a text and reads it back. Before
// anything is timed, both have to give the same results.
#include <cstdlib>
#include <thread>

#include "bench/claim.h"
#include "bench/marking_standard.h"
#include "bench/typical_standard.h"
#include "core_api/macros/macro_data.h"
#include "core_api/settings.h"
#include "mapping/start_dlg_standards_ss.h"
#include "standards/run_observer.h"
#include "tests/support/temporary_folder.h"

namespace {

constexpr std::array<double, typical::blocks> ks{1.5, 2.25, 3};
constexpr std::array<double, marking::blocks> markingKs{1.5, 2, 2.5, 3, 3.5, 4};

TwDlgStandardsData request(const std::string& path, TwVarCells variables) {
    TwDlgStandardsData data;
    data.mode = TwDlgStandardsData::Mode::variables;
    data.standardsName = path;
    data.varCells = std::move(variables);
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

void markingFloor() {
    marking::Inputs inputs;
    marking::Results results;
    bench::DoNotOptimize(inputs);
    marking::handWritten(inputs, markingKs, results);
    bench::DoNotOptimize(results);
}

struct Wanted {
    const char* name;
    std::string text;  ///< of a String, else empty
    double number = 0;
};

std::vector<Wanted> wantedOfTypical() {
    typical::Results r;
    typical::handWritten({}, ks, r);
    return {{"Mark", r.Mark},
            {"BoltCount", {}, r.BoltCount},
            {"PlateWidth", {}, r.PlateWidth},
            {"PlateLength", {}, r.PlateLength},
            {"PlateThickness", {}, r.PlateThickness},
            {"Pitch", {}, r.Pitch},
            {"EdgeEnd", {}, r.EdgeEnd},
            {"EdgeSide", {}, r.EdgeSide},
            {"Weld", {}, r.Weld},
            {"Gap", {}, r.Gap},
            {"Use", {}, r.Use},
            {"Cope", {}, r.Cope}};
}

std::vector<Wanted> wantedOfMarking() {
    marking::Results r;
    marking::handWritten({}, markingKs, r);
    return {{"Mark", r.Mark},
            {"Remark", r.Remark},
            {"BoltName", r.BoltName},
            {"Profile", r.Profile},
            {"WeldNote", r.WeldNote},
            {"Class", r.Class},
            {"BoltCount", {}, r.BoltCount},
            {"Plate", {}, r.Plate},
            {"Gap", {}, r.Gap},
            {"Weld", {}, r.Weld},
            {"Use", {}, r.Use},
            {"Edge", {}, r.Edge}};
}

/// Every equation ran, and both sides agree.
bool giveTheSame(TwDlgStandardsData data, const std::vector<Wanted>& wanted) {
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
    bool same = failures.count == 0;
    for (const Wanted& one : wanted) {
        int index = 0;
        if (data.varCells.findVarCell(Vor_String(one.name), index) != Acad::eOk) return false;
        const Vor_String& got = data.varCells[index].value();
        const bool isNear =
            std::fabs(textToDouble(got) - one.number) <= 1e-6 * (1 + std::fabs(one.number));
        if (one.text.empty() ? isNear : got == Vor_String(one.text)) continue;
        std::printf("%s is \"%s\" instead of \"%s\" or %.7f\n", one.name, got.c_str(),
                    one.text.c_str(), one.number);
        same = false;
    }
    return same;
}

bool repeatedRuns(const char* work, TwDlgStandardsData& data, void (*floor)()) {
    constexpr int runs = 200;
    return bench::compare(
        {work, runs, "runs", 25'000, 80'000, 1, 1 / 1.5},
        [&] {
            for (int i = 0; i < runs; ++i) run(data);
        },
        [&] {
            for (int i = 0; i < runs; ++i) floor();
        });
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
    TwDlgStandardsData data = request({}, typical::variables());
    return bench::compare(
        {"first load of a document and one run", perTurn, "runs", 10'000, 16'000},
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
    TwDlgStandardsData data = request(folder.write("typical.tws", document), typical::variables());
    TwDlgStandardsData texts = request(
        folder.write("marking.tws",
                     marking::document(marking::equations({"1.5", "2", "2.5", "3", "3.5", "4"}))),
        marking::variables());
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    if (!giveTheSame(data, wantedOfTypical()) || !giveTheSame(texts, wantedOfMarking())) return 1;
    bool isGood = repeatedRuns("standards run, document unchanged", data, floorRun);
    isGood &= repeatedRuns("standards run, half of it texts", texts, markingFloor);
    isGood &= firstLoads(folder);
    isGood &= runsOnAMacro(folder, document);
    return isGood ? 0 : 1;
}
