#include "core_api/macros/macro_bolt_data.h"

#include "core_api/macros/macro_limits.h"

namespace {

constexpr int textDecimals = 8;

Vor_String numberText(double number) {
    return Vor_String(number, textDecimals);
}

}  // namespace

Vor_String MacroBoltData::diameter() const {
    return numberText(m_diameter.value());
}

Vor_String MacroBoltData::holeOffset() const {
    return numberText(m_holeOffset.value());
}

ErrorStatus MacroBoltData::setDiameter(std::string_view text) {
    const std::optional<double> number = macroNumber(text);
    if (!number || *number <= 0) return Acad::eInvalidInput;
    m_diameter.set(*number);
    return Acad::eOk;
}

ErrorStatus MacroBoltData::setHoleOffset(std::string_view text) {
    const std::optional<double> number = macroNumber(text);
    if (!number || *number < 0) return Acad::eInvalidInput;
    m_holeOffset.set(*number);
    return Acad::eOk;
}

void MacroBoltData::merge(const Vor_BoltModule& module) {
    m_diameter.merge(module.boltDiameter());
    m_holeOffset.merge(module.holeOffset());
}

ErrorStatus MacroBoltData::applyTo(Vor_BoltModule& module) const {
    ErrorStatus status = Acad::eOk;
    if (!m_diameter.varies()) status = module.setBoltDiameter(m_diameter.value());
    if (status == Acad::eOk && !m_holeOffset.varies()) {
        status = module.setHoleOffset(m_holeOffset.value());
    }
    return status;
}

ErrorStatus MacroPatternProps::setNrBolts(bool first, int count) {
    if (!first && !m_hasSecondDirection) return Acad::eInvalidInput;
    if (count < 0 || count > maxBoltCount) return Acad::eInvalidInput;
    (first ? m_count1 : m_count2).set(count);
    return Acad::eOk;
}

void MacroPatternProps::merge(const Vor_BoltPattern& pattern) {
    m_count1.merge(pattern.nrBolts1);
    if (!pattern.hasSecondDirection()) return;
    m_hasSecondDirection = true;
    m_count2.merge(pattern.nrBolts2);
}

ErrorStatus MacroPatternProps::applyTo(Vor_BoltModule& module) const {
    const Vor_BoltPattern* pattern = module.findPattern(name);
    if (!pattern) return Acad::eOk;
    ErrorStatus status = Acad::eOk;
    if (!m_count1.varies()) status = module.setNrBolts(pattern->id, true, m_count1.value());
    if (status == Acad::eOk && pattern->hasSecondDirection() && !m_count2.varies()) {
        status = module.setNrBolts(pattern->id, false, m_count2.value());
    }
    return status;
}
