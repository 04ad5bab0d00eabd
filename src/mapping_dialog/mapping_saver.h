// Writes changed mappings under fresh keys into the mapping files of their standards, all of them
// or none.
#pragma once

#include <memory>
#include <vector>

#include "mapping/tw_ss_mapping.h"
#include "platform/exclusive_change.h"
#include "platform/kept_file.h"

class VORMANT_API MappingSaver {
  public:
    MappingSaver() = default;
    /// Files that were written are as before again, unless keep() was called. Until then other
    /// programs wait.
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
    /// Makes the files as they were. False, with the reason, when that failed for one of them.
    bool undo(Vor_String& message);

  private:
    struct Before {
        Vor_String path;
        files::ExclusiveChange change;
        std::unique_ptr<files::KeptFile> file;
    };
    bool begin(const Vor_String& path, Vor_String& message);

    std::vector<Before> m_before;
};
