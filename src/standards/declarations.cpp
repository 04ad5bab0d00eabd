#include "standards/declarations.h"

#include "standards/prepared_standard.h"
#include "standards/run_observer.h"
#include "standards/tw_standards_ss.h"

std::optional<TwVarCells> listDeclarations(const Vor_String& name, Vor_String& failure) {
    TwStandardsSS spread;
    spread.attachHidden();
    if (spread.loadFile(name) != Acad::eOk || spread.initVarCells() != Acad::eOk) {
        failure = lastRunFailure();
        return std::nullopt;
    }
    return spread.prepared()->variables();
}
