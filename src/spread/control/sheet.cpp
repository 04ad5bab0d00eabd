#include "spread/control/sheet.h"

#include <map>
#include <utility>

namespace control {

using formula::ParseError;
using formula::ParseSettings;
using formula::ProgramRef;
using formula::ReferenceStyle;

const formula::CustomFunction* internCustomFunction(formula::CustomFunction function,
                                                    const void* identity) {
    using Key = std::pair<std::string, const void*>;
    // Never destroyed: shared programs keep pointing into it.
    static auto* functions = new std::map<Key, formula::CustomFunction>;
    const Key key{function.name, identity};
    return &functions->try_emplace(key, std::move(function)).first->second;
}

Sheet::Sheet() : m_slots(1), m_calculation(m_cells), m_evaluator(m_calculation) {
    m_calculation.m_formulas = this;
}

Sheet::Sheet(const Sheet& other) : Sheet() {
    *this = other;
}

Sheet& Sheet::operator=(const Sheet& other) {
    if (this == &other) return *this;
    clear();
    m_cells = other.m_cells;
    m_slots = other.m_slots;
    for (FormulaSlot& slot : m_slots) {
        if (slot.text) ++slot.text->references;
        slot.linked = false;
        if (slot.live) m_unlinked.push_back(static_cast<uint32_t>(&slot - m_slots.data()));
    }
    m_freeSlots = other.m_freeSlots;
    m_deadSlots = other.m_deadSlots;
    m_dirtied = other.m_dirtied;
    m_calculation.m_hasPendingChanges = other.m_calculation.m_hasPendingChanges;
    m_order = other.m_order;
    m_volatile = other.m_volatile;
    m_unknown = other.m_unknown;
    m_changed = other.m_changed;
    m_custom = other.m_custom;
    m_customNames = other.m_customNames;
    m_customReplaces = other.m_customReplaces;
    m_style = other.m_style;
    m_liveFormulas = other.m_liveFormulas;
    m_automatic = other.m_automatic;
    m_resultText = other.m_resultText;
    return *this;
}

Sheet::~Sheet() {
    clear();
}

void Sheet::clear() {
    m_cells.clear();
    forgetFormulas();
}

void Sheet::removeFormulas() {
    for (const FormulaSlot& slot : m_slots) {
        if (!slot.live) continue;
        Cell& cell = *m_cells.find(slot.col, slot.row);
        m_cells.setDirty(slot.col, slot.row, cell, false);
        cell.formula = 0;
    }
    forgetFormulas();
}

void Sheet::forgetFormulas() {
    for (FormulaSlot& slot : m_slots)
        if (slot.text) TextBlock::release(slot.text);
    m_slots.resize(1);
    m_freeSlots.clear();
    m_deadSlots.clear();
    m_dirtied.clear();
    m_calculation.m_hasPendingChanges = false;
    m_order.clear();
    m_unlinked.clear();
    m_volatile.clear();
    m_unknown.clear();
    m_changed.clear();
    m_dependents.clear();
    m_liveFormulas = 0;
    m_resultText = 0;
}

uint16_t Sheet::format(int col, int row) const {
    const Cell* cell = m_cells.find(col, row);
    return cell ? cell->format : 0;
}

// --- plain values

void Sheet::setValue(int col, int row, const Value& value) {
    if (value.isEmpty() && !m_cells.find(col, row)) return;
    Cell& cell = m_cells.obtain(col, row);
    if (cell.formula) removeFormula(col, row, cell);
    m_cells.setValue(cell, value);
    touched(col, row);
}

void Sheet::put(int col, int row, const Value& value, uint16_t format) {
    Cell& cell = m_cells.obtain(col, row);
    if (cell.formula) removeFormula(col, row, cell);
    m_cells.setValue(cell, value);
    cell.format = format;
    touched(col, row);
}

void Sheet::clearCell(int col, int row) {
    Cell* cell = m_cells.find(col, row);
    if (!cell) return;
    if (cell->formula) removeFormula(col, row, *cell);
    m_cells.clearCell(col, row);
    touched(col, row);
}

void Sheet::putBack(int col, int row, const Cell& from) {
    Cell& cell = m_cells.obtain(col, row);
    if (cell.formula) removeFormula(col, row, cell);
    CellStore::shareValue(cell, from);
    cell.format = from.format;
    touched(col, row);
}

// --- formulas

ParseSettings Sheet::parseSettings(int col, int row) const {
    ParseSettings settings;
    settings.hostCol = col;
    settings.hostRow = row;
    settings.style = m_style;
    if (m_custom.empty()) return settings;
    settings.customReplaces = m_customReplaces;
    settings.registry = this;
    settings.findCustom = [](const void* sheet, std::string_view name) {
        return static_cast<const Sheet*>(sheet)->customFunction(name);
    };
    return settings;
}

bool Sheet::setFormula(int col, int row, std::string_view text, ParseError& error) {
    const ProgramRef program = formula::parse(text, parseSettings(col, row), error);
    if (!program) return false;
    place(col, row, program, TextBlock::make(text), false);
    return true;
}

bool Sheet::setArrayFormula(int col, int row, std::string_view text, ParseError& error) {
    ParseSettings settings = parseSettings(col, row);
    settings.arrayFormula = true;
    const ProgramRef program = formula::parse(text, settings, error);
    if (!program) return false;
    place(col, row, program, TextBlock::make(text), true);
    return true;
}

void Sheet::setFormula(int col, int row, const ProgramRef& program, TextBlock* text) {
    ++text->references;
    place(col, row, program, text, false);
}

void Sheet::place(int col, int row, const ProgramRef& program, TextBlock* text, bool isArray) {
    Cell& cell = m_cells.obtain(col, row);
    if (cell.formula) removeFormula(col, row, cell);
    const uint32_t id = newSlot(col, row, program, text);
    m_slots[id].isArray = isArray;
    cell.formula = id;
    m_resultText += textSize(cell);
    m_cells.setDirty(col, row, cell, true);
    m_isStopped = false;
    calculateChanged(id);
}

void Sheet::loadFormula(int col, int row, std::string_view text, const Value& cached,
                        bool isArray) {
    ParseError error;
    ParseSettings settings = parseSettings(col, row);
    settings.arrayFormula = isArray;
    ProgramRef program = formula::parse(text, settings, error);
    const bool isKnown = static_cast<bool>(program);
    if (!isKnown) program = formula::parse("#NAME?", settings, error);
    Cell& cell = m_cells.obtain(col, row);
    if (cell.formula) removeFormula(col, row, cell);
    cell.formula = newSlot(col, row, program, TextBlock::make(text));
    m_cells.setValue(cell, isKnown ? cached : Value(ErrorCode::name));
    m_resultText += textSize(cell);
    m_slots[cell.formula].isArray = isArray;
    if (!isKnown) m_unknown.push_back(cell.formula);
    if (!isKnown || !cached.isEmpty()) return;
    m_cells.setDirty(col, row, cell, true);
    m_dirtied.push_back(cell.formula);
}

void Sheet::putFormula(int col, int row, std::string_view text, const Value& shown, bool isArray,
                       bool isOutOfDate) {
    loadFormula(col, row, text, shown, isArray);
    Cell& cell = *m_cells.find(col, row);
    if (!cell.dirty && (isOutOfDate || readsDirty(m_slots[cell.formula]))) {
        m_cells.setDirty(col, row, cell, true);
        m_dirtied.push_back(cell.formula);
    }
    touched(col, row);
}

uint32_t Sheet::newSlot(int col, int row, const ProgramRef& program, TextBlock* text) {
    uint32_t id;
    if (m_freeSlots.empty()) {
        id = static_cast<uint32_t>(m_slots.size());
        m_slots.emplace_back();
    } else {
        id = m_freeSlots.back();
        m_freeSlots.pop_back();
    }
    FormulaSlot& slot = m_slots[id];
    slot.program = program;
    slot.text = text;
    slot.row = row;
    slot.col = static_cast<uint16_t>(col);
    slot.live = true;
    slot.linked = slot.isArray = false;
    ++m_liveFormulas;
    m_unlinked.push_back(id);
    m_order.push_back(id);
    if (program->isVolatile()) m_volatile.push_back(id);
    return id;
}

void Sheet::removeFormula(int col, int row, Cell& cell) {
    m_cells.setDirty(col, row, cell, false);
    m_resultText -= textSize(cell);
    FormulaSlot& slot = m_slots[cell.formula];
    TextBlock::release(slot.text);
    slot.text = nullptr;
    slot.program = {};
    slot.live = false;
    // The slot waits in m_order until that is tidied; only then may it be given out again.
    m_deadSlots.push_back(cell.formula);
    cell.formula = 0;
    --m_liveFormulas;
    if (m_deadSlots.size() > 64 + static_cast<size_t>(m_liveFormulas)) forgetDead();
}

void Sheet::forgetDead() {
    const auto isDead = [this](uint32_t id) { return !m_slots[id].live; };
    std::erase_if(m_order, isDead);
    std::erase_if(m_unlinked, isDead);
    std::erase_if(m_volatile, isDead);
    m_freeSlots.insert(m_freeSlots.end(), m_deadSlots.begin(), m_deadSlots.end());
    m_deadSlots.clear();
    if (!m_dependents.isEmpty()) relinkAll();
}

std::optional<std::string_view> Sheet::formula(int col, int row) const {
    const Cell* cell = m_cells.find(col, row);
    if (!cell || !cell->formula) return std::nullopt;
    return m_slots[cell->formula].text->view();
}

bool Sheet::isArrayFormula(int col, int row) const {
    const Cell* cell = m_cells.find(col, row);
    return cell && cell->formula && m_slots[cell->formula].isArray;
}

void Sheet::setReferenceStyle(ReferenceStyle style) {
    if (style == m_style) return;
    writeFormulasIn(style);
    touchVolatile();  // FORMULATEXT
    if (m_automatic) recalculateDirty();
}

void Sheet::writeFormulasIn(ReferenceStyle style) {
    for (FormulaSlot& slot : m_slots) {
        if (!slot.live) continue;
        const auto text =
            formula::convertStyle(slot.text->view(), m_style, style, slot.col, slot.row);
        if (!text) continue;
        TextBlock::release(slot.text);
        slot.text = TextBlock::make(*text);
    }
    m_style = style;
}

void Sheet::addCustomFunction(const formula::CustomFunction* function) {
    m_customReplaces |= formula::findFunction(function->name) != nullptr;
    // In this order a name leads to a function even where memory runs out in between.
    const auto place = static_cast<int>(m_custom.size());
    m_custom.push_back(function);
    const int known = m_customNames.add(function->name, place);
    if (known >= 0) {
        m_custom.pop_back();
        m_custom[static_cast<size_t>(known)] = function;
    }
    if (!m_unknown.empty()) compileUnknown();
}

void Sheet::compileUnknown() {
    std::erase_if(m_unknown, [this](uint32_t id) {
        FormulaSlot& slot = m_slots[id];
        if (!slot.live) return true;
        ParseError error;
        ParseSettings settings = parseSettings(slot.col, slot.row);
        settings.arrayFormula = slot.isArray;
        const ProgramRef program = formula::parse(slot.text->view(), settings, error);
        if (!program) return false;
        slot.program = program;
        slot.linked = false;
        m_unlinked.push_back(id);
        if (program->isVolatile()) m_volatile.push_back(id);
        m_cells.setDirty(slot.col, slot.row, *m_cells.find(slot.col, slot.row), true);
        m_dirtied.push_back(id);
        return true;
    });
}

const formula::CustomFunction* Sheet::customFunction(std::string_view name) const {
    const int index = m_customNames.find(name);
    return index < 0 ? nullptr : m_custom[static_cast<size_t>(index)];
}

size_t Sheet::formulaBytes() const {
    return m_slots.capacity() * sizeof(FormulaSlot) + m_order.capacity() * 4 +
           m_unlinked.capacity() * 4 + m_dependents.bytes();
}

}  // namespace control
