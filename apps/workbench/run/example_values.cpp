#include "workbench/run/example_values.h"

#include "core_api/text/text_helpers.h"
#include "exchange/csv.h"
#include "platform/encodings.h"
#include "platform/paths.h"

namespace {

bool isInput(std::string_view heading) {
    return !heading.empty() && !heading.ends_with('?') && heading != "tolerance";
}

}  // namespace

std::vector<std::pair<std::string, std::string>> exampleValues(const Vor_String& standard) {
    const Vor_String table = changeExtension(standard, "cases.csv");
    std::string error;
    auto source = exchange::LineSource::openFile(paths::toMachine(table), error);
    if (!source) return {};
    exchange::CsvReader reader(*source);
    std::vector<std::string_view> fields;
    if (reader.next(fields) != exchange::CsvReader::ReadResult::record) return {};
    const std::vector<std::string> headings(fields.begin(), fields.end());
    if (reader.next(fields) != exchange::CsvReader::ReadResult::record) return {};
    std::vector<std::pair<std::string, std::string>> values;
    for (size_t i = 0; i < headings.size() && i < fields.size(); ++i) {
        const auto name = encodings::fromUtf8(headings[i]);
        const auto value = encodings::fromUtf8(fields[i]);
        if (name && value && isInput(*name)) values.emplace_back(*name, *value);
    }
    return values;
}
