// Every command that writes, as a row of a table: whatever holds for all of them is tested over it.
// A new command gets a row here.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "cli/program.h"

namespace whole_program {

struct Command {
    std::string name;
    std::vector<std::string> arguments;
    std::string input = {};
    bool isDesktop = false;  ///< of vormant-workbench
    bool isDated = false;    ///< what it writes carries the date, which is then a fixed one
};

/// Files by their names below the workplace; folders end with a slash.
using Files = std::map<std::string, std::string>;

/// Everything below a folder.
Files filesIn(const std::filesystem::path& folder);

/// A folder with the sample library and files to work on, in which commands are run.
class Workplace {
  public:
    Workplace();

    /// As it was before the first command.
    void reset();
    Files files() const { return filesIn(m_folder.path()); }
    /// Runs with what the environment is to have beside what belongs to the workplace.
    program::Result run(const Command& command, std::vector<std::string> environment = {}) const;
    std::string path(const std::string& name) const { return m_folder / name; }

  private:
    program::Folder m_folder;
    Files m_before;
};

const std::vector<Command>& writingCommands();

}  // namespace whole_program
