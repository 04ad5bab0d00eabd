// The "mapping" subcommands: which object of a macro each variable of a standard stands for.
#pragma once

#include <string>
#include <vector>

#include "cli/io/console.h"

namespace cli {

struct ShowMappingRequest {
    std::string name;
    std::string key;        ///< of the line to show; empty for every line
    std::string macroFile;  ///< objects that this macro lacks are marked; may be empty
    bool json = false;
};
ExitCode showMapping(const ShowMappingRequest& request);

struct SetMappingRequest {
    std::string name;
    std::string macroFile;
    std::string key;                       ///< of the line to change; empty for a new one
    std::vector<std::string> assignments;  ///< "Variable=Object"
    bool attach = false;                   ///< the macro keeps the standard and the key, too
};
ExitCode setMapping(const SetMappingRequest& request);

struct ObjectsRequest {
    std::string macroFile;
};
ExitCode listObjects(const ObjectsRequest& request);

}  // namespace cli
