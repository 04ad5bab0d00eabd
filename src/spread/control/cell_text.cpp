#include "spread/control/cell_text.h"

#include <cstring>

#include "spread/control/formula/text_room.h"

namespace control {

void setText(Cell& cell, std::string_view text) {
    const bool hasText = cell.type == ValueType::text;
    if (hasText && !text.empty() && cell.text->references == 1 &&
        roomFor(cell.text->size) == roomFor(text.size())) {
        std::memmove(cell.text + 1, text.data(), text.size());
        cell.text->size = static_cast<uint32_t>(text.size());
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
