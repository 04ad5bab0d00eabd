#include "mapping/tw_var_cells.h"

#include "mapping/run_timers.h"
#include "mapping/tw_dlg_standards_data.h"
#include "mapping/variable_messages.h"

void TwVarCells::removeAll(const Vor_Array<int>& indexes) {
    Vor_Array<TwVarCell> kept;
    auto next = indexes.begin();
    for (int i = 0; i < length(); ++i) {
        if (next != indexes.end() && *next == i)
            ++next;
        else
            kept.append(std::move(m_cells[i]));
    }
    m_cells = std::move(kept);
}

ErrorStatus TwVarCells::findVarCell(const Vor_String& name, int& index) const {
    for (int i = 0; i < length(); ++i) {
        if (m_cells[i].name().equal(name)) {
            index = i;
            return Acad::eOk;
        }
    }
    return Acad::eInvalidInput;
}

ErrorStatus TwVarCells::getFromMacro(TwDlgStandardsData& data, Vor_StringArray* unread) {
    const auto noteUnread = [unread](const TwVarCell& cell) {
        if (unread && cell.isInput()) unread->append(cell.name());
    };

    {
        const Vor_FunctionTimer timer(gInitMapping);
        if (data.moduleName.isEmpty() && !data.macro) return Acad::eInvalidInput;
        const ErrorStatus status = data.moduleName.isEmpty()
                                       ? m_mapping.initFromMacro(data)
                                       : m_mapping.initFromModuleGroup(data.moduleName);
        if (status != Acad::eOk) {
            for (const TwVarCell& cell : m_cells) noteUnread(cell);
            return Acad::eOk;
        }
    }
    const Vor_FunctionTimer timer(gInitFromMacro);
    for (TwVarCell& cell : m_cells) {
        if (cell.isLocal()) {
            if (cell.setNewValue({}) != Acad::eOk) return Acad::eInvalidInput;
        } else if (cell.setValueFromMacro(m_mapping, data) != Acad::eOk) {
            reportVariableFailure(data.standardsName, cell.isInput(), cell.name());
            noteUnread(cell);
        }
    }
    return Acad::eOk;
}

ErrorStatus TwVarCells::setToMacro(TwDlgStandardsData& data) {
    for (const TwVarCell& cell : m_cells)
        if (cell.isOutput()) (void)cell.setValueToMacro(m_mapping, data);
    return Acad::eOk;
}

ErrorStatus TwVarCells::getValuesFromSS(Vor_Spread& spread) {
    for (TwVarCell& cell : m_cells)
        if (cell.isOutput() && cell.readFromSS(spread) != Acad::eOk) return Acad::eInvalidInput;
    return Acad::eOk;
}

ErrorStatus TwVarCells::setValuesToSS(Vor_Spread& spread) {
    for (const TwVarCell& cell : m_cells)
        if (cell.setValueToSS(spread) != Acad::eOk) return Acad::eInvalidInput;
    return Acad::eOk;
}

bool TwVarCells::hasSameInput(const TwVarCells& other) const {
    for (const TwVarCell& cell : m_cells) {
        if (!cell.isInput()) continue;
        int index = 0;
        if (other.findVarCell(cell.name(), index) != Acad::eOk ||
            other[index].valueType() != cell.valueType() ||
            !other[index].value().equal(cell.value()))
            return false;
    }
    return true;
}
