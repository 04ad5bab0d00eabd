// The list of a library's cutting-stock items. What is accepted comes back the same from its own
// text, what is refused has a reason and changes nothing.
#include "cutstock/item_list.h"

#include <cstdint>
#include <cstdlib>

#include "cutstock/item_rows.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    DlgCSP2Data items, again;
    Vor_String message;
    if (!cutstock::readItemList(text, "fuzz", items, message)) {
        if (message.isEmpty() || !items.itemIds.isEmpty()) std::abort();
        return 0;
    }
    const Vor_String written = cutstock::itemListText(items);
    if (!cutstock::readItemList(written, "again", again, message) ||
        again.itemIds != items.itemIds || again.itemNames != items.itemNames ||
        again.tables != items.tables || cutstock::itemListText(again) != written)
        std::abort();
    for (const Vor_String& name : items.itemNames)
        if (!cutstock::canBeFolder(name)) std::abort();
    return 0;
}
