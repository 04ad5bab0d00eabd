// What the workbench remembers between sessions, kept in the module's registry.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core_api/settings.h"

struct WorkbenchSettings {
    std::string library;              ///< machine path, UTF-8; empty until one was opened
    std::vector<std::string> recent;  ///< libraries, the newest first
    Language language = Language::english;
    /// Asked for at the start of this session alone; not kept.
    std::optional<Language> sessionLanguage;
    bool diagnostics = true;
    /// Names in files of the library may lead out of it.
    bool outside = false;
    int scalePercent = 100;  ///< 100 to 200; counts from the next start
    std::string author;      ///< for reports, UTF-8

    static constexpr int mostRecent = 8;

    /// What is missing or makes no sense keeps its default.
    static WorkbenchSettings load();
    /// False, with the reason, when it cannot be kept.
    bool save(std::string& error) const;

    /// Puts a library in front of the recent ones.
    void noteLibrary(const std::string& folder);
    /// Sets the module's working language, its diagnostics flag and where names may lead.
    void apply() const;
    /// Only where names in files may lead (core_api/library_names).
    void applyNameRule() const;
};
