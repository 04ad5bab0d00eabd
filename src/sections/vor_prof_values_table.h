// One section values table in memory: its name, how its sections are drawn, the header and the
// sizes. It is read from and written to its ".pr" file, shown in a sheet and taken back from it,
// and handed to the registry of section tables. All cells are text; rows count from 0, the header
// is none of them. A full system name is the table's name, "-", and the system name of a row.
//
// Nothing here prints: a bad index shows in the result alone, and what is wrong with a file is told
// to callers who ask for the message.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "platform/host/ac_array.h"
#include "platform/host/error_status.h"

class Vor_SectionTableManager;
class Vor_Spread;

class VORMANT_API Vor_ProfValuesTable {
  public:
    virtual ~Vor_ProfValuesTable() = default;

    /// The base name of the file, without folder and ".pr".
    Vor_String tableName;
    /// The number of a section type ("1" to "24"), or a drawn template ending in ".dwg".
    Vor_String drawnAs;
    /// "SysName", "I/O", the names of the languages, then the value columns.
    Vor_StringArray columnNames;
    /// A size each, its cells in the order of the header: system name, active flag ("1", or "0" for
    /// a size that is kept but not offered), a user name in each language, values. May be short.
    Vor_Array<Vor_StringArray> rows;

    static constexpr int systemNameColumn = 0;
    static constexpr int activeColumn = 1;
    static constexpr int firstNameColumn = 2;

    // --- cells ------------------------------------------------------------------------------
    bool getRow(const int& idx, Vor_StringArray& row) const;
    /// Cell `col` of every row, the empty text where a row is shorter. False, with `out` as it was,
    /// when there are no rows or the first one has no such cell.
    bool getColumn(Vor_StringArray& out, const int& col) const;
    bool getColumn(Vor_StringArray& out, const Vor_String& name) const;
    /// Letter case aside; -1 when there is none.
    int getColumnIdx(const Vor_String& name) const;
    /// 5 when the header says that the fifth language is Korean, else 4.
    int getNrLanguages() const;
    int firstValueColumn() const { return firstNameColumn + getNrLanguages(); }

    // --- names ------------------------------------------------------------------------------
    /// Full system names; of all rows, or of those that are not inactive. None at all when the rows
    /// have no active flag.
    void getSysNames(Vor_StringArray& out) const;
    void getFilteredSysNames(Vor_StringArray& out) const;
    /// The first row of this system name (without the table's), letter case aside. False, with
    /// `idx` as it was, when there is none.
    bool findSysName(const Vor_String& systemName, int& idx) const;
    /// `candidate`, or a name made from it that no row has.
    Vor_String findUnusedSysName(const Vor_String& candidate) const;
    /// `idx` less the rows before it that are not active: its place in a list of active sizes. -1
    /// when `idx` is out of range.
    int getfilteredIdx(const int& idx) const;

    // --- changes ----------------------------------------------------------------------------
    bool deleteRow(const int& idx);
    /// Puts a copy of row `idx` after it, with a system name of its own; its user name in the
    /// working language is made from that. Row -1 is an empty one. False, with nothing changed, for
    /// the last row and beyond.
    bool insertRow(const int& idx);
    /// As above; then row `idx` (not its copy) gets the names. What succeeded before a failure
    /// stays done.
    ErrorStatus insertRow(const int& idx, const Vor_String& systemName, const Vor_String& userName);
    ErrorStatus setSysName(const int& idx, const Vor_String& name);
    /// In every language. eInvalidInput when the row lacks a cell for one.
    ErrorStatus setUserNames(const int& idx, const Vor_String& name);
    /// With one decimal at most. eInvalidInput unless there is a value for every value cell.
    ErrorStatus setValues(const int& idx, const AcArray<double>& values);
    void removeInactiveEntries();

    // --- files, sheets, the registry --------------------------------------------------------
    /// The file of a table: `name`, with or without ".pr", in the "prof\" folder of the library.
    static Vor_String filePath(const Vor_String& name);
    /// False when the file cannot be read, with `message` ("file:line: what is wrong; what to do")
    /// and the table as it was. A file that lacks the two records before the sizes is no failure:
    /// its records become the rows, drawnAs and columnNames stay.
    bool readFromFile(const Vor_String& name, Vor_String* message = nullptr);
    bool readFromPath(const Vor_String& path, Vor_String* message = nullptr);
    /// All or nothing: a failure leaves the old file.
    bool writeToFile(const Vor_String& name, Vor_String* message = nullptr) const;
    bool writeToPath(const Vor_String& path, Vor_String* message = nullptr) const;

    /// False, with the sheet empty, when the table has no rows.
    bool setToSS(Vor_Spread& sheet) const;
    /// Takes name, header and rows back; drawnAs is not in the sheet. False, with the table as it
    /// was, for a sheet without rows or columns.
    bool getFromSS(Vor_Spread& sheet);
    /// Registers the table in place of the one that has its name, inactive sizes included.
    ErrorStatus setToGlobals(Vor_SectionTableManager* manager) const;

  private:
    bool hasFlag(int row, std::string_view flag) const;
    Vor_String seriesOf(const Vor_StringArray& row, int nameColumn) const;
};
