// A bill of 100,000 rows written into its sheet and saved, and the memory that 1,000 pictures take.
// The floor writes the same cells as bare text with numbers rounded, in memory.
#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "bench/claim.h"
#include "bill/bill_from_table.h"
#include "bill/feed_bill.h"
#include "bill/tw_ss_bill_output.h"
#include "core_api/settings.h"

namespace {

constexpr int rows = 100'000;
constexpr int pictures = 1'000;
constexpr double mostMegabytes = 300;

Vor_Bill billOf(int count) {
    const Vor_StringArray header{"Pos.",        "Name",  "Section",   "Material",
                                 "Length (mm)", "Count", "Mass (kg)", "Total mass (kg)"};
    Vor_Array<Vor_StringArray> table;
    table.reserve(count);
    for (int i = 1; i <= count; ++i) {
        const double mass = 22.4 * (500 + i) / 1000;
        table.append({std::to_string(i), "Beam " + std::to_string(i % 50), "IPE-200", "S355",
                      std::to_string(500 + i), "2", Vor_String(mass, 3), Vor_String(2 * mass, 3)});
    }
    std::string error;
    auto bill = billFromTable(header, std::move(table), {}, error);
    if (!bill) std::abort();
    return std::move(*bill);
}

void write(Vor_Bill& bill, const std::string& path, bool hasPictures) {
    AcArray<int> kinds;
    for (const BillColumn& column : bill.columns) kinds.append(static_cast<int>(column.kind));
    TwSSBillOutput output;
    if (output.init(path, bill.columnNames(), {}, kinds, {}, {}, {}) != Acad::eOk) std::abort();
    AcTransaction transaction;
    if (hasPictures) output.setVars(-1, 0, 0, true, true, &bill, &transaction);
    if (feedBill(bill, output) != BillFeed::done || !output.wasSaved()) std::abort();
}

std::string bareText(const Vor_Bill& bill) {
    std::string text;
    for (const BillRow& row : bill.rows)
        for (int i = 0; i < row.cells.length(); ++i) {
            const BillColumnKind kind = bill.columns[static_cast<size_t>(i)].kind;
            if (kind == BillColumnKind::text)
                text += row.cells[i].view();
            else
                text += Vor_String(std::strtod(row.cells[i].c_str(), nullptr), 1).view();
            text += '\n';
        }
    return text;
}

double peakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

}  // namespace

int main() {
    const auto folder = std::filesystem::temp_directory_path() / "vormant-bench-bill";
    std::filesystem::create_directories(folder);
    const std::string path = (folder / "bill.sss").string();
    gSettings.setLibDir(VORMANT_SOURCE_DIR "/library");

    // First, as memory that was used once counts for the whole process.
    Vor_Bill drawn = billOf(pictures);
    const double seconds = bench::secondsOf([&] { write(drawn, path, true); });
    const double peak = peakMegabytes();
    bool isGood = peak <= mostMegabytes;
    std::printf("%-44s %12.4g MB peak, %.0f rows/s  %s\n", "a bill with 1,000 pictures", peak,
                pictures / seconds, isGood ? "must" : "MISSED");

    Vor_Bill bill = billOf(rows);
    isGood &= bench::compare(
        {"feed and save a bill of 100,000 x 8", rows, "rows", 50e3, 200e3},
        [&] { write(bill, path, false); }, [&] { bench::DoNotOptimize(bareText(bill)); });
    std::filesystem::remove_all(folder);
    return isGood ? 0 : 1;
}
