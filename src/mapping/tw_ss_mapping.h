// Where every input and output variable of a standards spreadsheet lives in the macro it serves:
// either a list of objects out of the spreadsheet's mapping file, under a key, or, for a module
// group, no list but a naming convention ("Plate.CutLength") tried on every module of the group.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "mapping/tw_object_map.h"
#include "mapping/tw_var_cell.h"
#include "platform/host/ac_array.h"
#include "platform/host/error_status.h"

class AcTransaction;
class TwDlgStandardsData;
class Vor_DbMacro;

class VORMANT_API TwSSMapping {
  public:
    enum class Mode { none = 0, moduleGroup = 1, mappingFile = 2 };

    TwSSMapping() = default;
    TwSSMapping(const TwSSMapping&) = default;
    TwSSMapping& operator=(const TwSSMapping&) = default;
    TwSSMapping(TwSSMapping&&) noexcept = default;
    TwSSMapping& operator=(TwSSMapping&&) noexcept = default;
    virtual ~TwSSMapping() = default;

    Mode mode() const { return m_mode; }
    const Vor_Array<TwObjectMap>& mappedObjects() const { return m_objects; }
    Vor_Array<TwObjectMap>& mappedObjectsWrite() { return m_objects; }

    /// Reads the mapping file of the data's standard. Needs a macro and an empty module name.
    ErrorStatus initFromMacro(TwDlgStandardsData& data);
    /// Fails for an empty group; the group is taken from the data on every access.
    ErrorStatus initFromModuleGroup(const Vor_String& group);

    /// The macro's value of the variable into `value`, and the way back.
    ErrorStatus getMacroVarValue(const Vor_String& name, const TwValueType& type, Vor_String& value,
                                 TwDlgStandardsData& data);
    /// On a module group every module is written, yet the result is a failure: there is no entry.
    ErrorStatus setMacroVarValue(const Vor_String& name, const TwValueType& type, Vor_String& value,
                                 TwDlgStandardsData& data);

    /// First entry that serves the variable, from 0. `index` is untouched on failure.
    ErrorStatus findSSVar(const Vor_String& name, const TwValueType& type, int& index) const;
    ErrorStatus findCompatible(const TwObjectMap& object, int& index) const;
    /// `missing` := how many of these entries `other` has no compatible one for.
    ErrorStatus isCompatible(const TwSSMapping& other, int& missing) const;
    /// Every entry here has its equal in `other`; what only `other` has does not matter.
    bool isEqual(const TwSSMapping& other) const;

    /// Indexes of the entries a variable of `type` can be mapped to. The flag is not used.
    ErrorStatus getValidVars(const bool& unused, const TwValueType& type,
                             AcArray<int>& indexes) const;
    /// Groups `indexes` by category in the given order, -1 before each group; categories that are
    /// not in `order` join the last group. Fails for an empty order.
    ErrorStatus sortValidVars(AcArray<int>& indexes, const AcArray<int>& order) const;
    /// Appends an entry for everything in the macro that can be mapped.
    ErrorStatus initAllVarsFromMacro(Vor_DbMacro* dbMacro, AcTransaction* transaction);

    /// The mapping stored under `key`. Fails for an unreadable file or an absent key; a file
    /// without lines succeeds and leaves the entries as they are.
    ErrorStatus getMappingFromFile(const Vor_String& standardsName, const Vor_String& key);
    /// The same from the lines of a file that was read.
    ErrorStatus getMappingFromLines(const Vor_StringArray& lines, const Vor_String& key);
    /// Stores the mapping under `key` unless an equal one is there. Entries whose variable is
    /// named twice or could not be a file name are dropped. On failure `message`, when asked for,
    /// says why.
    ErrorStatus setMappingToFile(const Vor_String& standardsName, const Vor_String& key,
                                 Vor_String* message = nullptr) const;
    /// From one line of a mapping file. Fails, with no entries, for a line without "=".
    ErrorStatus initMappingFromLine(const Vor_String& line);
    /// The first key of the file under which an equal mapping is stored.
    bool hasSameMapping(const Vor_String& standardsName, Vor_String& key) const;

  private:
    Mode m_mode = Mode::none;
    Vor_Array<TwObjectMap> m_objects;
};
