// What programs do when memory runs out: one sentence and exit code 1. The module itself only lets
// std::bad_alloc through to its borders; who catches it there keeps what it had.
#pragma once

#include "platform/export.h"

namespace platform {

/// For a program, once, at its start: sets memory aside that is there for ending well when there is
/// no more, and lets an exception that can get no further, from a destructor say, end the program
/// with its sentence. `program` is what the sentence begins with; it has to stay.
VORMANT_API void prepareForNoMemory(const char* program);
/// Writes the sentence to the error stream without needing memory. Gives the exit code, 1.
VORMANT_API int reportNoMemory();

}  // namespace platform
