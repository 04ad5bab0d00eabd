#include "spread/formulas/calculating_sheet.h"

CalculatingSheet* CalculatingSheet::s_innermost = nullptr;
int CalculatingSheet::s_depth = 0;
int CalculatingSheet::s_count = 0;

CalculatingSheet::CalculatingSheet(Vor_Spread& sheet) : m_sheet(sheet), m_before(s_innermost) {
    if (s_depth++ == 0) s_count = 0;
    ++s_count;
    s_innermost = this;
}

CalculatingSheet::~CalculatingSheet() {
    s_innermost = m_before;
    --s_depth;
    for (const Note& note : m_notes) m_sheet.setData(note.col, note.row, note.text);
}

Vor_Spread* CalculatingSheet::current() {
    return s_innermost ? &s_innermost->m_sheet : nullptr;
}

void CalculatingSheet::write(Vor_Spread& sheet, int col, int row, const Vor_String& text) {
    for (CalculatingSheet* scope = s_innermost; scope; scope = scope->m_before) {
        if (&scope->m_sheet != &sheet) continue;
        scope->m_notes.push_back({col, row, text});
        return;
    }
    sheet.setData(col, row, text);
}
