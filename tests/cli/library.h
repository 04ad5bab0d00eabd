// A small library of standards to call the program with.
#pragma once

#include <string>
#include <vector>

#include "cli/program.h"

/// A document holding texts in column A from row 1 on.
inline std::string column(const std::vector<std::string>& texts) {
    std::string text = "vormant-sheet 1\nsize 3 " + std::to_string(texts.size()) + "\ncells\n";
    int row = 0, cells = 0;
    for (const auto& cell : texts) {
        ++row;
        if (cell.empty()) continue;
        text += "A" + std::to_string(row) + " \"" + cell + "\n";
        ++cells;
    }
    return text + "end " + std::to_string(cells) + "\n";
}

class Library : public program::Folder {
  public:
    Library() {
        add("Plate",
            {"Input", "String Section", "Double Thickness", "Output", "Double Width", "Int Bolts",
             "String Name", "Local", "Double Gap", "Calc", "Gap=2*Thickness",
             "Width=ROUND(100/3+Gap,1)", "Bolts=ROUND(Width/10,0)", "Name=Section&\" / \"&Width"});
        add("Childs/Base", {"Input", "Double P", "Output", "Double W", "Calc", "W=P*2"});
        add("Parents/Frame", {"Input", "Double P", "Output", "Double W", "Calc",
                              "CallChild(\"Base.tws\",P,W)", "W=W+1"});
        add("Failing", {"Input", "Double P", "Output", "Double W", "Calc", "W=P+", "W=1/P"});
    }

    void add(const std::string& name, const std::vector<std::string>& texts) const {
        write("Connection Standards/" + name + ".tws", column(texts));
    }
    program::Result call(std::vector<std::string> arguments, std::string_view input = {}) const {
        arguments.insert(arguments.begin(), {"--library", path().string(), "standards"});
        return program::run(arguments, input);
    }
};
