#include "io/output.h"
#include "io/texts.h"
#include "standards/declarations.h"
#include "standards/library.h"
#include "standards/standards_commands.h"
#include "standards/variables.h"

namespace cli {

ExitCode listStandards() {
    Output output;
    bool allRead = true;
    for (const auto& standard : libraryStandards()) {
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
