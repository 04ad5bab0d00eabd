// Settings files: a damaged one is refused with a reason and left as it is, in another a value that
// is written reads back.
#include "platform/registry/registry.h"

#include <stdlib.h>

#include <cstdint>

#include "fed_file.h"
#include "platform/files.h"
#include "platform/host/host.h"
#include "platform/paths.h"

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

/// Nobody asks for these files after a crash.
struct Unflushed : files::WriteSteps {
    int flush(int) override { return 0; }
};

/// Nobody reads what a damaged file is told about.
struct SilentHost : Host {
    void print(std::string_view) override {}
};

std::string bytesOf(const std::string& path) {
    std::string error;
    const auto bytes = files::readWhole(path, error);
    require(bytes.has_value());
    return *bytes;
}

/// The user's settings file with these bytes, in one of two folders by turns: a file that is
/// replaced within a tick of the clock could pass for the one before.
std::string fedSettings(std::string_view bytes) {
    static bool isOther = false;
    isOther = !isOther;
    const std::string folder = fedFolder().inside(isOther ? "a" : "b");
    std::string error;
    require(files::createFolder(folder + "\\vormant", error));
    ::setenv("XDG_CONFIG_HOME", paths::asWritten(folder).c_str(), 1);
    return fedFile(isOther ? "a\\vormant\\user.registry" : "b\\vormant\\user.registry", bytes);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Unflushed steps;
    static SilentHost host;
    files::installWriteSteps(&steps);
    const HostScope silent(host);
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::string path = fedSettings(bytes);
    using registry::Root;
    const std::string_view key = "Fuzz";
    const std::string_view name = bytes.substr(0, 40);
    const std::string_view value = bytes.substr(bytes.size() / 2);
    std::string error;
    if (!registry::write(Root::user, key, name, value, error)) {
        require(!error.empty() && bytesOf(path) == bytes);
        return 0;
    }
    require(registry::read(Root::user, key, name) == value);
    fedSettings(bytesOf(path));
    require(registry::read(Root::user, key, name) == value);
    require(registry::remove(Root::user, key, name, error));
    require(!registry::read(Root::user, key, name));
    return 0;
}
