// What a sheet in the spreadsheet editor carries along: fonts, page header and footer files,
// margins, print switches and the variables that headers and footers show. They travel in the tag
// of the sheet's corner cell and start from a settings file (".twd") in the add-on's folder.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "spread/tw_prop_list.h"

class Vor_Spread;

class VORMANT_API TwSheetSettings {
  public:
    bool loaded = false;  ///< read from somewhere; only then written to a sheet
    Vor_String headerFile;
    Vor_String footerFile;
    Vor_String defaultFont = "Tahoma";
    int defaultTextHeight = 13;  ///< pixels
    int marginLeft = 9;          ///< millimetres, as all margins
    int marginRight = 5;
    int marginTop = 5;
    int marginBottom = 5;
    bool smartPrint = true;  ///< a sheet that is a little too wide is made to fit
    bool colors = true;
    bool colHeader = true;
    bool rowHeader = true;
    bool cellSeperators = true;
    bool border = true;
    Vor_StringArray varNames;
    Vor_StringArray varValues;

    /// Starts from the defaults, then reads `name`.twd in the add-on's folder; header and footer
    /// files may be named by what they are called beside it. False when there is no such file: the
    /// defaults stay, marked as loaded.
    bool readFromFile(const Vor_String& name);
    /// Starts from the defaults, then reads the sheet's corner tag.
    bool readFromSheet(const Vor_Spread& sheet);
    /// False, with nothing written, unless loaded.
    bool writeToSheet(Vor_Spread& sheet) const;
    /// As a settings file that readFromFile reads; false, with why in `error`, when it cannot be
    /// written.
    bool writeToFile(const Vor_String& name, std::string& error) const;

    /// Fields keep their values for missing keys.
    void fromList(const TwPropList& list);
    TwPropList toList() const;

    bool operator==(const TwSheetSettings&) const = default;
};

/// What the installation says about the editor: registry key "Software\Tarnwick\Spreadsheet
/// Editor v1.0" of the machine.
class VORMANT_API TwEditorRegistry {
  public:
    static constexpr const char* key = "Software\\Tarnwick\\Spreadsheet Editor v1.0";

    Vor_String language = "EN";
    Vor_String defaultSettings;

    /// True only when both values were there; a missing one leaves what was here.
    bool read();
};
