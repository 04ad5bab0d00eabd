// Where the files of a library were found. A standard looks into folder after folder for its
// children and data files, run after run; as long as none of those folders has changed, the
// answers stay. The folders are looked at once in an outermost run.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "core_api/library_names.h"
#include "core_api/text/vor_string.h"

class FoundFiles {
  public:
    static FoundFiles& instance();

    /// The first of `candidates()` that exists, if names may lead there (core_api/library_names);
    /// `key` names what is looked for. Outside of runs the disk is asked every time.
    template <class Candidates>
    std::optional<Vor_String> find(const std::string& key, Candidates&& candidates) {
        const std::optional<Vor_String>* known = knownAs(key);
        return known ? *known : format(key, candidates());
    }

    /// Why the first that exists was refused; nothing when none exists.
    static std::optional<Vor_String> refusal(const std::vector<Vor_String>& candidates);

  private:
    const std::optional<Vor_String>* knownAs(const std::string& key);
    std::optional<Vor_String> format(const std::string& key,
                                     const std::vector<Vor_String>& candidates);
    void startRun();
    void noteFolderOf(const Vor_String& file);

    unsigned long long m_serial = 0;  // of the run in which the folders were looked at
    Vor_String m_home;
    OutsideNames m_rule = OutsideNames::asHost;
    bool m_isLasting = true;  // none of them had changed just before
    std::unordered_map<std::string, std::int64_t> m_folders;  // time of the last change
    std::unordered_map<std::string, std::optional<Vor_String>> m_found;
};
