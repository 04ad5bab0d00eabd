#include "standards/standards_functions.h"

#include "standards/functions/families.h"

namespace {

constexpr StandardsFunctionRow rows[] = {
    {"ROUNDTO", 2, 2, callback<roundTo>},
    {"GETCELL", 2, 7, callback<getCell>},
    {"GETPROFCELL", 2, 7, callback<getProfCell>},
    {"SECTIONSIZE", 2, 2, callback<sectionSize>},
    {"GETSYSNAME", 1, 1, callback<getSysName>},
    {"STDWIDTHWITHTOLERANCE", 6, 6, callback<stdWidthWithTolerance>},
    {"STDTHICKNESSWITHTOLERANCE", 5, 5, callback<stdThicknessWithTolerance>},
    {"STDSIZEWITHTOLERANCE", 5, 5, callback<stdSizeWithTolerance>},
    {"GETARRAYITEM", 2, 2, callback<getArrayItem>},
    {"TONUMBER", 1, 1, callback<toNumber>},
    {"ISNULL", 1, 1, callback<isNull>},
    {"ISPOSITIVE", 1, 1, callback<isPositive>},
};

}  // namespace

std::span<const StandardsFunctionRow> standardsFunctions() {
    return rows;
}
