// Feeds every file of a folder to a fuzz target; a fault ends the program.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int count, char** arguments) {
    if (count != 2 || !std::filesystem::is_directory(arguments[1])) {
        std::fprintf(stderr, "usage: replay CORPUS-FOLDER\n");
        return 2;
    }
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
        ++files;
    }
    std::printf("%d files\n", files);
    return files > 0 ? 0 : 1;
}
