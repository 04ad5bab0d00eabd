#include "conformance/cases.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "core_api/text/number_text.h"
#include "exchange/texts.h"
#include "support/called_functions.h"
#include "test_folders.h"

namespace conformance {

namespace {

using Json = nlohmann::json;

Expected readExpected(const Json& json, std::string& problem) {
    Expected expected;
    const std::string type = json.at("type");
    const Json& value = json.at("value");
    if (type == "number") {
        expected.type = formula::ValueType::number;
        expected.number = value;
    } else if (type == "bool") {
        expected.type = formula::ValueType::boolean;
        expected.truth = value;
    } else {
        expected.type = type == "text" ? formula::ValueType::text : formula::ValueType::error;
        exchange::fromUtf8(value.get<std::string>(), expected.text, problem);
    }
    return expected;
}

Case readCase(const std::string& line) {
    const Json json = Json::parse(line);
    Case test;
    test.json = line;
    test.id = json.at("id");
    test.function = json.at("function");
    test.tags = json.value("tags", std::vector<std::string>());
    test.tolerance = json.value("tolerance", 1e-9);
    test.complex = json.value("compare", "") == "complex";
    cli::readEvalRecord(line, test.record, test.unreadable);
    if (test.unreadable.empty()) test.expected = readExpected(json.at("expected"), test.unreadable);

    test.functions = calledFunctions(json.at("formula").get<std::string>());
    for (const auto& cell : test.record.cells) {
        const auto* text = std::get_if<cli::FormulaText>(&cell.content);
        if (!text) continue;
        for (auto& name : calledFunctions(text->text)) test.functions.push_back(std::move(name));
    }
    return test;
}

bool isClose(double got, double expected, double tolerance) {
    const double scale = std::max(std::fabs(got), std::fabs(expected));
    return std::fabs(got - expected) <= std::max(tolerance * scale, 1e-15);
}

struct Complex {
    double real = 0, imaginary = 0;
};

// "3-4i", "i", "-2.5", "1.5E-3j"
std::optional<Complex> readComplex(std::string_view text) {
    Complex result;
    while (!text.empty()) {
        const std::string_view part = text;
        double sign = 1;
        auto number = takeNumber(text);
        if (!number) {
            if (text.starts_with('-')) sign = -1;
            if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
            if (!text.starts_with('i') && !text.starts_with('j')) return std::nullopt;
            number = sign;
        }
        if (text.starts_with('i') || text.starts_with('j')) {
            text.remove_prefix(1);
            result.imaginary += *number;
        } else {
            result.real += *number;
        }
        if (text.size() == part.size()) return std::nullopt;
    }
    return result;
}

bool textsAgree(const Case& test, std::string_view got) {
    if (got == test.expected.text) return true;
    if (!test.complex) return false;
    const auto a = readComplex(got);
    const auto b = readComplex(test.expected.text);
    if (!a || !b) return false;
    // Next to zero counts what the other part is worth.
    const double room = 1e-15 + test.tolerance * std::hypot(b->real, b->imaginary);
    return std::fabs(a->real - b->real) <= room && std::fabs(a->imaginary - b->imaginary) <= room;
}

}  // namespace

bool Case::hasTag(std::string_view tag) const {
    return std::find(tags.begin(), tags.end(), tag) != tags.end();
}

std::optional<std::string> folder() {
    const std::string source = VORMANT_SOURCE_DIR;
    const char* named = std::getenv("VORMANT_CONFORMANCE");
    for (const std::string& path :
         {named ? std::string(named) : std::string(), source + "/../shared/conformance",
          source + "/../../shared/conformance"})
        if (std::filesystem::is_directory(path)) return path;
    return std::nullopt;
}

std::vector<Case> load(const std::string& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".jsonl") files.push_back(entry.path());
    std::sort(files.begin(), files.end());

    std::vector<Case> cases;
    for (const auto& path : files) {
        std::ifstream file(path);
        for (std::string line; std::getline(file, line);)
            if (!line.empty()) cases.push_back(readCase(line));
    }
    return cases;
}

bool agrees(const Case& test, const formula::Value& got) {
    const Expected& expected = test.expected;
    if (got.type() != expected.type) return false;
    switch (expected.type) {
        case formula::ValueType::number:
            return isClose(got.number(), expected.number, test.tolerance);
        case formula::ValueType::boolean:
            return got.truth() == expected.truth;
        case formula::ValueType::text:
            return textsAgree(test, got.text());
        default:
            return formula::errorText(got.error()) == expected.text;
    }
}

}  // namespace conformance
