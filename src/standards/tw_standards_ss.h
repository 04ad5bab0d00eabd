// A loaded standards spreadsheet: the sheet, its variables, and the evaluation of its equations.
// One run goes: loadFile, initVarCells, values into the variables and their cells, replaceGenVars,
// calcCells, outputs read back. The object is used again and again; loading starts afresh.
#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "mapping/tw_var_cells.h"
#include "spread/vor_spread.h"

class PreparedStandard;
struct PreparedEquation;

class TwStandardsSS : public Vor_Spread {
  public:
    TwStandardsSS();
    ~TwStandardsSS() override;

    /// `name` is a file, or a name in the standards folder without extension. On failure nothing
    /// changes and lastRunFailure() (run_observer.h) says why.
    ErrorStatus loadFile(const Vor_String& name);
    /// Full path of what was loaded last.
    const Vor_String& filePath() const { return m_filePath; }

    /// The declared variables, namesakes too, in declaration order. Fails without the "Input" or
    /// "Output" marker.
    ErrorStatus initVarCells();
    const TwVarCells& varCells() const { return m_varCells; }
    /// For their values; which there are and in which order is the sheet's business.
    TwVarCells& varCells() { return m_varCells; }

    void setGenVars(const Vor_StringArray& names, const Vor_StringArray& values);
    /// Every variable's value into its cell; stops at the first that refuses its value.
    ErrorStatus writeVariables();
    /// The same of one.
    ErrorStatus writeVariable(int index);
    /// Replaces the gen names in every cell by their values, texts in quotes.
    void replaceGenVars();

    /// Whether equation cells hold their formulas and results after calcCells, as a sheet that is
    /// shown must. A hidden one is calculated faster without; variables are the same.
    void setFillsEquationCells(bool fills) { m_fillsEquationCells = fills; }
    /// Evaluates every equation, by rows and from the left. One that fails is reported and passed
    /// over. Fails without the "Calc" marker.
    ErrorStatus calcCells();
    /// Evaluates one cell as it is now.
    ErrorStatus calcCell(int column, int row);
    /// The reference of the variable's cell: "B5". `coordinate` is untouched on failure.
    ErrorStatus getVarCoordName(const Vor_String& name, Vor_String& coordinate) const;

    /// Runs the standard that `text` calls on the variables it names. `functionName` is the native
    /// function found in it.
    ErrorStatus callChild(const Vor_String& text, const Vor_String& functionName);
    /// Where a child's file lies: as named, beside this standard, in the standards folder or those
    /// below it; the name itself when nowhere.
    Vor_String findChildFile(const Vor_String& name) const;

    /// Makes the functions of standards known to formulas; calcCells does so by itself.
    void registerFunctions();
    /// What is known about the document since initVarCells; null before.
    PreparedStandard* prepared() { return m_prepared.get(); }
    /// Takes second and later declarations of a name out of the variables, with a message.
    void dropDuplicates();

    /// The cell of the equation or child call that gave variable `index` its value in the last
    /// calculation; row 0 when none did.
    control::CellAddress assignedIn(int index) const;

  private:
    struct Turn;  // one equation cell's turn
    /// Where a variable's new values go straight into its cell.
    struct ValuePlace {
        control::Cell* cell = nullptr;  ///< null when they take the usual way
        const control::CellType* type = nullptr;
        bool isOnlyInCell = false;  ///< a value that the variable itself has not got yet
        /// What was given last as text, and the number that the cell took for it.
        Vor_String given;
        std::optional<double> givenNumber;
    };

    void findValuePlaces();
    bool writeAtOnce(const TwVarCell& variable, ValuePlace& place);
    void fetchValues();
    void fetchValue(int index);
    bool goesOnWith(const Vor_String& path) const;
    void noteReadiness(const PreparedStandard& prepared);
    void startAfresh();
    void evaluateAll(PreparedStandard& prepared);
    const formula::Value* hiddenResult(const PreparedEquation& equation);
    ErrorStatus evaluate(const PreparedStandard& prepared, const PreparedEquation& equation,
                         const formula::Value* result);
    ErrorStatus assign(Turn& turn);
    bool takeAtOnce(const PreparedEquation& equation, const formula::Value& result);
    bool takeNumber(const PreparedEquation& equation, const formula::Value& result);
    bool takeText(const PreparedEquation& equation, const formula::Value& result);
    void setEquationType(const PreparedEquation& equation);
    std::vector<Vor_String> childCandidates(const Vor_String& name) const;
    std::optional<Vor_String> searchChildFile(const Vor_String& name) const;
    ErrorStatus runChild(const Vor_String& text, const Vor_String& functionName,
                         control::CellAddress caller, Vor_String& reason);
    ErrorStatus takeResults(const TwVarCells& results, control::CellAddress caller,
                            Vor_String& reason);

    Vor_String m_filePath;
    TwVarCells m_varCells;
    Vor_StringArray m_genNames;
    Vor_StringArray m_genValues;
    std::shared_ptr<PreparedStandard> m_prepared;
    std::vector<control::CellAddress> m_assignedIn;  // by variable
    std::vector<ValuePlace> m_valuePlaces;           // by variable, in hidden runs
    /// How many cells the grid had changed when a hidden run left it with nothing but values in
    /// the cells of the variables, so that the next run need not start from the document.
    std::optional<size_t> m_readyWith;
    bool m_goesOn = false;  // this run began so
    bool m_knowsFunctions = false;
    bool m_fillsEquationCells = true;
    bool m_fillsNow = true;  // in the calculation under way
};
