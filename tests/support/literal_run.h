// A standards run on values, read literally: slow, simple, and without anything prepared or left
// out. Names are replaced one after another in the text of each equation, and everything goes
// through the cells of a sheet. What the engine gives is compared with this.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core_api/files.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "mapping/mapping_file.h"
#include "mapping/tw_var_cell.h"
#include "spread/control/formula/value.h"
#include "spread/vor_spread.h"
#include "standards/standards_functions.h"

struct LiteralVariable {
    Vor_String name;
    TwCellType kind = TwCellType::input;
    TwValueType type = TwValueType::Double;
    Vor_String value;
    int column = 0;
    int row = 0;
};

/// The generator's names for gen values, replaced before a run.
struct GenValues {
    Vor_StringArray names, values;
};

class LiteralRun : public Vor_Spread {
  public:
    /// `told` gets the text of every message box of this run and its children.
    LiteralRun(const GenValues& gen, std::vector<std::string>& told,
               const LiteralRun* caller = nullptr)
        : m_gen(gen), m_messages(told), m_caller(caller) {
        attachHidden();
        for (const StandardsFunctionRow& row : standardsFunctions())
            addCustomFunction(row.name, row.least, row.most, row.callback, 0);
    }

    /// Runs the file on `given`, inputs and outputs by position; false when the run fails.
    bool start(const Vor_String& path, std::vector<LiteralVariable>& given) {
        setBool(7, false);
        m_path = path;
        if (!loadFromFile(path)) return false;
        declare();
        size_t position = 0;
        for (LiteralVariable& variable : variables) {
            if (variable.kind != TwCellType::local) {
                const size_t at = position++;
                if (at >= given.size()) return false;
                if (variable.kind == TwCellType::output && given[at].kind == TwCellType::input)
                    return false;
                variable.value = given[at].value;
            }
            if (!write(variable)) return false;
        }
        replaceInAllCells();
        if (!calculate()) return false;
        position = 0;
        for (const LiteralVariable& variable : variables) {
            if (variable.kind == TwCellType::local) continue;
            const size_t at = position++;
            if (variable.kind == TwCellType::output) given[at].value = variable.value;
        }
        return true;
    }

    std::vector<LiteralVariable> variables;

  private:
    static bool isWord(char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
               c == '_';
    }

    static bool replace(Vor_String& text, const Vor_String& name, const Vor_String& value) {
        bool replaced = false;
        int at = name.isEmpty() ? -1 : text.findFirstFrom(name, 0);
        while (at >= 0) {
            const int end = at + name.length();
            const bool touches =
                (at > 0 && isWord(text[at - 1])) || (end < text.length() && isWord(text[end]));
            if (!touches) {
                text = text.getSubStringAt(0, at) + value +
                       text.getSubStringAt(end, text.length() - end);
                replaced = true;
            }
            at = text.findFirstFrom(name, touches ? end : at + value.length());
        }
        return replaced;
    }

    Vor_String read(int column, int row) const {
        Vor_String text;
        getCellText(column, row, text, Reading::value);
        return text;
    }

    int markerRow(const char* word) const {
        int column = 0;
        int row = 0;
        return findNext(word, false, 1, 1, column, row) ? row : 0;
    }

    void declare() {
        const int rows[] = {markerRow("Input"), markerRow("Output"), markerRow("Local"),
                            markerRow("Calc")};
        if (rows[0] == 0 || rows[1] == 0) return;
        for (int section = 0; section < 3; ++section) {
            if (rows[section] == 0) continue;
            int last = nrRows();
            for (const int other : rows)
                if (other > rows[section]) last = std::min(last, other);
            for (int row = rows[section] + 1; row <= last; ++row)
                for (int column = 1; column <= nrCols(); ++column)
                    declareCell(column, row, static_cast<TwCellType>(section));
        }
    }

    void declareCell(int column, int row, TwCellType kind) {
        const Vor_String text = stripSymbols(read(column, row), ' ', true, false);
        const char* words[] = {"Int", "Double", "String"};
        for (int type = 0; type < 3; ++type) {
            if (!text.beginsWith(words[type])) continue;
            variables.push_back({getSubstrAfter(text, " "), kind, static_cast<TwValueType>(type),
                                 Vor_String(), column, row});
            return;
        }
    }

    static bool isError(const Vor_String& text) {
        return text.beginsWith("#") && formula::errorFromText(text).has_value();
    }

    bool write(const LiteralVariable& variable) {
        const int column = variable.column;
        const int row = variable.row;
        if (variable.type == TwValueType::String) {
            if (isError(variable.value)) {
                // A text cell would take its letters; a number cell takes the error.
                return setNumberCell(column, row, 0) && setValue(column, row, variable.value) &&
                       setTextCell(column, row, 9999, 0);
            }
            return setTextCell(column, row, 9999, 0) && setValue(column, row, variable.value);
        }
        return setNumberCell(column, row, variable.type == TwValueType::Int ? 0 : 7) &&
               setValue(column, row, variable.value);
    }

    void replaceInAllCells() {
        const int count = std::min(m_gen.names.length(), m_gen.values.length());
        for (int column = 1; column <= nrCols(); ++column) {
            for (int row = 1; row <= nrRows(); ++row) {
                Vor_String text = read(column, row);
                bool replaced = false;
                for (int i = 0; i < count; ++i) {
                    const Vor_String& value = m_gen.values[i];
                    replaced |= replace(text, m_gen.names[i],
                                        isNumber(value) ? value : "\"" + value + "\"");
                }
                if (replaced) setData(column, row, text);
            }
        }
    }

