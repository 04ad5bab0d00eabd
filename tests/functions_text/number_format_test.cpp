#include <gtest/gtest.h>

#include "spread/control/formula/functions/number_format.h"

namespace {

using formula::Value;

struct FormatCase {
    Value value;
    const char* format;
    const char* expected;
};

Value text(const char* text) {
    return Value::borrowedText(text);
}

void expectFormats(std::initializer_list<FormatCase> cases) {
    for (const auto& [value, format, expected] : cases) {
        const auto result = formula::formatValue(value, format);
        const std::string got = result ? *result : std::string(formula::errorText(result.error()));
        EXPECT_EQ(got, expected) << (value.isNumber() ? value.number() : 0) << " as " << format;
    }
}

TEST(NumberFormat, PlacesPointsAndThousands) {
    expectFormats({
        {1234.567, "#,##0.00", "1,234.57"},
        {-1234.567, "#,##0.00", "-1,234.57"},
        {2.675, "0.00", "2.68"},  // as written, not as stored
        {-0.004, "0.00", "0.00"},
        {0.5, "#.##", ".5"},
        {5.0, "#.##", "5."},
        {12.5, ".00", "12.50"},
        {3.1, "?0.0??", " 3.1  "},
        {1234.0, "00,000.0", "01,234.0"},
        {1234567.0, "0.0,,\"M\"", "1.2M"},
        {0.285, "0%", "29%"},
        {0.5, "0.0%%", "5000.0%%"},
        {123456789012345678.0, "#,##0", "123,456,789,012,346,000"},
        {8005551234.0, "(000) 000-0000", "(800) 555-1234"},
        {5.0, "", ""},
    });
}

TEST(NumberFormat, ExponentsAndFractions) {
    expectFormats({
        {1e10, "0.00E+00", "1.00E+10"},
        {0.00012, "0.0E-0", "1.2E-4"},
        {999.96, "0.0E+0", "1.0E+3"},  // rounding makes the exponent larger
        {12345.0, "##0.0E+0", "12.3E+3"},
        {0.0, "0.0E+0", "0.0E+0"},
        {5.25, "# ?/?", "5 1/4"},
        {5.3,
         "# ??"
         "/??",
         "5  3/10"},
        {5.999, "# ?/?", "6    "},
        {0.5, "# ?/?", " 1/2"},
        {2.5, "?/?", "5/2"},
        {1e15, "?/4", "4000000000000000/4"},
        {0.0, "# ?/?", "0    "},
        {2.3125, "0 ?/16", "2 5/16"},
        {-0.75, "0 0/100", "-0 75/100"},
        {3.14159265358979,
         "0 ???"
         "/???",
         "3  16/113"},
    });
}

TEST(NumberFormat, DatesAndTimes) {
    expectFormats({
        {45443.75, "d mmm yyyy hh:mm", "31 May 2024 18:00"},
        {45443.75, "dddd, mmmm d, yy h:mm AM/PM", "Friday, May 31, 24 6:00 PM"},
        {45443.0, "h a/p mmmmm", "12 a M"},
        {45443.0, "mm/dd/yyyy", "05/31/2024"},
        {45443.51, "mm\" months \"h:mm", "05 months 12:14"},
        {0.5 + 90.0 / 86400, "mm:ss", "01:30"},
        {1.5, "[h]:mm", "36:00"},
        {1.5, "[mm]\"\"", "2160"},
        {0.123456, "hh:mm:ss.000", "02:57:46.598"},
        {0.9999999, "[h]:mm:ss", "24:00:00"},
        {1.9999999, "d h:mm:ss", "2 0:00:00"},  // seconds round into the next day
        {60.0, "yyyy-mm-dd", "1900-02-29"},
        {0.0, "d/m/yyyy", "0/1/1900"},
        {2958465.0, "yyyy", "9999"},
        {2958466.0, "yyyy", "#VALUE!"},
        {-1.0, "d", "#VALUE!"},
    });
}

TEST(NumberFormat, SectionsChooseBySignConditionAndKind) {
    expectFormats({
        {-5.0, "0;(0)", "(5)"},
        {0.0, "0;(0)", "0"},
        {-0.2, "0;(0)", "(0)"},
        {0.0, "0;-0;\"none\"", "none"},
        {-5.0, "\"n\"0", "-n5"},
        {7.0, "[>=7][Red]\"big \"0;\"small \"0", "big 7"},
        {6.0, "[>=7][Red]\"big \"0;\"small \"0", "small 6"},
        {5.0, "[$kN-407] 0.0", "kN 5.0"},
        {5.0, "0.0_) \\k*x", "5.0  k"},
        {text("M16"), "0;0;0;\"bolt \"@", "bolt M16"},
        {text("M16"), "@@", "M16M16"},
        {text("M16"), "0.0", "M16"},
        {text("12"), "0.0", "12.0"},
        {5.0, "0;@", "5"},
        {5.5, "@", "5.5"},
        {Value::boolean(true), "0", "TRUE"},
        {Value(formula::ErrorCode::na), "0", "#N/A"},
    });
}

TEST(NumberFormat, GeneralFitsElevenCharacters) {
    expectFormats({
        {-12345.6789, "General", "-12345.6789"},
        {1.0 / 3, "General", "0.333333333"},
        {12345678.87654321, "general\" mm\"", "12345678.88 mm"},
        {99999999999.0, "General", "99999999999"},
        {99999999999.9, "General", "1E+11"},
        {123456789012.0, "General", "1.23457E+11"},
        {0.00012345678, "General", "0.000123457"},
        {0.00001234, "General", "1.234E-05"},
        {1e16, "General", "1E+16"},
        {0.0, "General", "0"},
    });
}

TEST(NumberFormat, WhatMakesNoSenseIsRefused) {
    for (const char* format : {"\"open", "0\\", "[red", "[]", "[>x]0", "mm###", "0 d", "@0",
                               "yyyy@", "0;0;0;0;0", "[hm]", "ss.0000", "0_"})
        EXPECT_FALSE(formula::formatValue(Value(1.0), format)) << format;
}

TEST(NumberFormat, FixedDecimalsNeverShowMinusZero) {
    EXPECT_EQ(formula::formatFixed(-0.001, 2, true), "0.00");
    EXPECT_EQ(formula::formatFixed(-1234.5, 0, true), "-1,235");
    EXPECT_EQ(formula::formatFixed(1250, -2, false), "1300");
    EXPECT_EQ(formula::formatFixed(49, -2, false), "0");
    EXPECT_EQ(formula::formatFixed(999.995, 2, true), "1,000.00");
}

}  // namespace
