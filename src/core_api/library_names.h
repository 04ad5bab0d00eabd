// Where names may lead that stand in the files of a library, of a called standard, a data file, a
// header. A host decides itself whose files it opens: there any name means the file of that name,
// if there is one. Our programs open what others made, so there such a name means a file of the
// library, and one that leads elsewhere, by "..", as a whole path or through a link, is refused
// unless the user allows it. Names that a user typed or chose (paths::toInside) are never refused.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core_api/text/vor_string.h"

enum class OutsideNames { asHost, refused, allowed };

struct LibraryNameRule {
    OutsideNames outside = OutsideNames::asHost;
    std::string advice;  ///< what the user does to allow them; the end of a sentence
};
VORMANT_API void setLibraryNameRule(LibraryNameRule rule);
VORMANT_API const LibraryNameRule& libraryNameRule();

/// Whether `name` may be looked for as a path of its own, before the folders of the library are. A
/// name without a folder never may in our programs: it means the library, not the folder that the
/// program happens to run in.
VORMANT_API bool mayBeOwnPath(std::string_view name);

/// Why the file `path`, which exists, may not be used; nothing when it may: it lies in the library,
/// in the add-on's folder or, unless that is empty, in `home`, the folder of a file that the user
/// named. Links are followed.
VORMANT_API std::optional<Vor_String> outsideRefusal(std::string_view path,
                                                     std::string_view home = {});
