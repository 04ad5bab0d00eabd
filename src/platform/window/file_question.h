// Asking for a file: to open, to save, or several. Without a user (no desktop, no script) it is
// cancelled, and the question is printed on the host's command line. Paths are host-style.
#pragma once

#include <string>
#include <vector>

#include "platform/export.h"

class CWnd;

struct FileQuestion {
    enum class Kind {
        open,
        save,         ///< asks before a file that exists is chosen
        openSeveral,  ///< files and folders
        folder,
    };
    Kind kind = Kind::open;
    std::string title;
    std::string filterName;  ///< "Templates"
    std::string extension;   ///< "txt"; also added to what is typed without one
    std::string folder;      ///< where to start
    std::string preset;      ///< file name without folder
};

/// What was chosen, empty when cancelled; one path but for openSeveral. Folders end in a backslash.
VORMANT_API std::vector<std::string> chooseFiles(const FileQuestion& question, CWnd* parent);
/// The one path, or empty.
VORMANT_API std::string chooseFile(const FileQuestion& question, CWnd* parent);
