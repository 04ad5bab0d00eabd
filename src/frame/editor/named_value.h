// One row of the editor of named values: what it is called, what may be typed, and how it is read
// from and written into a data object. Descriptions of data objects are lists of these:
//
//     NamedValues describe(TwBracingDlgData& data) {
//         return {choiceValue(21024, data.shape, {21060, 21061}),
//                 numberValue(21066, data.startOffset, lengths)};
//     }
//
// A row refers to the object it was made from, which must outlive it and stay where it is. Lists
// whose entries come and go are in entry_list.h.
#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

#include "core_api/text/vor_string_array.h"
#include "core_api/texts/texts.h"

struct EntryList;

struct NamedValue {
    enum class Kind { text, number, yesNo, choice, heading };

    Kind kind = Kind::text;
    Vor_String name;
    Vor_StringArray choices = {};
    int decimals = 0;
    double least = 0;  ///< of numbers
    double most = 0;
    /// As the cell shows it: "1" and "0" for yes and no, the words of a choice.
    std::function<Vor_String()> read;
    /// False, with the data as it was, when the data refuses the text.
    std::function<bool(const Vor_String&)> write;
    /// Other rows come and go with it, or have other names.
    bool reshapes = false;
    /// What the row belongs to, if anything, and to which entry of it: -1 for its heading.
    std::shared_ptr<const EntryList> list = {};
    int entry = -1;

    /// The name inside what it belongs to: "Plate1: Gap".
    NamedValue& of(const Vor_String& owner);
};

using NamedValues = std::vector<NamedValue>;

/// What numbers may be. `unit` goes to the name.
struct NumberRange {
    const char* unit;
    double least;
    double most;
    int decimals;
};

inline constexpr NumberRange distances{"mm", -1e6, 1e6, 3};
inline constexpr NumberRange lengths{"mm", 0, 1e6, 3};
inline constexpr NumberRange sizes{"mm", 0.001, 1e6, 3};
inline constexpr NumberRange angles{"\xB0", -360, 360, 3};

// Names are text numbers, or texts of the data itself.
struct ValueName {
    ValueName(int number) : text(dialString(number)) {}
    ValueName(const Vor_String& own) : text(own) {}
    Vor_String text;
};

NamedValue textValue(const ValueName& name, Vor_String& value);
/// A text that is the name of the rows around it.
NamedValue nameValue(const ValueName& name, Vor_String& value);
/// A text that `write` takes, or refuses with false.
NamedValue checkedText(const ValueName& name, std::function<Vor_String()> read,
                       std::function<bool(const Vor_String&)> write);
NamedValue numberValue(const ValueName& name, double& value, const NumberRange& range);
NamedValue wholeValue(const ValueName& name, int& value, int least, int most);
NamedValue yesNoValue(const ValueName& name, bool& value);
/// One of `words`; `index` counts from 0, -1 for none.
NamedValue indexValue(const ValueName& name, int& index, const Vor_StringArray& words);
NamedValue choice(const ValueName& name, const Vor_StringArray& words, std::function<int()> read,
                  std::function<void(int)> write);
NamedValue choice(const ValueName& name, std::initializer_list<int> words,
                  std::function<int()> read, std::function<void(int)> write);

/// An enum whose numbers count the words from 0.
template <class Enum>
NamedValue choiceValue(const ValueName& name, Enum& value, std::initializer_list<int> words) {
    return choice(
        name, words, [&value] { return static_cast<int>(value); },
        [&value](int index) { value = static_cast<Enum>(index); });
}

inline void add(NamedValues& values, NamedValues more) {
    for (NamedValue& each : more) values.push_back(std::move(each));
}
