#include "core_api/text/text_helpers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

#include "core_api/property_list.h"
#include "core_api/text/number_text.h"
#include "platform/encodings.h"

namespace {

// A slow twin: rounds the shortest written form of the number (below 2^53) digit by digit.
std::string roundedAsWritten(double number, int decimals) {
    char text[400];
    const auto end = std::to_chars(text, text + 400, std::fabs(number), std::chars_format::fixed);
    std::string whole(text, end.ptr);
    if (whole.find('.') == std::string::npos) whole += '.';
    const size_t point = whole.find('.');
    whole.resize(std::max(whole.size(), point + 2 + static_cast<size_t>(decimals)), '0');
    bool carry = whole[point + 1 + static_cast<size_t>(decimals)] >= '5';
    whole.resize(point + 1 + static_cast<size_t>(decimals));
    for (size_t i = whole.size(); carry && i-- > 0;) {
        if (whole[i] == '.') continue;
        carry = whole[i] == '9';
        whole[i] = carry ? '0' : static_cast<char>(whole[i] + 1);
    }
    if (carry) whole.insert(0, "1");
    while (whole.back() == '0') whole.pop_back();
    if (whole.back() == '.') whole.pop_back();
    return number < 0 && whole != "0" ? "-" + whole : whole;
}

TEST(NumberText, RoundsHalfAwayFromZeroAsWritten) {
    struct Case {
        double number;
        int decimals;
        bool keepZeros;
        const char* text;
    };
    const Case cases[] = {
        {2.675, 2, false, "2.68"},
        {1.005, 2, false, "1.01"},
        {-0.5, 0, false, "-1"},
        {2.5, 0, false, "3"},
        {-0.004, 2, false, "0"},
        {-0.0, 3, true, "0.000"},
        {2, 2, true, "2.00"},
        {2.50, 2, false, "2.5"},
        {999.995, 2, true, "1000.00"},
        {0.95, 1, false, "1"},
        {1e22, 2, false, "10000000000000000000000"},
        {123456789012345678.0, 3, true, "123456789012345680.000"},
        {1e-300, 15, false, "0"},
        {4503599627370497.5, 0, false, "4503599627370498"},
        {0.1 + 0.2, 15, false, "0.3"},
        {120, 0, true, "120"},
        {std::numeric_limits<double>::infinity(), 2, false, ""},
        {std::nan(""), 2, false, ""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Vor_String(c.number, c.decimals, c.keepZeros).str(), c.text)
            << c.number << " to " << c.decimals;
    }
}

TEST(NumberText, FastWayAgreesWithSlowTwin) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 60000; ++i) {
        const int decimals = static_cast<int>(random() % 16);
        double number = std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())),
                                   -11 - static_cast<int>(random() % 100));
        // Every other number sits on a written tie, where binary rounding is most tempted.
        if (i % 2 == 0) {
            const auto units = static_cast<double>(random() % 20000000) - 1e7;
            number = (units * 10 + 5) / std::pow(10.0, decimals % 6 + 1);
        }
        const std::string wanted = roundedAsWritten(number, decimals);
        ASSERT_EQ(Vor_String(number, decimals).str(), wanted)
            << std::hexfloat << number << " to " << decimals;
        const double rounded = roundAsWritten(number, decimals);
        ASSERT_EQ(rounded, std::strtod(wanted.c_str(), nullptr))
            << std::hexfloat << number << " to " << decimals;
        ASSERT_FALSE(rounded == 0 && std::signbit(rounded)) << std::hexfloat << number;
    }
}

TEST(NumberText, WholeNumbersStayWhatTheyAre) {
    for (const double number : {0.0, 1.0, 112589990.0, 112589991.0, 99999999999999.0, 0x1p50 + 1,
                                0x1p52 + 1, 0x1p53, 1e22, 1e300}) {
        for (const int decimals : {0, 7, 15}) {
            EXPECT_EQ(roundAsWritten(number, decimals), number) << decimals;
            EXPECT_EQ(roundAsWritten(-number, decimals), -number) << decimals;
        }
    }
}

