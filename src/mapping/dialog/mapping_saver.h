// Writes changed mappings under fresh keys into the mapping files of their standards, all of them
// or none.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "mapping/tw_ss_mapping.h"

class VORMANT_API MappingSaver {
  public:
    MappingSaver() = default;
    /// Files that were written are as before again, unless keep() was called.
    ~MappingSaver();
    MappingSaver(const MappingSaver&) = delete;
    MappingSaver& operator=(const MappingSaver&) = delete;

    /// Stores `mapping` under a key that the file does not have yet, so that other macros keep
    /// theirs, and gives that key. eInvalidInput, with `message` saying why, when it cannot.
    ErrorStatus save(const Vor_String& standardsName, const TwSSMapping& mapping, Vor_String& key,
                     Vor_String& message);
    /// The same under a key of the caller's, whose line is replaced.
    ErrorStatus saveUnder(const Vor_String& standardsName, const TwSSMapping& mapping,
                          const Vor_String& key, Vor_String& message);
    void keep() { m_before.clear(); }

  private:
    struct Before {
        Vor_String path;
        std::optional<std::string> content;  // nothing when there was no file
    };
    bool isKnown(const Vor_String& path) const;

    std::vector<Before> m_before;
};
