// One control of a dialog that users design: its kind, its place on the background picture, and
// what it shows or stands for. A plain value; live controls are made from it elsewhere.
#pragma once

#include "core_api/property_list.h"
#include "core_api/text/vor_string_array.h"

/// What a control is, and what its contents name. The numbers are those of the template files.
enum Vor_ControlType {
    ctLabel = 0,
    ctGroupFrame,
    ctVarEdit,
    ctVarCombo,
    ctBoltCount1,
    ctBoltCount2,
    ctPatternButton,
    ctPatternProp1,
    ctPatternProp2,
    ctPatternProp3,
    ctPatternProp4,
    ctPatternProp5,
    ctPatternAdvanced,
    ctProfName,
    ctProfButton,
    ctProfOffset,
    ctProfRotation,
    ctProfAdvanced,
    ctArrayField1,
    ctArrayField2,
    ctArrayField3,
    ctArrayField4,
    ctArrayField5,
    ctArrayEntry,
    ctArrayAdvanced,
    ctValueButton,
    ctValueButtonRef,
    ctDrawingCombo,
    ctCutType,
    ctVarCheck,
    ctFlexFixButton,
};
inline constexpr int controlTypes = 31;

class VORMANT_API Vor_DesignerControl {
  public:
    Vor_DesignerControl() = default;
    Vor_DesignerControl(const Vor_DesignerControl&) = default;
    Vor_DesignerControl& operator=(const Vor_DesignerControl&) = default;
    virtual ~Vor_DesignerControl() = default;

    /// The properties of record `i` (from 0) of a template. A missing one leaves its field.
    void getFromPropList(const Vor_PropertyList& properties, const int& i);
    void setToPropList(Vor_PropertyList& properties, const int& i) const;

    /// The extension texts as one, separated by ";": four of a flex/fix button, five of a value
    /// button, else comboList as it is.
    Vor_String getMergedExtComboList() const;
    /// The way back, by the present type; parts too many are dropped. Always true.
    bool setSplitExtComboList(const Vor_String& text);
    /// The lines of the file that comboList names; `items` stays when there is none.
    void getComboItemsFromFile(Vor_StringArray& items) const;

    int type = ctLabel;
    bool readOnly = false;
    int resourceId = 0;  ///< of the live control; 0 is none
    int tabOrder = 0;    ///< from 1; 0 is none
    /// Fractions of the picture's width and height.
    double topLeftX = 0;
    double topLeftY = 0;
    double bottomRightX = 0;
    double bottomRightY = 0;
    Vor_String contents;
    Vor_String comboList;
    Vor_String flexGroup, flexPart2, flexPart3, flexPart4;
    Vor_String extPart1, extPart2, extPart3, extPart4;
    Vor_StringArray comboItems;  ///< of a live combo box; not stored
};
