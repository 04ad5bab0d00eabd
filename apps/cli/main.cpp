#include <fcntl.h>
#include <unistd.h>

#include <new>

#include "cli/command_line.h"
#include "core_api/program_data.h"
#include "platform/out_of_memory.h"

namespace {

/// A file that the program opens must not take the place of a standard stream that is closed.
void occupyStandardStreams() {
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (::fcntl(stream, F_GETFD) >= 0) continue;
        // The wrong way round, so that using it still fails.
        if (::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY) < 0) return;
    }
}

/// Before anything else: what other files set up at the start can run out of memory too.
struct NoMemoryPreparation {
    NoMemoryPreparation() { platform::prepareForNoMemory("vormant"); }
};
[[gnu::init_priority(101)]] const NoMemoryPreparation preparation;

}  // namespace

int main(int argc, char** argv) {
    occupyStandardStreams();
    try {
        useProgramData();
        return static_cast<int>(cli::runCommandLine(argc, argv));
    } catch (const std::bad_alloc&) {
        return platform::reportNoMemory();
    }
}
