// A library with files of cutting-stock items, whose times the tests choose.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>

#include "core_api/settings.h"
#include "support/temporary_folder.h"

class StockLibrary {
  public:
    StockLibrary() { gSettings.setLibDir(folder.inside()); }
    ~StockLibrary() { gSettings = before; }

    /// Writes a file of an item; `time` in seconds since 1970, 0 for now. Its inside path.
    std::string write(const std::string& name, std::string_view content, long time = 0) const {
        const std::string inside = folder.write("Cutting Stock/" + name, content);
        const timespec times[2] = {{time, 0}, {time, 0}};
        if (time) ::utimensat(AT_FDCWD, path(name).c_str(), times, 0);
        return inside;
    }
    std::string read(const std::string& name) const { return folder.read("Cutting Stock/" + name); }
    bool has(const std::string& name) const { return std::filesystem::exists(path(name)); }
    std::filesystem::path path(const std::string& name) const {
        return folder.path() / "Cutting Stock" / name;
    }

    TemporaryFolder folder;

  private:
    Vor_Settings before = gSettings;
};
