#include "core_api/macros/vor_prpl.h"

#include "core_api/macros/macro_limits.h"

namespace {

ErrorStatus readText(const Vor_PrPl* profile, Vor_String Vor_PrPl::*field, Vor_String& value,
                     const AcTransaction* transaction) {
    if (!profile || (transaction && !transaction->isActive())) return Acad::eInvalidInput;
    if ((profile->*field).isEmpty()) return Acad::eInvalidInput;
    value = profile->*field;
    return Acad::eOk;
}

}  // namespace

bool arePlacementTextsGood(const Vor_PrPl& placement) {
    return isMacroText(placement.sectionName) && isMacroText(placement.material) &&
           isMacroText(placement.memberName);
}

ErrorStatus getSectionName(const Vor_PrPl* profile, Vor_String& value, AcTransaction* transaction) {
    return readText(profile, &Vor_PrPl::sectionName, value, transaction);
}

ErrorStatus getMaterial(const Vor_PrPl* profile, Vor_String& value, AcTransaction* transaction) {
    return readText(profile, &Vor_PrPl::material, value, transaction);
}
