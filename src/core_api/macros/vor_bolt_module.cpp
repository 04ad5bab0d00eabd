#include "core_api/macros/vor_bolt_module.h"

#include "core_api/macros/named_items.h"

namespace {

bool isBoltCount(int count) {
    return count >= 0 && count <= maxBoltCount;
}

bool isPatternGood(const Vor_BoltPattern& pattern) {
    if (!isBoltCount(pattern.nrBolts1) || !isBoltCount(pattern.nrBolts2)) return false;
    return pattern.hasSecondDirection() || (pattern.nrBolts2 == 0 && !pattern.reverseStart2);
}

}  // namespace

std::unique_ptr<Vor_Module> Vor_BoltModule::clone() const {
    return std::make_unique<Vor_BoltModule>(*this);
}

ErrorStatus Vor_BoltModule::setBoltDiameter(double diameter) {
    if (!isMacroNumber(diameter) || diameter <= 0) return Acad::eInvalidInput;
    m_boltDiameter = diameter;
    return Acad::eOk;
}

ErrorStatus Vor_BoltModule::setHoleOffset(double offset) {
    if (!isMacroNumber(offset) || offset < 0) return Acad::eInvalidInput;
    m_holeOffset = offset;
    return Acad::eOk;
}

AcArray<AcDbObjectId> Vor_BoltModule::getPatternIds() const {
    AcArray<AcDbObjectId> ids;
    for (const Vor_BoltPattern& pattern : m_patterns) ids.append(pattern.id);
    return ids;
}

const Vor_BoltPattern* Vor_BoltModule::getPattern(AcDbObjectId id) const {
    for (const Vor_BoltPattern& pattern : m_patterns) {
        if (pattern.id == id) return &pattern;
    }
    return nullptr;
}

const Vor_BoltPattern* Vor_BoltModule::findPattern(std::string_view name) const {
    return findNamed(m_patterns, name);
}

ErrorStatus Vor_BoltModule::addPattern(const Vor_BoltPattern& pattern) {
    if (!isFreeName(m_patterns, pattern.name) || !isPatternGood(pattern)) {
        return Acad::eInvalidInput;
    }
    Vor_BoltPattern added = pattern;
    added.id = AcDbObjectId(m_patterns.length() + 1);
    m_patterns.append(std::move(added));
    return Acad::eOk;
}

/// Null when there is no such pattern or it lacks the direction.
Vor_BoltPattern* Vor_BoltModule::patternOf(AcDbObjectId id, bool first) {
    for (Vor_BoltPattern& pattern : m_patterns) {
        if (pattern.id == id) return first || pattern.hasSecondDirection() ? &pattern : nullptr;
    }
    return nullptr;
}

ErrorStatus Vor_BoltModule::setNrBolts(AcDbObjectId id, bool first, int count) {
    Vor_BoltPattern* pattern = patternOf(id, first);
    if (!pattern || !isBoltCount(count)) return Acad::eInvalidInput;
    (first ? pattern->nrBolts1 : pattern->nrBolts2) = count;
    return Acad::eOk;
}

ErrorStatus Vor_BoltModule::setReverseStart(AcDbObjectId id, bool first, bool reverse) {
    Vor_BoltPattern* pattern = patternOf(id, first);
    if (!pattern) return Acad::eInvalidInput;
    (first ? pattern->reverseStart1 : pattern->reverseStart2) = reverse;
    return Acad::eOk;
}

bool Vor_BoltModule::hasSameContent(const Vor_Module& other) const {
    const Vor_BoltModule* bolts = asBoltModule(&other);
    return bolts && m_boltDiameter == bolts->m_boltDiameter &&
           m_holeOffset == bolts->m_holeOffset && m_patterns == bolts->m_patterns;
}

Vor_BoltModule* asBoltModule(Vor_Module* module) {
    const bool isOne = module && module->type() == Vor_ModuleType::bolt;
    return isOne ? static_cast<Vor_BoltModule*>(module) : nullptr;
}

const Vor_BoltModule* asBoltModule(const Vor_Module* module) {
    const bool isOne = module && module->type() == Vor_ModuleType::bolt;
    return isOne ? static_cast<const Vor_BoltModule*>(module) : nullptr;
}
