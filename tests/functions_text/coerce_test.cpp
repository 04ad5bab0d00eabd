#include "spread/control/formula/coerce.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using formula::ErrorCode;
using formula::Value;

TEST(Coerce, NumbersAreWrittenInFifteenDigits) {
    const std::pair<double, const char*> cases[] = {
        {0.1 + 0.2, "0.3"},
        {-2.50, "-2.5"},
        {-0.0, "0"},
        {123456789012345678.0, "123456789012346000"},
        {999999.9999999999, "1000000"},
        {0.00000123, "0.00000123"},
        {0.000012345678901234567, "1.23456789012346E-05"},
        {5.6789012345e-8, "0.000000056789012345"},  // just fits 20 characters
        {5.67890123456e-8, "5.67890123456E-08"},
        {9.999999999999999e-20, "1E-19"},
        {12345678901234567890.0, "12345678901234600000"},
        {-1.2345678901234568e20, "-1.23456789012346E+20"},
        {9.999999999999946e99, "1E+100"},  // 14 digits from E+99 on
        {1.7976931348623157e308, "1.7976931348623E+308"},
        {5e-324, "0"},
        {std::numeric_limits<double>::infinity(), "#NUM!"},
    };
    for (const auto& [number, expected] : cases) EXPECT_EQ(formula::numberToText(number), expected);
}

TEST(Coerce, TextsReadAsNumbersAsPeopleTypeThem) {
    const std::pair<const char*, double> cases[] = {
        {" 12.5 ", 12.5},
        {"1e3", 1000},
        {".5", 0.5},
        {"+7", 7},
        {"50 %", 0.5},
        {"%50", 0.5},
        {"$1,200.50", 1200.5},
        {"-$5", -5},
        {"$-5", -5},
        {"($5)", -5},
        {"12\x80", 12},
        {"1,23,456", 123456},
        {"1 1/2", 1.5},
        {"-2 3/4", -2.75},
        {"1e-400", 0},
        {"5/31/2024", 45443},
        {"2024-05-31", 45443},
        {"31-May-2024", 45443},
        {"May 31, 2024", 45443},
        {"31 may 24", 45443},
        {"1/1/30", 10959},
        {"1/1/29", 47119},
        {"May 2024", 45413},
        {"2/30", 10990},
        {"2/29/1900", 60},
        {"12:30", 0.5 + 0.5 / 24},
        {"6:00 PM", 0.75},
        {"6 pm", 0.75},
        {"12:00 AM", 0},
        {"36:00", 1.5},
        {"1:30.5", 90.5 / 86400},
        {"5/31/2024 18:00", 45443.75},
        {"18:00 5/31/2024", 45443.75},
    };
    for (const auto& [text, expected] : cases) {
        const auto number = formula::textToNumber(text);
        ASSERT_TRUE(number) << text;
        EXPECT_DOUBLE_EQ(*number, expected) << text;
    }
}

TEST(Coerce, OtherTextsAreNoNumbers) {
    for (const char* text :
         {"",        " ",           ".",         "-",          "e5",       "5e",
          "--5",     "5-",          "1.2.3",     "1,2",        "1,,000",   ",100",
          "5%%",     "(5",          "5)",        "(-5)",       "$5$",      "1 1/0",
          "1/",      "0x10",        "inf",       "nan",        "TRUE",     "5A",
          "6A",      "31/5/2024",   "2/30/2024", "2023-02-29", "1.2.2024", "13 PM",
          "1:60",    "12:30:15:10", "May",       "Foo 3",      "1/2/3/4",  "5 31 24",
          "1/1/123", "99999999/1/1"})
        EXPECT_FALSE(formula::textToNumber(text)) << text;
    EXPECT_TRUE(formula::textToNumber(std::string(255, '0')));
    EXPECT_FALSE(formula::textToNumber(std::string(256, '0')));
}

TEST(Coerce, TextsAreOrderedAsInTheProgramsAndWithoutLetterCase) {
    const char* ascending[] = {"",  " ",    "_x", "-", "#1",        "10", "9",
                               "a", "\xE4", "az", "B", "\xE9t\xE9", "f",  "Z"};
    for (size_t i = 0; i + 1 < std::size(ascending); ++i)
        EXPECT_LT(formula::compareTexts(ascending[i], ascending[i + 1]), 0) << ascending[i];
    EXPECT_EQ(formula::compareTexts("\xC4PFEL \x8A", "\xE4pfel \x9A"), 0);
    EXPECT_NE(formula::compareTexts("\xD7", "\xF7"), 0);  // signs, not letters
    // Every byte has a place of its own, its other letter case aside.
    int shared = 0;
    for (int a = 0; a < 256; ++a)
        for (int b = 0; b < a; ++b) {
            const char left = static_cast<char>(a);
            const char right = static_cast<char>(b);
            shared += formula::compareTexts({&left, 1}, {&right, 1}) == 0;
        }
    EXPECT_EQ(shared, 26 + 30 + 3 + 1);
}

TEST(Coerce, ValuesOfDifferentKindsHaveAnOrder) {
    const Value ascending[] = {Value(-1.0),
                               Value(1e300),
                               Value::borrowedText(""),
                               Value::borrowedText("z"),
                               Value::boolean(false),
                               Value::boolean(true)};
    for (size_t i = 0; i + 1 < std::size(ascending); ++i) {
        EXPECT_LT(formula::compareValues(ascending[i], ascending[i + 1]), 0) << i;
        EXPECT_GT(formula::compareValues(ascending[i + 1], ascending[i]), 0) << i;
    }
    for (const Value& zero : {Value(0.0), Value::borrowedText(""), Value::boolean(false)})
        EXPECT_EQ(formula::compareValues(Value(), zero), 0);
    EXPECT_LT(formula::compareValues(Value(), Value(1.0)), 0);
    EXPECT_EQ(formula::compareNumbers(0.1 + 0.2, 0.3), 0);
    EXPECT_LT(formula::compareNumbers(1, 1 + 1e-14), 0);
}

TEST(Coerce, ErrorsAreReadBackFromTheirTexts) {
    for (int code = 1; code <= 8; ++code) {
        const auto error = static_cast<ErrorCode>(code);
        EXPECT_EQ(formula::errorFromText(formula::errorText(error)), error);
    }
    EXPECT_EQ(formula::errorFromText("#n/a"), ErrorCode::na);
    for (const char* text : {"", "#", "#N/A ", "N/A", "#NAME", "#VALUE!!"})
        EXPECT_FALSE(formula::errorFromText(text)) << text;
}

}  // namespace
