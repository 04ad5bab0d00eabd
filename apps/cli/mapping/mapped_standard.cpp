#include "cli/mapping/mapped_standard.h"

#include <algorithm>

#include "cli/io/console.h"
#include "cli/io/typed_paths.h"
#include "cli/standards/library.h"
#include "core_api/macros/macro_file.h"
#include "exchange/texts.h"
#include "mapping/mapping_file.h"
#include "mapping_dialog/object_list.h"
#include "platform/host/transaction.h"
#include "standards/declarations.h"

namespace cli {

std::optional<MappedStandard> openMappedStandard(const std::string& typed) {
    const auto standard = findStandard(typed);
    if (!standard) return std::nullopt;
    const Vor_String name = standard->mappingName();
    if (name == standard->path) {
        complainAt(standard->name, 0,
                   "lies outside of the library; mapping files are those of its standards");
        return std::nullopt;
    }
    Vor_String failure;
    auto declared = listDeclarations(standard->path, failure);
    if (declared) return MappedStandard{name, std::move(*declared)};
    complainText(failure);
    return std::nullopt;
}

std::optional<MappedMacro> openMappedMacro(const std::string& typed) {
    const auto path = insidePath(typed);
    if (!path) return std::nullopt;
    MappedMacro mapped{*path, {}, {}};
    Vor_String failure;
    if (loadMacro(*path, mapped.macro, failure) != Acad::eOk) {
        complainText(failure);
        return std::nullopt;
    }
    AcTransaction transaction;                                               // for reading sections
    (void)mapped.objects.initAllVarsFromMacro(&mapped.macro, &transaction);  // it has a macro
    return mapped;
}

void appendMapping(std::string& text, const Vor_String& key, const SheetChoices& choices) {
    size_t width = 0;
    for (const VariableChoice& variable : choices.variables())
        width = std::max(width, variable.name.view().size());
    exchange::appendUtf8(text, key);
    text += '\n';
    for (const VariableChoice& variable : choices.variables()) {
        text += variable.isInput ? "  in   " : "  out  ";
        exchange::appendUtf8(text, variable.name);
        text.append(width - variable.name.view().size() + 2, ' ');
        exchange::appendUtf8(text,
                             variable.object ? objectLabel(*variable.object) : Vor_String("-"));
        if (variable.isMissing) text += " (missing)";
        text += '\n';
    }
}

}  // namespace cli
