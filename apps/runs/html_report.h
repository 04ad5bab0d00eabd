// A calculation as a page to print, file and sign: HTML without scripts or pictures, in the part
// of the language that rich-text printers understand too.
#pragma once

#include <string>

#include "runs/calculation.h"

namespace runs {

struct ReportHeading {
    std::string project;  ///< UTF-8; may be empty
    std::string author;
    std::string date;
};

/// UTF-8. Words are in the working language.
std::string htmlReport(const Calculation& calculation, const ReportHeading& heading);

}  // namespace runs
