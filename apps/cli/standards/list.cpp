#include <algorithm>

#include "cli/io/console.h"
#include "cli/io/output.h"
#include "cli/io/typed_paths.h"
#include "cli/standards/library.h"
#include "cli/standards/standards_commands.h"
#include "cli/standards/variables.h"
#include "core_api/settings.h"
#include "exchange/texts.h"
#include "standards/declarations.h"

namespace cli {

namespace {

constexpr size_t lineWidth = 96;

/// A list of items behind `heading`, its lines broken after commas.
void appendWrapped(std::string& text, std::string_view heading, std::string_view items) {
    std::string line(heading);
    while (!items.empty()) {
        const size_t end = std::min(items.find(", "), items.size());
        const std::string_view item = items.substr(0, std::min(end + 1, items.size()));
        if (line.size() > heading.size() && line.size() + item.size() > lineWidth) {
            text += line + "\n";
            line.assign(heading.size(), ' ');
        } else if (line.size() > heading.size()) {
            line += ' ';
        }
        line += item;
        items.remove_prefix(std::min(end + 2, items.size()));
    }
    text += line + "\n";
}

}  // namespace

ExitCode listStandards() {
    const auto standards = allStandards();
    if (standards.empty()) {
        complain(gSettings.libDir().isEmpty()
                     ? "name the library with --library or VORMANT_LIBRARY"
                     : "there are no standards in " + shownPath(gSettings.libDir()) +
                           ": check that it is the library, and its permissions");
        return ExitCode::failed;
    }
    Output output;
    bool allRead = true;
    for (const auto& standard : standards) {
        Vor_String failure;
        const auto variables = listDeclarations(standard.path, failure);
        if (!variables) {
            complainText(failure);
            allRead = false;
            continue;
        }
        std::string& text = output.text();
        text += standard.name + "\n";
        appendWrapped(text, "  in   ", describe(*variables, TwCellType::input));
        appendWrapped(text, "  out  ", describe(*variables, TwCellType::output));
        output.written();
    }
    return output.close() && allRead ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
