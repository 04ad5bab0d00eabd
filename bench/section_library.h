// A library of 500 section tables with 500 sizes each: larger than any of the market.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include "core_api/texts/texts.h"

namespace bench {

class SectionLibrary {
  public:
    static constexpr int tables = 500;
    static constexpr int sizes = 500;
    static constexpr int values = 15;

    SectionLibrary() {
        std::filesystem::create_directories(prof());
        const std::string text = tableText();
        for (int i = 0; i < tables; ++i)
            std::ofstream(prof() / ("T" + std::to_string(i) + ".pr"), std::ios::binary) << text;
    }
    SectionLibrary(const SectionLibrary&) = delete;
    SectionLibrary& operator=(const SectionLibrary&) = delete;
    ~SectionLibrary() { std::filesystem::remove_all(m_root); }

    const std::filesystem::path& root() const { return m_root; }
    std::filesystem::path prof() const { return m_root / "prof"; }

  private:
    // I sections; the height of size 1 is 1.5, its width 2.5 and so on.
    static std::string tableText() {
        std::string text = "1\nSysName\tI/O\tEnglish\tDutch\tGerman\tFrench";
        for (int i = 0; i < values; ++i) text += "\tValue" + std::to_string(i);
        text += "\n";
        for (int size = 1; size <= sizes; ++size) {
            const std::string name = std::to_string(size * 10);
            text += name + "\t1";
            for (int i = 0; i < languageCount; ++i) text += "\tHE " + name;
            for (int i = 0; i < values; ++i) text += "\t" + std::to_string(size + i) + ".5";
            text += "\n";
        }
        return text;
    }

    std::filesystem::path m_root =
        std::filesystem::temp_directory_path() / "vormant-bench-sections";
};

}  // namespace bench
