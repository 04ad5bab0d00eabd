#include "spread/control/cell_text.h"

#include <cstring>

namespace control {

void setText(Cell& cell, std::string_view text) {
    const bool hasText = cell.type == ValueType::text;
    if (hasText && cell.text->references == 1 && cell.text->size == text.size()) {
        std::memmove(cell.text + 1, text.data(), text.size());
        return;
    }
    TextBlock* block = text.empty() ? nullptr : TextBlock::make(text);
    if (hasText) TextBlock::release(cell.text);
    if (block)
        cell.text = block;
    else
        cell.number = 0;
    cell.type = block ? ValueType::text : ValueType::empty;
}

}  // namespace control
