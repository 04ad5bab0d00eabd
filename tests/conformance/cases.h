// Formula cases with results that independent spreadsheet programs gave. They lie beside the
// checkout (or in the folder named by VORMANT_CONFORMANCE) and are not part of it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/sheets/eval_record.h"
#include "spread/control/formula/value.h"

namespace conformance {

struct Expected {
    formula::ValueType type = formula::ValueType::empty;
    double number = 0;
    bool truth = false;
    std::string text;  ///< also the name of an error
};

struct Case {
    std::string id;
    std::string function;                ///< the one it is mainly about, or "(operator)"
    std::vector<std::string> functions;  ///< all that are called, in its cells too
    std::vector<std::string> tags;
    cli::EvalRecord record;
    Expected expected;
    double tolerance = 1e-9;
    bool complex = false;    ///< compare the texts as complex numbers
    std::string unreadable;  ///< why it cannot be tried; a text outside Windows-1252
    std::string json;

    bool hasTag(std::string_view tag) const;
};

/// The folder of the cases, or nothing when there is none.
std::optional<std::string> folder();

/// Every case of every "*.jsonl" in `folder`.
std::vector<Case> load(const std::string& folder);

bool agrees(const Case& test, const formula::Value& got);

}  // namespace conformance
