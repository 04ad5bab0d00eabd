// The custom functions by family; standards_functions.cpp lists them.
#pragma once

#include "standards/functions/function_call.h"

// value_functions.cpp
FunctionResult roundTo(FunctionArguments& arguments);
FunctionResult getArrayItem(FunctionArguments& arguments);
FunctionResult toNumber(FunctionArguments& arguments);
FunctionResult isNull(FunctionArguments& arguments);
FunctionResult isPositive(FunctionArguments& arguments);

// table_functions.cpp
FunctionResult getCell(FunctionArguments& arguments);
FunctionResult getProfCell(FunctionArguments& arguments);

// section_functions.cpp
FunctionResult sectionSize(FunctionArguments& arguments);
FunctionResult getSysName(FunctionArguments& arguments);
/// The system name of a section, or the name itself when no table has it.
Vor_String systemNameOf(const Vor_String& name);

// tolerance_functions.cpp
FunctionResult stdWidthWithTolerance(FunctionArguments& arguments);
FunctionResult stdThicknessWithTolerance(FunctionArguments& arguments);
FunctionResult stdSizeWithTolerance(FunctionArguments& arguments);
