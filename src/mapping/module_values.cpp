#include "mapping/module_values.h"

#include "core_api/text/text_helpers.h"

MacroTabData* findTabOf(MacroData& macroData, const Vor_Module& module) {
    int index = 0;
    return macroData.findTab(module.key(), index) ? macroData.getTab(index) : nullptr;
}

ErrorStatus getSetDistance(const ModuleAccess& access, const Vor_String& name, Vor_String& value) {
    bool fixed = false;
    bool varies = false;
    if (!access.get && access.tab.getFlexFixBtnStatus(name, fixed, varies) && !(fixed && !varies))
        access.tab.flexFixBtnClicked(name, false);
    return getSetConstrVarValue(&access.module, name, value, access.get);
}

ErrorStatus getSetCutOffset(const ModuleAccess& access, const Vor_String& cutName,
                            TwCutOffsetType offset, Vor_String& value) {
    CutConstraint cut;
    if (getCutConstraint(&access.module, cutName, cut) != Acad::eOk) return Acad::eInvalidInput;
    double number = textToDouble(value);
    if (getSetCutValue(&access.module, cut, offset, number, access.get) != Acad::eOk)
        return Acad::eInvalidInput;
    if (access.get) value = Vor_String(number, 7);
    return Acad::eOk;
}

ErrorStatus getSetBoltField(const ModuleAccess& access, BoltField field, Vor_String& value) {
    MacroBoltData* bolts = access.tab.getBoltData();
    if (!bolts) return Acad::eInvalidInput;
    const bool isDiameter = field == BoltField::diameter;
    if (!access.get) return isDiameter ? bolts->setDiameter(value) : bolts->setHoleOffset(value);
    value = isDiameter ? bolts->diameter() : bolts->holeOffset();
    return Acad::eOk;
}

ErrorStatus getSetPatternCount(const ModuleAccess& access, const Vor_String& pattern, bool first,
                               Vor_String& value) {
    AcDbObjectId id;
    if (findPattern(asBoltModule(&access.module), pattern, id, access.transaction) != Acad::eOk)
        return Acad::eInvalidInput;
    return getSetNrBolts(&access.tab, pattern, value, access.get, first);
}

ErrorStatus getSetReverseStart(const ModuleAccess& access, const Vor_String& pattern, bool first,
                               Vor_String& value) {
    Vor_BoltModule* bolts = asBoltModule(&access.module);
    AcDbObjectId id;
    if (!bolts || findPattern(bolts, pattern, id, access.transaction) != Acad::eOk)
        return Acad::eInvalidInput;
    bool flag = value.equal("1");
    if (getSetBoltPatternReverses(bolts, id, first, access.get, flag, access.transaction) !=
        Acad::eOk)
        return Acad::eInvalidInput;
    if (access.get) value = flag ? "0" : "1";
    return Acad::eOk;
}

ErrorStatus getSetMemberName(const ModuleAccess& access, const Vor_String& group,
                             Vor_String& value) {
    MacroProfData properties;
    if (access.tab.getMergedPropsOfGroup(group, properties) != Acad::eOk)
        return Acad::eInvalidInput;
    if (access.get) {
        value = properties.memberName();
        return Acad::eOk;
    }
    if (properties.setMemberName(value) != Acad::eOk) return Acad::eInvalidInput;
    return access.tab.setMergedPropsOfGroup(group, properties);
}
