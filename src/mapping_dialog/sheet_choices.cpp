#include "mapping_dialog/sheet_choices.h"

#include "core_api/text/text_helpers.h"

namespace {

/// What `stored` has for a variable. An object of another type than the variable's is one that no
/// run will find, yet somebody chose it: it is shown rather than dropped.
const TwObjectMap* storedFor(const TwSSMapping& stored, const VariableChoice& variable) {
    int index = 0;
    if (stored.findSSVar(variable.name, variable.type, index) == Acad::eOk)
        return &stored.mappedObjects()[index];
    for (const TwObjectMap& object : stored.mappedObjects())
        if (object.spreadsheetVariable().equal(variable.name)) return &object;
    return nullptr;
}

}  // namespace

bool VariableChoice::canBeMapped() const {
    constexpr std::string_view separators = "\x83\x95\xBF";
    return !hasInvalidFileNameChars(name) &&
           name.view().find_first_of(separators) == std::string_view::npos;
}

bool VariableChoice::isOfOtherType() const {
    return object && mapTypeValueType(object->kind()) != type;
}

SheetChoices::SheetChoices(const TwVarCells& declared, const TwSSMapping& stored,
                           const TwSSMapping& all) {
    add(declared, TwCellType::input, stored, all);
    add(declared, TwCellType::output, stored, all);
}

void SheetChoices::add(const TwVarCells& declared, TwCellType cellType, const TwSSMapping& stored,
                       const TwSSMapping& all) {
    for (const TwVarCell& cell : declared) {
        if (cell.cellType() != cellType) continue;
        VariableChoice variable;
        variable.name = cell.name();
        variable.type = cell.valueType();
        variable.isInput = cell.isInput();
        int index = 0;
        if (const TwObjectMap* object = storedFor(stored, variable)) {
            variable.object = *object;
            variable.isMissing = all.findCompatible(*object, index) != Acad::eOk;
        }
        m_variables.push_back(std::move(variable));
    }
}

const VariableChoice* SheetChoices::find(const Vor_String& name) const {
    for (const VariableChoice& variable : m_variables)
        if (variable.name.equal(name)) return &variable;
    return nullptr;
}

void SheetChoices::choose(size_t index, const TwObjectMap* object) {
    VariableChoice& variable = m_variables[index];
    variable.isMissing = false;
    variable.object.reset();
    if (object)
        variable.object.emplace(object->group(), object->kind(), object->objectName(),
                                variable.name);
}

TwSSMapping SheetChoices::mapping() const {
    TwSSMapping mapping;
    for (const VariableChoice& variable : m_variables)
        if (variable.object && variable.canBeMapped())
            mapping.mappedObjectsWrite().append(*variable.object);
    return mapping;
}

bool SheetChoices::isStoredAs(const TwSSMapping& stored) const {
    for (const VariableChoice& variable : m_variables) {
        if (!variable.canBeMapped()) continue;
        const TwObjectMap* before = storedFor(stored, variable);
        if (static_cast<bool>(before) != variable.object.has_value()) return false;
        if (before && before->isCompatible(*variable.object) != Acad::eOk) return false;
    }
    return true;
}
