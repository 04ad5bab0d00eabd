#include <vormant/vormant.h>

#include <cstdio>

int main(int, char** argv) {
    gSettings.setLibDir(argv[1]);
    TwDlgStandardsData run;
    run.mode = TwDlgStandardsData::Mode::variables;
    run.standardsName = "Stiffener";
    Vor_String failure;
    if (const auto variables = listDeclarations(run.standardsName, failure))
        for (const TwVarCell& variable : *variables)
            if (!variable.isLocal()) run.varCells.append(variable);
    const bool isDone = StartDlgStandardsSS(run);
    std::printf("%s%s\n", failure.c_str(), lastRunFailure().c_str());
    return isDone && run.varCells.length() > 0 ? 0 : 1;
}
