#include "core_api/macros/vor_db_macro.h"

#include "core_api/macros/macro_limits.h"

const Vor_PrPl* Vor_DbMacro::baseProf(int index) const {
    return m_baseProfs.isIndex(index) ? &m_baseProfs[index] : nullptr;
}

ErrorStatus Vor_DbMacro::addBaseProf(const Vor_PrPl& profile) {
    if (m_baseProfs.length() >= maxMacroItems || !arePlacementTextsGood(profile)) {
        return Acad::eInvalidInput;
    }
    m_baseProfs.append(profile);
    m_baseProfIds.append(AcDbObjectId(m_baseProfs.length()));
    return Acad::eOk;
}

ErrorStatus Vor_DbMacro::setBaseProf(int index, const Vor_PrPl& profile) {
    if (!m_baseProfs.isIndex(index) || !arePlacementTextsGood(profile)) return Acad::eInvalidInput;
    m_baseProfs[index] = profile;
    return Acad::eOk;
}

ErrorStatus getBaseProf(const Vor_DbMacro* macro, int index, const Vor_PrPl*& profile) {
    const Vor_PrPl* found = macro ? macro->baseProf(index) : nullptr;
    if (!found) return Acad::eInvalidInput;
    profile = found;
    return Acad::eOk;
}
