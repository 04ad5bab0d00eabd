#include "whole_program/commands.h"

#include <fstream>

#include "test_folders.h"

namespace whole_program {

namespace {

const std::string sheet =
    "vormant-sheet 1\nsize 4 4\nlook 1 number decimals=2\nnote B1 \"a note\n"
    "cells\nA1 \"Section\nB1 \"Mass\nA2 \"IPE 200\nB2 @1 22.4\nA3 \"bell\nB3 =B2*3+0.1\t67.3\n"
    "C3 =CHAR(7)&\"=1\"\t\"\nend 7\n";
const std::string table = "Section,Length,Count,Phase\nIPE-200,2000,2,A\nHEA-100,500,1,B\n";

Command inLibrary(std::string name, std::vector<std::string> arguments, std::string input = {}) {
    arguments.insert(arguments.begin(), {"--library", "library"});
    return {std::move(name), std::move(arguments), std::move(input)};
}

Command dated(Command command) {
    command.isDated = true;
    return command;
}

}  // namespace

const std::vector<Command>& writingCommands() {
    static const std::vector<Command> commands = {
        {"sheet to csv", {"sheet", "convert", "sheet.tws", "there.csv"}},
        {"sheet to workbook", {"sheet", "convert", "sheet.tws", "there.xlsx"}},
        {"csv to sheet", {"sheet", "convert", "table.csv", "there.tws"}},
        {"sheet eval", {"sheet", "eval", "=SUM(A1,2)", "--cell", "A1=3"}},
        inLibrary("standards run --write",
                  {"standards", "run", "EndPlate", "--macro", "library/Macros/EndPlate.macro",
                   "--key", "BeamToColumn", "--write"}),
        inLibrary("standards batch", {"standards", "batch", "EndPlate"},
                  "BeamSection,BoltDiameter,BoltClass,SteelClass,ShearForce\n"
                  "IPE-300,20,8.8,275,150\nIPE-200,16,8.8,275,40\n"),
        inLibrary("mapping set",
                  {"mapping", "set", "EndPlate", "--macro", "library/Macros/EndPlate.macro",
                   "--key", "BeamToColumn", "PlateWidth=Plate.Height"}),
        inLibrary("mapping set --attach",
                  {"mapping", "set", "EndPlate", "--macro", "library/Macros/EndPlate.macro",
                   "--key", "Other", "--attach", "PlateWidth=Plate.Height"}),
        dated(inLibrary("bill as document", {"bill", "EndPlate", "--pictures", "-o", "there.sss"})),
        inLibrary("bill as workbook", {"bill", "EndPlate", "--pictures", "-o", "there.xlsx"}),
        inLibrary("bill as csv", {"bill", "table.csv", "--group", "Phase", "-o", "there.csv"}),
        dated(inLibrary("bill in another language",
                        {"bill", "EndPlate", "--language", "de", "--title", "T", "-o", "new.tws"})),
        inLibrary("sections import", {"sections", "import", "flats.json", "FLATS"}),
        inLibrary("sections import --force", {"sections", "import", "flats.json", "FL", "--force"}),
        inLibrary("sections export", {"sections", "export", "FL", "there.csv"}),
        inLibrary("sections export as JSON", {"sections", "export", "FL", "there.json"}),
        inLibrary("sections find", {"sections", "find", "name=IPE 2*", "--json"}),
        inLibrary("cutstock import --new", {"cutstock", "import", "-", "HEA-220", "shp", "--new"},
                  "12000,4\n6000,2\n"),
        inLibrary("cutstock import --force",
                  {"cutstock", "import", "-", "IPE 200", "shp", "--as", "stock1", "--force"},
                  "12000,4\n"),
        inLibrary("cutstock export", {"cutstock", "export", "IPE 200", "shp", "there.csv"}),
    };
    return commands;
}

Workplace::Workplace() {
    namespace fs = std::filesystem;
    fs::copy(fs::path(VORMANT_SOURCE_DIR) / "library", m_folder.path() / "library",
             fs::copy_options::recursive);
    fs::create_directory(m_folder.path() / "tmp");
    m_folder.write("sheet.tws", sheet);
    m_folder.write("table.csv", table);
    for (const char* name : {"there.csv", "there.json", "there.xlsx", "there.tws", "there.sss"})
        m_folder.write(name, "an old file that must not be lost\n");
    const auto flats = program::run(
        {.program = VORMANT_PROGRAM, .folder = m_folder.path().string(), .environment = {}},
        {"--library", "library", "sections", "export", "FL", "--json"});
    m_folder.write("flats.json", flats.out);
    m_before = files();
}

Files filesIn(const std::filesystem::path& folder) {
    namespace fs = std::filesystem;
    Files files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder);
        if (entry.is_directory()) {
            files[name + "/"];
            continue;
        }
        std::string& content = files[name];
        content.resize(entry.file_size());
        std::ifstream file(entry.path(), std::ios::binary);
        file.read(content.data(), static_cast<std::streamsize>(content.size()));
        content.resize(static_cast<size_t>(file.gcount()));
    }
    return files;
}

void Workplace::reset() {
    const Files now = files();
    for (const auto& [name, content] : now)
        if (!m_before.contains(name)) std::filesystem::remove_all(m_folder.path() / name);
    for (const auto& [name, content] : m_before) {
        const auto found = now.find(name);
        if (found != now.end() && found->second == content) continue;
        if (name.ends_with('/'))
            std::filesystem::create_directories(m_folder.path() / name);
        else
            m_folder.write(name, content);
    }
}

program::Result Workplace::run(const Command& command, std::vector<std::string> environment) const {
    if (command.isDated) environment.push_back("SOURCE_DATE_EPOCH=1700000000");
    environment.insert(environment.end(), {"TMPDIR=" + path("tmp"), "HOME=" + path("tmp"),
                                           "QT_QPA_PLATFORM=offscreen"});
    return program::run({.program = command.isDesktop ? VORMANT_WORKBENCH_PROGRAM : VORMANT_PROGRAM,
                         .folder = m_folder.path().string(),
                         .environment = std::move(environment)},
                        command.arguments, command.input);
}

}  // namespace whole_program