TEST(NumberText, ReadsWhatAtofReads) {
    const double largest = std::numeric_limits<double>::max();
    const struct {
        const char* text;
        double number;
        bool whole;
    } cases[] = {
        {" -12.5", -12.5, true}, {"1e3 ", 1000, true}, {"+4", 4, true},
        {"100x10", 100, false},  {".5", 0.5, true},    {"5.", 5, true},
        {"inf", 0, false},       {"-nan", 0, false},   {"0x1A", 0, false},
        {"+-1", 0, false},       {"", 0, false},       {"-", 0, false},
        {"1e", 1, false},        {"1,5", 1, false},    {"-1e400", -largest, true},
        {"1e-400", 0, true},     {"12 13", 12, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(textToDouble(c.text), c.number) << '"' << c.text << '"';
        EXPECT_EQ(isNumber(c.text), c.whole) << '"' << c.text << '"';
    }
    EXPECT_EQ(textToDouble("1" + std::string(400, '0') + "e-10"), largest);
    EXPECT_EQ(textToDouble("0." + std::string(400, '0') + "1e10"), 0);
    EXPECT_EQ(textToInt(" -7.9"), -7);
    EXPECT_EQ(textToInt("99999999999999999999"), std::numeric_limits<int>::max());
}

TEST(NumberText, ExactTextReadsBackAsTheSameNumber) {
    std::mt19937_64 random(11);
    for (int i = 0; i < 20000; ++i) {
        const double number = std::bit_cast<double>(random());
        if (!std::isfinite(number)) continue;
        ASSERT_EQ(textToDouble(exactNumberText(number)), number) << std::hexfloat << number;
    }
}

TEST(Encodings, EveryByteSurvivesAndCasesPair) {
    std::string all;
    for (int i = 0; i < 256; ++i) all.push_back(static_cast<char>(i));
    EXPECT_EQ(encodings::fromUtf8(encodings::toUtf8(all)), all);
    EXPECT_EQ(encodings::toUtf8("\x80\x95\xBF"), "\xE2\x82\xAC\xE2\x80\xA2\xC2\xBF");
    EXPECT_EQ(encodings::uppered("stra\xDF"
                                 "e \x9A\xFF\xF7\xE4"),
              "STRA\xDF"
              "E \x8A\x9F\xF7\xC4");
    for (const char c : all) {
        EXPECT_EQ(encodings::toLower(encodings::toUpper(c)), encodings::toLower(c));
    }
}

TEST(Encodings, SaysWhereAndWhatIsRefused) {
    const struct {
        const char* utf8;
        size_t position;
        const char* message;
    } cases[] = {
        {"M\xE4", 1, "byte 0xE4 is not UTF-8"},
        {"ab\xE4\xB8\xAD", 2, "character U+4E2D is not in Windows-1252"},
        {"\xC0\xAF", 0, "byte 0xC0 is not UTF-8"},       // overlong
        {"x\xED\xA0\x80", 1, "byte 0xED is not UTF-8"},  // surrogate
        {"\xF0\x9F\x98\x80", 0, "character U+1F600 is not in Windows-1252"},
        {"\xE2\x82", 0, "byte 0xE2 is not UTF-8"},  // cut off
    };
    for (const auto& c : cases) {
        encodings::Utf8Error error;
        EXPECT_FALSE(encodings::fromUtf8(c.utf8, error)) << c.message;
        EXPECT_EQ(error.position, c.position) << c.message;
        EXPECT_EQ(error.message(c.utf8), c.message);
    }
}

TEST(VorString, SearchesAndReplaces) {
    Vor_String text("Gap+gap+GAP\xC4");
    EXPECT_EQ(text.findFirstFrom("GAP", 0), 0);
    EXPECT_EQ(text.findFirstFrom("GAP", 0, true), 8);
    EXPECT_EQ(text.findFirstFrom("gap", 5), 8);
    EXPECT_EQ(text.findFirstFrom("", 0), -1);
    EXPECT_TRUE(text.endsWith("p\xE4"));
    EXPECT_FALSE(text.endsWith("p\xE4", true));
    EXPECT_EQ(text.replaceSubString("gap", "gapgap"), 3);
    EXPECT_EQ(text.str(), "gapgap+gapgap+gapgap\xC4");
    EXPECT_EQ(text.getSubStringAt(18).str(), "ap\xC4");
    EXPECT_EQ(text.getSubStringAt(99).str(), "");
    text.removeAt(6, 1000);
    text.insertAt(-3, ">");
    EXPECT_EQ(text.str(), ">gapgap");
}

// Against the plain way: lower both texts, then search bytes.
TEST(VorString, FoldedSearchAgreesWithLoweredTexts) {
    std::mt19937 random(3);
    const std::string_view letters = "aAbB\xC4\xE4\x9F\xFF+";
    const auto draw = [&](size_t length) {
        std::string text;
        while (text.size() < length) text += letters[random() % letters.size()];
        return text;
    };
    for (int i = 0; i < 5000; ++i) {
        const Vor_String text = draw(random() % 12);
        const std::string part = draw(1 + random() % 3);
        const int start = static_cast<int>(random() % 4);
        const size_t plain =
            encodings::lowered(text).find(encodings::lowered(part), static_cast<size_t>(start));
        const int expected = plain == std::string::npos ? -1 : static_cast<int>(plain);
        ASSERT_EQ(text.findFirstFrom(part, start), expected) << text.str() << " " << part;
        ASSERT_EQ(text.equal(part), encodings::lowered(text) == encodings::lowered(part));
        ASSERT_EQ(text.beginsWith(part), text.findFirstFrom(part, 0) == 0);
    }
}

TEST(TextHelpers, RowsOfColumnsComeBack) {
    const Vor_StringArray lines{
        "a\xBF"
        "b",
        "", "\xBF", "c"};
    const auto rows = arrToArrArr(lines, '\xBF');
    ASSERT_EQ(rows.length(), 4);
    EXPECT_EQ(rows[0], (Vor_StringArray{"a", "b"}));
    EXPECT_EQ(rows[1].length(), 1);
    EXPECT_EQ(rows[2].length(), 2);
    EXPECT_EQ(arrArrToArr(rows, '\xBF'), lines);
}

TEST(TextHelpers, Split) {
    Vor_String before("kept"), after("kept");
    EXPECT_FALSE(splitString("no separator", "=", before, after));
    EXPECT_EQ(before.str() + after.str(), "keptkept");
    EXPECT_TRUE(splitStringAtSymbol(" Gap = 2=3 ", '=', before, after, true));
    EXPECT_EQ(before.str(), "Gap");
    EXPECT_EQ(after.str(), "2=3");
    EXPECT_TRUE(splitString(after, "=", before, after));
    EXPECT_EQ(before.str() + "|" + after.str(), "2|3");
    EXPECT_EQ(splitStringAtSymbol("", ';', false).length(), 1);
    EXPECT_EQ(strToArr("", ';').length(), 0);
    EXPECT_EQ(strToArr("A;;B;", ';').length(), 4);
    EXPECT_EQ(arrToStr(splitStringAtSymbol(" A ;B", ';', true), "|").str(), "A|B");
}

TEST(TextHelpers, StripAndComments) {
    EXPECT_EQ(stripSymbols("  a b  ", ' ', true, false).str(), "a b");
    EXPECT_EQ(stripSymbols("  a b  ", ' ', false, true).str(), "  ab  ");
    EXPECT_EQ(stripSymbols("    ", ' ', true, true).str(), "");
    EXPECT_EQ(removeLineComment(removeComments("/* old */80x8 // note", "/*", "*/"), "//").str(),
              "80x8");
    EXPECT_EQ(removeComments("a/*b*/c/*d", "/*", "*/").str(), "ac");
    EXPECT_EQ(getSubstrBefore("gen.A.B", ".").str(), "gen");
    EXPECT_EQ(getSubstrAfter("gen.A.B", ".").str(), "A.B");
    EXPECT_EQ(getSubstrAfter("gen", ".").str(), "");
    EXPECT_EQ(getSubstrAfter("gen", ".", true).str(), "gen");
}

TEST(TextHelpers, DuplicatesKeepTheFirst) {
    Vor_StringArray names{"Gap", "Width", "GAP", "gap", "width2"};
    EXPECT_EQ(getDuplicateIndexes(names), (Vor_Array<int>{2, 3}));
    EXPECT_FALSE(hasDuplicates({"a", "b", "a "}));
    for (int i = 0; i < 1000; ++i) names.append("n" + Vor_String(i, 0));
    names.append("N999");
    EXPECT_EQ(getDuplicateIndexes(names), (Vor_Array<int>{2, 3, 1005}));
    EXPECT_EQ(findNonExistingString({"1", "1_1", "1_3"}, "1").str(), "1_2");
    EXPECT_EQ(findNonExistingString({"A"}, "B").str(), "B");
}

TEST(TextHelpers, NaturalOrder) {
    Vor_StringArray sorted;
    for (const char* name : {"IPE 100", "ipe 80", "IPE 080A", "HEA 1000", "HEA 99", "IPE"}) {
        ObjectExportAddToSorted(sorted, name);
    }
    EXPECT_EQ(arrToStr(sorted, "|").str(), "HEA 99|HEA 1000|IPE|ipe 80|IPE 080A|IPE 100");
}

TEST(TextHelpers, NaturalOrderDoesNotDependOnTheOrderOfAdding) {
    std::vector<std::string> names{"M8",      "M10", "M012", "M12",   "M12x40",
                                   "M12x140", "m9",  "9999", "99999", "12345678901234567890123",
                                   "A",       "B-2", "B-10"};
    std::string expected;
    std::mt19937 random(5);
    for (int i = 0; i < 200; ++i) {
        Vor_StringArray sorted;
        for (const std::string& name : names) {
            const int index = ObjectExportAddToSorted(sorted, name);
            ASSERT_EQ(sorted[index].str(), name);
        }
        // M012 and M12 are the same to this order; which comes first is the order of adding.
        Vor_String joined = arrToStr(sorted, " ");
        joined.replaceSubString("M012", "M12");
        if (i == 0) expected = joined.str();
        ASSERT_EQ(joined.str(), expected);
        std::shuffle(names.begin(), names.end(), random);
    }
    EXPECT_EQ(expected,
              "9999 99999 12345678901234567890123 A B-2 B-10 M8 m9 M10 M12 M12 M12x40 M12x140");
}

TEST(TextHelpers, ColumnLettersAndPaths) {
    EXPECT_EQ((getAlfabet(1) + getAlfabet(26) + getAlfabet(27) + getAlfabet(703)).str(), "AZAAAAA");
    EXPECT_EQ(getAlfabet(0).str(), "");
    EXPECT_EQ(getPath("C:\\lib\\a.b\\std.tws").str(), "C:\\lib\\a.b\\");
    EXPECT_EQ(changeExtension("C:\\lib\\a.b\\std", "map").str(), "C:\\lib\\a.b\\std.map");
    EXPECT_EQ(changeExtension("x/std.v1.tws", "map").str(), "x/std.v1.map");
    EXPECT_EQ(ensureEndBSlash("lib").str() + ensureEndBSlash("lib\\").str(), "lib\\lib\\");
    EXPECT_TRUE(hasInvalidFileNameChars("a:b"));
    EXPECT_TRUE(hasInvalidFileNameChars(std::string_view("a\0b", 3)));
    EXPECT_FALSE(
        hasInvalidFileNameChars("Stra\xDF"
                                "e 1.5"));
}

TEST(TextHelpers, RandomTextsDiffer) {
    Vor_String key;
    ASSERT_TRUE(generateRandomString(24, key, true));
    const Vor_String first = key;
    ASSERT_TRUE(generateRandomString(24, key, true));
    EXPECT_EQ(key.length(), 24);
    EXPECT_NE(key.str(), first.str());
    EXPECT_FALSE(generateRandomString(0, key, true));
    EXPECT_EQ(key.length(), 24);
}

}  // namespace
