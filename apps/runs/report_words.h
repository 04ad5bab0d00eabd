// The numbers of the words (core_api/texts) that reports of runs use.
#pragma once

namespace runs {

enum ReportWord {
    wordName = 22000,
    wordValue,
    wordUnit,
    wordMeaning,
    wordRule,
    wordInputs,
    wordResults,
    wordCalculation,
    wordMessages,
    wordFailed,
    wordProject,
    wordAuthor,
    wordDate,

    wordNeedsNumber = 26960,
};

}  // namespace runs
