#include "command_line.h"

int main(int argc, char** argv) {
    return static_cast<int>(cli::runCommandLine(argc, argv));
}
