// Files on this machine, under their inside paths (platform/paths.h). Errors are one text: what
// failed, which file, what to do. All writing goes through writeWhole, which leaves the old file
// or the new one, never half.
// Who reads a file, changes and writes it takes it exclusively first (platform/exclusive_change.h).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/export.h"

namespace files {

/// What tells two states of a file apart without reading it.
struct Stamp {
    std::int64_t size = 0;  ///< bytes
    std::int64_t time = 0;  ///< last change, nanoseconds since 1970
    /// The file's number on its disk: clocks of file systems are coarse, and a file that was
    /// replaced within one tick differs in this alone.
    std::uint64_t identity = 0;
    bool operator==(const Stamp&) const = default;
};

/// False while the last change is so recent that another one may not show in the stamp, as clocks
/// of file systems move in steps: what was made from such a file must not be kept.
VORMANT_API bool isSettled(const Stamp& stamp);
/// The same as seen at an earlier time: when reading began.
VORMANT_API bool isSettled(const Stamp& stamp, std::int64_t time);
/// Nanoseconds since 1970.
VORMANT_API std::int64_t now();
/// Nothing when there is no such file (a folder is none).
VORMANT_API std::optional<Stamp> stampOf(std::string_view path);
/// The same of a folder: it changes when something in it comes, goes or gets another name.
VORMANT_API std::optional<Stamp> folderStampOf(std::string_view path);
VORMANT_API bool exists(std::string_view path);
/// The same, but true also when the disk cannot tell: for whoever would write in the place of a
/// file that is not there. Reading it then says what is wrong.
VORMANT_API bool mayExist(std::string_view path);
VORMANT_API bool isFolder(std::string_view path);

/// Larger files are refused by readWhole unless its caller knows better.
inline constexpr std::size_t usualSizeLimit = 256u << 20;

/// The bytes of the file. Nothing, with `error` set, when it cannot be read, is larger than
/// `sizeLimit` bytes or is no ordinary file (a pipe could block for ever). `opened`, unless null,
/// becomes the stamp that the file had before it was read.
VORMANT_API std::optional<std::string> readWhole(std::string_view path, std::string& error,
                                                 std::size_t sizeLimit = usualSizeLimit,
                                                 Stamp* opened = nullptr);

/// Replaces the file by `content`, or creates it. False, with `error` set and the old file
/// untouched, on any failure. A link is followed, the file's permissions are kept. What a dead
/// program left half written in the folder is cleared away.
VORMANT_API bool writeWhole(std::string_view path, std::string_view content, std::string& error);

/// Creates the folder and those above it; true when it is there already.
VORMANT_API bool createFolder(std::string_view path, std::string& error);
/// Removes a file; true when there is none.
VORMANT_API bool removeFile(std::string_view path, std::string& error);

/// The paths of the files in `folder` whose names match `pattern` ("*" any characters, "?" one,
/// letter case aside), in alphabetic order, case aside; each begins with `folder`. With `recursive`
/// those of the folders below too. Names that Windows-1252 cannot write are left out.
VORMANT_API std::vector<std::string> find(std::string_view folder, std::string_view pattern,
                                          bool recursive);
VORMANT_API bool matchesPattern(std::string_view name, std::string_view pattern);

/// The single steps of writeWhole, so that tests can let each of them fail. Machine paths; 0 or
/// an errno comes back.
class VORMANT_API WriteSteps {
  public:
    virtual ~WriteSteps() = default;
    /// Creates the new file `path` into `descriptor`, with the permission bits of the file that it
    /// is to replace, if any.
    virtual int open(const std::string& path, std::optional<unsigned> permissions, int& descriptor);
    /// Writes some of `bytes`; `written` says how many.
    virtual int write(int descriptor, std::string_view bytes, std::size_t& written);
    virtual int flush(int descriptor);
    virtual int close(int descriptor);
    virtual int rename(const std::string& from, const std::string& to);
    /// The same, but EEXIST when there is a file `to`.
    virtual int renameNew(const std::string& from, const std::string& to);
};

/// Makes `steps` (borrowed; null for the real ones) the ones used and returns those before, null
/// when they were the real ones.
VORMANT_API WriteSteps* installWriteSteps(WriteSteps* steps);

}  // namespace files
