// The objects of a macro that a variable can stand for, under the words that people choose them by.
#pragma once

#include <optional>

#include "core_api/text/vor_string_array.h"
#include "mapping/tw_ss_mapping.h"

/// "Plate.Width", "Bolts.Row.PatternNrBolts1", "Prof0.PrPlName". Distances and section sizes go
/// without the word of their kind.
VORMANT_API Vor_String objectLabel(const TwObjectMap& object);

class VORMANT_API ObjectList {
  public:
    /// Those of `all`, in its order, that are valid for `type`, each once: modules of one group
    /// have their objects in common.
    ObjectList(const TwSSMapping& all, TwValueType type);

    int length() const { return m_objects.length(); }
    const TwObjectMap& operator[](int index) const { return m_objects[index]; }
    /// All different: objects that would read alike are numbered.
    const Vor_StringArray& labels() const { return m_labels; }
    /// Null when no object is called so, letter case aside.
    const TwObjectMap* find(const Vor_String& label) const;
    /// The label of the same object; nothing when it is not there.
    std::optional<Vor_String> labelOf(const TwObjectMap& object) const;

  private:
    Vor_Array<TwObjectMap> m_objects;
    Vor_StringArray m_labels;
};
