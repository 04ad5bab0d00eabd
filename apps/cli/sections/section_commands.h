// The "sections" subcommands: the section tables of the library, which is open when they are
// called (standards/library.h).
#pragma once

#include <string>
#include <vector>

#include "cli/io/console.h"

namespace cli {

struct ListSectionsRequest {
    bool json = false;
};
ExitCode listSections(const ListSectionsRequest& request);

struct ShowSectionRequest {
    std::string name;  ///< a table, or a section by its full or user name
    bool json = false;
};
ExitCode showSection(const ShowSectionRequest& request);

struct FindSectionsRequest {
    std::vector<std::string> conditions;  ///< "h>=200"
    std::string sortColumn;               ///< empty: as they lie in the library
    bool inactive = false;                ///< those that are not offered too
    bool json = false;
};
ExitCode findSections(const FindSectionsRequest& request);

struct CheckSectionsRequest {
    std::vector<std::string> tables;  ///< none: all of the library
    bool json = false;
};
ExitCode checkSections(const CheckSectionsRequest& request);

struct ImportSectionsRequest {
    std::string file;    ///< CSV or JSON
    std::string table;   ///< a name in the library, or a path
    std::string type;    ///< a number or a drawn template; empty: what the JSON says, else that of
                         ///< the table replaced
    bool force = false;  ///< replace a table that is there
    bool json = false;   ///< it is JSON; a .json file says so itself
};
ExitCode importSections(const ImportSectionsRequest& request);

struct ExportSectionsRequest {
    std::string table;
    std::string file = "-";
    bool json = false;
};
ExitCode exportSections(const ExportSectionsRequest& request);

}  // namespace cli
