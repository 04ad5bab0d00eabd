// Named text values under keys ("Software\Vormant\Dialogs"), kept from run to run: one text file
// a root in the user's configuration folder ($XDG_CONFIG_HOME/vormant/, else ~/.config/vormant/).
// A file is read when first asked for and again when another program changed it. Letter case in
// keys and names does not matter. File form: a first line "registry 1", then key, name and value
// a line, separated by tabs, with \t \n \r \\ escapes; sorted, so that it can be compared.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/export.h"

namespace registry {

/// Settings of this user, and those that a machine-wide installation would share.
enum class Root { user, machine };

/// The value, or nothing: also when the root's file is damaged, which is told on the command line
/// once.
VORMANT_API std::optional<std::string> read(Root root, std::string_view key, std::string_view name);

/// False, with `error` set, when the file cannot be written, or is damaged: it is left for its
/// owner to mend rather than replaced.
VORMANT_API bool write(Root root, std::string_view key, std::string_view name,
                       std::string_view value, std::string& error);

/// Removes one value; true when it is not there.
VORMANT_API bool remove(Root root, std::string_view key, std::string_view name, std::string& error);

}  // namespace registry
