#include "console.h"
#include "core_api/settings.h"
#include "io/output.h"
#include "io/texts.h"
#include "io/typed_paths.h"
#include "standards/declarations.h"
#include "standards/library.h"
#include "standards/standards_commands.h"
#include "standards/variables.h"

namespace cli {

ExitCode listStandards() {
    const auto standards = libraryStandards();
    if (standards.empty()) {
        complain(gSettings.libDir().isEmpty()
                     ? "name the library with --library or VORMANT_LIBRARY"
                     : "there are no standards in " + shownPath(gSettings.libDir()));
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
        text += "  in   " + describe(*variables, TwCellType::input) + "\n";
        text += "  out  " + describe(*variables, TwCellType::output) + "\n";
        output.written();
    }
    return output.close() && allRead ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
