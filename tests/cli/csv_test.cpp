// CSV as it comes from spreadsheets, from pipes and from people who mean harm.
#include "exchange/csv.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/program.h"
#include "core_api/text/delimited_text.h"

namespace {

using exchange::CsvReader;
using exchange::LineSource;
using Records = std::vector<std::string>;

/// Every record as "line field|field", bad ones as "line !message".
Records recordsOf(const std::string& text) {
    const program::Folder folder;
    std::string error;
    auto source = exchange::LineSource::open(folder.write("data.csv", text), error);
    if (!source) return {error};
    exchange::CsvReader reader(*source);
    Records records;
    std::vector<std::string_view> fields;
    exchange::CsvReader::ReadResult got;
    while ((got = reader.next(fields)) == exchange::CsvReader::ReadResult::record ||
           got == exchange::CsvReader::ReadResult::bad) {
        std::string record = std::to_string(reader.lineNumber()) + " ";
        if (got == exchange::CsvReader::ReadResult::bad) {
            record += "!" + reader.error();
        } else {
            for (const auto field : fields) record += std::string(field) + "|";
            record.pop_back();
        }
        records.push_back(record);
    }
    return records;
}

TEST(Csv, ReadsWhatSpreadsheetsWrite) {
    const struct {
        std::string text;
        Records records;
    } cases[] = {
        {"", {}},
        {"a,b\n1,2\n", {"1 a|b", "2 1|2"}},
        {"a,b\r\n1,2", {"1 a|b", "2 1|2"}},
        {"\xEF\xBB\xBF"
         "a,b\n",
         {"1 a|b"}},
        {"\n\na\n\n", {"3 a"}},
        {",\n,,\n", {"1 |", "2 ||"}},
        {"\"a,b\",c\n", {"1 a,b|c"}},
        {"\"say \"\"M16\"\"\",\"\"\n", {"1 say \"M16\"|"}},
        {"\"two\nlines\",x\nnext\n", {"1 two\nlines|x", "3 next"}},
        {"\"two\r\nlines\"\r\nnext\r\n", {"1 two\r\nlines", "3 next"}},
        {"\"\n\n\"\nz", {"1 \n\n", "4 z"}},
        {"\xEF\xBB\xBF\"q\nr\",s", {"1 q\nr|s"}},
        {"a b, c ,\" d \"\n", {"1 a b| c | d "}},
        {"6\" pipe,x\n", {"1 6\" pipe|x"}},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::PrintToString(row.text));
        EXPECT_EQ(recordsOf(row.text), row.records);
    }
}

TEST(Csv, ABadRecordCostsItsFirstLineAlone) {
    const std::string noEnd = "!a quoted field has no end";
    const std::string noComma =
        "!a quoted field must be followed by a comma or the end of the line";
    const struct {
        std::string text;
        Records records;
    } cases[] = {
        {"a\n\"b\nc\nd\n", {"1 a", "2 " + noEnd, "3 c", "4 d"}},
        {"\"x\"y\nz\n", {"1 " + noComma, "2 z"}},
        {"\"x\ny\"z\nw\n", {"1 " + noComma, "2 y\"z", "3 w"}},
        {"\"", {"1 " + noEnd}},
        {"a,\"\"\"\nb", {"1 " + noEnd, "2 b"}},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::PrintToString(row.text));
        EXPECT_EQ(recordsOf(row.text), row.records);
    }
}

TEST(Csv, LongRecordsAreReadAndEndlessOnesSkipped) {
    const std::string megabyte(1 << 20, 'x');
    EXPECT_EQ(recordsOf("a\n" + megabyte + ",\"" + megabyte + "\"\nb\n"),
              (Records{"1 a", "2 " + megabyte + "|" + megabyte, "3 b"}));

    // The last line lacks its end, and looking for it moves what was read already.
    for (const size_t before : {1u << 10, 130u << 10, 1u << 20}) {
        const std::string first(before, 'f');
        for (const size_t size : {130u << 10, 260u << 10, 3u << 20}) {
            const std::string last = std::string(size, 'l') + ',' + std::string(size, 'e');
            std::string fields = last;
            fields[size] = '|';
            EXPECT_EQ(recordsOf(first + "\n" + last), (Records{"1 " + first, "2 " + fields}));
        }
    }

    const std::string endless(exchange::LineSource::maxRecord + (1 << 20), 'y');
    EXPECT_EQ(recordsOf("a\n" + endless + "\nb\n"),
              (Records{"1 a", "2 !the line is longer than 16 MiB", "3 b"}));
    // An open quote in front of millions of lines must not be searched again for each of them.
    const std::string lines(exchange::LineSource::maxRecord + (1 << 20), '\n');
    EXPECT_EQ(recordsOf("\"" + lines + "b\n").size(), 2u);
    EXPECT_EQ(recordsOf(std::string(20000, ',') + "\nb"),
              (Records{"1 !more than 16384 fields", "2 b"}));
}

TEST(Csv, WhatIsWrittenReadsBack) {
    std::string line;
    std::string expected = "1 ";
    for (const std::string field :
         {"plain", "a,b", "say \"x\"", "two\nlines", "", " b ", "cr\rlf\r\n", "\"", "\"\""}) {
        if (!line.empty()) line += ',';
        appendField(line, field, ',');
        expected += field + "|";
    }
    expected.pop_back();
    EXPECT_EQ(recordsOf(line + "\n"), Records{expected});
}

TEST(LineSource, SaysWhyItCannotOpen) {
    const program::Folder folder;
    std::string error;
    EXPECT_FALSE(exchange::LineSource::open(folder / "absent", error));
    EXPECT_THAT(error, testing::HasSubstr("No such file"));
    EXPECT_FALSE(exchange::LineSource::open(folder.path().string(), error));
    EXPECT_EQ(error, "is a folder");
}

}  // namespace
