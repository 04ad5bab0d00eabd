#include "standards/check/standards_check.h"

#include <algorithm>

#include "standards/check/standard_check.h"

std::vector<StandardsFinding> checkStandard(const Vor_String& name) {
    StandardCheck check;
    if (check.open(name)) {
        checkMarkers(check);
        checkNames(check);
        checkEquations(check);
        checkUse(check);
    }
    auto& findings = check.findings;
    std::stable_sort(findings.begin(), findings.end(), [](const auto& a, const auto& b) {
        return a.row != b.row ? a.row < b.row : a.column < b.column;
    });
    return std::move(findings);
}
