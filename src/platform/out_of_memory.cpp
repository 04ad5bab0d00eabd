#include "platform/out_of_memory.h"

#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>

namespace platform {

namespace {

const char* programName = "vormant";
void* reserve = nullptr;
bool isOut = false;
std::terminate_handler before = nullptr;

void freeReserve() {
    isOut = true;
    if (!reserve) throw std::bad_alloc();
    std::free(reserve);
    reserve = nullptr;
    throw std::bad_alloc();
}

[[noreturn]] void endWithSentence() {
    if (isOut) ::_exit(reportNoMemory());
    if (before) before();
    std::abort();
}

void write(const char* text) {
    // There is nobody left to tell when this fails too.
    if (::write(STDERR_FILENO, text, std::strlen(text)) < 0) return;
}

}  // namespace

void prepareForNoMemory(const char* program) {
    constexpr std::size_t enough = std::size_t{512} << 10;  // to unwind and to tell
    programName = program;
    reserve = std::malloc(enough);
    std::set_new_handler(&freeReserve);
    before = std::set_terminate(&endWithSentence);
}

int reportNoMemory() {
    write(programName);
    write(
        ": there is not enough memory; no file is half written. Close other programs, or give less "
        "at a time\n");
    return 1;
}

}  // namespace platform
