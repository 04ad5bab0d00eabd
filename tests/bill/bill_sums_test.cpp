// What bills of random pieces show, against plain sums over the pieces. Masses are whole grams, so
// that these sums are exact.
#include <gtest/gtest.h>

#include <map>
#include <random>

#include "bill/bill_from_parts.h"
#include "bill/feed_bill.h"
#include "bill/tw_ss_bill_output.h"
#include "core_api/text/text_helpers.h"
#include "platform/encodings.h"
#include "support/temporary_folder.h"

namespace {

struct Sum {
    long long count = 0, grams = 0;
    bool operator==(const Sum&) const = default;
};
using Sums = std::map<std::string, Sum>;  // by the name of a group in small letters

/// Names that differ in their letter case, or only in leading zeros, and some that are nothing.
Vor_BillPart randomPart(std::mt19937& random) {
    const auto any = [&](int count) {
        return static_cast<int>(random() % static_cast<unsigned>(count));
    };
    constexpr const char* sections[] = {"PL 10", "PL 010", "pl 10", "IPE-200", "HEA-100", ""};
    constexpr const char* materials[] = {"S235", "s235", "S275", "8.8", ""};
    Vor_BillPart part;
    part.kind = static_cast<BillPartKind>(any(3));
    part.name = "N" + std::to_string(any(5));
    part.section = sections[any(6)];
    part.material = materials[any(5)];
    part.length = any(3) * 100 + any(2) * 0.5;
    part.width = any(2) * 50;
    part.count = any(9) == 0 ? 1'000'000 : 1 + any(5);
    if (any(4) != 0) part.mass = any(8) * 1000.0 / 8 + any(3) * 0.001;
    return part;
}

long long grams(const Vor_BillPart& part) {
    return std::llround(part.mass.value_or(0) * 1000);
}

std::string groupOf(const Vor_BillPart& part, BillGrouping grouping) {
    const Vor_String name = grouping == BillGrouping::kind      ? billPartKindName(part.kind)
                            : grouping == BillGrouping::section ? part.section
                                                                : part.material;
    return encodings::lowered(name.view());
}

/// Of the cells "count" and "total mass" behind the first column.
Sum shownSum(const Vor_StringArray& cells) {
    return {std::llround(textToDouble(cells[1])), std::llround(textToDouble(cells[2]) * 1000)};
}

/// As a sheet rounds it: one decimal, halves away from zero.
std::string shownMass(long long grams) {
    const long long tenths = (grams + 50) / 100;
    return std::to_string(tenths / 10) + (tenths % 10 ? "." + std::to_string(tenths % 10) : "");
}

TEST(BillSums, AreThoseOfTheFedPieces) {
    const TemporaryFolder folder;
    for (unsigned seed = 1; seed <= 200; ++seed) {
        std::mt19937 random(seed);
        std::vector<Vor_BillPart> parts(random() % 40);
        for (Vor_BillPart& part : parts) part = randomPart(random);
        PartBillOptions options;
        options.fields = {BillField::name, BillField::count, BillField::totalMass};
        options.grouping = static_cast<BillGrouping>(random() % 4);

        Sum all;
        Sums groups;
        for (const Vor_BillPart& part : parts) {
            all.count += part.count;
            all.grams += part.count * grams(part);
            Sum& group = groups[groupOf(part, options.grouping)];
            group.count += part.count;
            group.grams += part.count * grams(part);
        }

        Vor_Bill bill = billFromParts(parts, options);
        Sum ofRows;
        Sums shown;
        for (const BillRow& row : bill.rows) {
            const Sum sum = shownSum(row.cells);
            ofRows.count += sum.count;
            ofRows.grams += sum.grams;
        }
        for (const BillGroup& group : bill.groups) {
            const std::string name = encodings::lowered(group.name.view());
            EXPECT_FALSE(shown.contains(name)) << seed << ": two groups " << name;
            shown[name] = shownSum(group.subtotals);
        }
        EXPECT_EQ(ofRows, all) << seed;
        if (options.grouping == BillGrouping::none) groups.clear();
        EXPECT_EQ(shown, groups) << seed;
        if (parts.empty()) continue;
        EXPECT_EQ(shownSum(bill.totals), all) << seed;

        TwSSBillOutput output;
        output.init(folder.inside("b.sss"), bill.columnNames(), {}, {3, 1, 2}, {}, {}, {});
        ASSERT_EQ(feedBill(bill, output), BillFeed::done);
        const control::Grid& grid = output.sheet()->grid();
        const auto last = [&](int col) {
            return grid.text(col, grid.rows(), control::Reading::value);
        };
        EXPECT_EQ(last(2), std::to_string(all.count)) << seed;
        const bool hasMass = std::any_of(parts.begin(), parts.end(),
                                         [](const auto& part) { return part.mass.has_value(); });
        EXPECT_EQ(last(3), hasMass ? shownMass(all.grams) : "") << seed;
    }
}

}  // namespace
