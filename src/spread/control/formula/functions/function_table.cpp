#include <array>
#include <string_view>
#include <vector>

#include "platform/short_text.h"
#include "spread/control/formula/functions/families.h"

namespace formula {
namespace {

/// Letter case is one bit, which all that may stand in names but letters has anyway or has no twin
/// without. No function's name is longer than a short text.
struct Key {
    uint64_t first, last;
    size_t size;

    explicit Key(std::string_view name) : size(name.size()) {
        constexpr uint64_t caseBits = 0x2020202020202020U;
        const auto ends = encodings::endsOf(name);
        first = ends[0] | caseBits;
        last = ends[1] | caseBits;
    }
    bool operator==(const Key&) const = default;
    size_t hash() const {
        return (first * 0x9E3779B97F4A7C15U + last * 0xBF58476D1CE4E5B9U + size) >> 52;
    }
};

class FunctionTable {
  public:
    FunctionTable() {
        for (const auto family : {mathFunctions, trigonometryFunctions, statisticsFunctions,
                                  matrixFunctions, logicFunctions, lookupFunctions, textFunctions,
                                  informationFunctions, dateFunctions, engineeringFunctions})
            for (const FunctionSpec& spec : family()) add(spec);
    }

    const FunctionSpec* find(std::string_view name) const {
        if (name.size() > encodings::longestShortText) return nullptr;
        const Key key(name);
        size_t at = key.hash();
        while (m_slots[at].spec && m_slots[at].key != key) at = (at + 1) % m_slots.size();
        return m_slots[at].spec;
    }
    const std::vector<const FunctionSpec*>& all() const { return m_all; }

  private:
    struct Slot {
        Key key{std::string_view()};
        const FunctionSpec* spec = nullptr;  // null: free
    };

    void add(const FunctionSpec& spec) {
        m_all.push_back(&spec);
        const Key key(spec.name);
        size_t at = key.hash();
        while (m_slots[at].spec) at = (at + 1) % m_slots.size();
        m_slots[at] = {key, &spec};
    }

    std::vector<const FunctionSpec*> m_all;
    std::array<Slot, 4096> m_slots;  // some 400 in use
};

const FunctionTable& table() {
    // One look at a pointer instead of a guard: every word of every formula comes by here.
    static const FunctionTable* instance = nullptr;
    if (!instance) [[unlikely]]
        instance = new FunctionTable;  // never destroyed, as formulas of static lifetime
    return *instance;
}

}  // namespace

const FunctionSpec* findFunction(std::string_view name) {
    return table().find(name);
}

std::span<const FunctionSpec* const> allFunctions() {
    return table().all();
}

}  // namespace formula