    LiteralVariable* find(const Vor_String& name) {
        for (LiteralVariable& variable : variables)
            if (variable.name.equal(name)) return &variable;
        return nullptr;
    }

    void dropDuplicates() {
        Vor_StringArray names;
        for (const LiteralVariable& variable : variables) names.append(variable.name);
        if (!hasDuplicates(names)) return;
        m_messages.push_back("There were duplicate variable names found in the standards file " +
                             m_path.str() +
                             ".\nThe duplicates will be ignored. Please correct this file.\n"
                             "Duplicate variable names:\n\n" +
                             arrToStr(getDuplicates(names), "\n").str());
        const Vor_Array<int> indexes = getDuplicateIndexes(names);
        for (int i = indexes.length() - 1; i >= 0; --i)
            variables.erase(variables.begin() + indexes[i]);
    }

    bool calculate() {
        dropDuplicates();
        const int marker = markerRow("Calc");
        if (marker == 0) return false;
        for (int row = marker + 1; row <= nrRows(); ++row)
            for (int column = 1; column <= nrCols(); ++column) calculateCell(column, row);
        return true;
    }

    void fail(int row, const Vor_String& name, const Vor_String& expression) {
        m_messages.push_back(
            "The following equation failed:\n" +
            (name.isEmpty() ? std::string() : name.str() + " = ") + expression.str() +
            "\nSpreadsheet : " + m_path.str() + " (line: " + std::to_string(row) +
            ")\nHere's a tip for finding the cause :\nIf this equation contains "
            "variable names, then the translator does not know the value of the "
            "variable. Make sure the variable exists either in input, output, local "
            "declarations or among the gen_ variables.");
    }

    void calculateCell(int column, int row) {
        const Vor_String whole = read(column, row);
        if (whole.isEmpty()) return;
        Vor_String name;
        Vor_String text = whole;
        const bool hasSymbol = splitStringAtSymbol(whole, '=', name, text, true);
        LiteralVariable* target = hasSymbol ? find(name) : nullptr;
        Vor_String function;
        if (hasASubstr(text, {"CallChild"}, function)) {
            if (!callChild(text, function)) fail(row, name, text);
            return;
        }
        const Vor_String expression = text;
        if (!target) return fail(row, name, expression);
        if (target->type == TwValueType::String)
            setTextCell(column, row, 200, 0x110000U);
        else
            setNumberCell(column, row, 7);
        for (const LiteralVariable& variable : variables) {
            const LiteralVariable& first = *find(variable.name);
            replace(text, variable.name, getAlfabet(first.column) + std::to_string(first.row));
        }
        const int style = grid().referenceStyle();
        setRefStyle(0);  // equations are written in A1
        const bool isTaken = !text.isEmpty() && setFormula(column, row, text);
        setRefStyle(style);
        if (!isTaken) return fail(row, name, expression);
        target->value = read(column, row);
        write(*target);
    }

    Vor_String childFile(const Vor_String& name) const {
        const Vor_String standards = standardsFolder();
        for (const Vor_String& path : {name, getPath(m_path) + ensureNoStartBSlash(name),
                                       standards + name, standards + "Childs\\" + name,
                                       standards + "Data\\" + name, standards + "Parents\\" + name})
            if (ObjectExportFileExists(path)) return path;
        return name;
    }

    static std::string plainPath(const Vor_String& path) {
        std::string text = path.str();
        for (char& c : text) c = c == '\\' ? '/' : c;
        return std::filesystem::path(text).lexically_normal().string();
    }

    bool isRunning(const Vor_String& path) const {
        for (const LiteralRun* run = this; run; run = run->m_caller)
            if (Vor_String(plainPath(path)).equal(plainPath(run->m_path))) return true;
        return false;
    }

    bool callChild(const Vor_String& text, const Vor_String& function) {
        const int name = text.findFirstFrom(function, 0);
        const int open = text.findFirstFrom("(", name + function.length());
        const int close = open < 0 ? -1 : text.findFirstFrom(")", open);
        if (close < 0) return false;
        Vor_StringArray arguments =
            splitStringAtSymbol(text.getSubStringAt(open + 1, close - open - 1), ',', true);
        if (arguments.length() < 2) return false;
        Vor_String file = arguments[0];
        if (file.beginsWith("\"")) file.removeAt(0);
        if (file.endsWith("\"")) file.removeAt(file.length() - 1);
        file = childFile(file);
        if (!ObjectExportFileExists(file)) return false;
        std::vector<LiteralVariable> bound;
        for (int i = 1; i < arguments.length(); ++i) {
            const LiteralVariable* variable = find(arguments[i]);
            if (!variable) return false;
            bound.push_back(*variable);
        }
        if (isRunning(file)) return false;
        if (!LiteralRun(m_gen, m_messages, this).start(file, bound)) return false;
        for (const LiteralVariable& result : bound) {
            LiteralVariable* variable = find(result.name);
            if (result.kind != TwCellType::output || !variable) continue;
            variable->value = result.value;
            if (!write(*variable)) return false;
        }
        return true;
    }

    const GenValues& m_gen;
    std::vector<std::string>& m_messages;
    const LiteralRun* m_caller;
    Vor_String m_path;
};
