#include <fcntl.h>
#include <unistd.h>

#include "command_line.h"
#include "core_api/program_data.h"

namespace {

/// A file that the program opens must not take the place of a standard stream that is closed.
void occupyStandardStreams() {
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (::fcntl(stream, F_GETFD) >= 0) continue;
        // The wrong way round, so that using it still fails.
        if (::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY) < 0) return;
    }
}

}  // namespace

int main(int argc, char** argv) {
    occupyStandardStreams();
    useProgramData();
    return static_cast<int>(cli::runCommandLine(argc, argv));
}
