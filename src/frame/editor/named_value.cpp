#include "frame/editor/named_value.h"

#include <utility>

#include "core_api/text/text_helpers.h"

NamedValue& NamedValue::of(const Vor_String& owner) {
    if (!owner.isEmpty()) name = owner + ": " + name;
    return *this;
}

NamedValue textValue(const ValueName& name, Vor_String& value) {
    return checkedText(
        name, [&value] { return value; },
        [&value](const Vor_String& text) {
            value = text;
            return true;
        });
}

NamedValue nameValue(const ValueName& name, Vor_String& value) {
    NamedValue made = textValue(name, value);
    made.reshapes = true;
    return made;
}

NamedValue checkedText(const ValueName& name, std::function<Vor_String()> read,
                       std::function<bool(const Vor_String&)> write) {
    NamedValue made;
    made.name = name.text;
    made.read = std::move(read);
    made.write = std::move(write);
    return made;
}

NamedValue numberValue(const ValueName& name, double& value, const NumberRange& range) {
    NamedValue made;
    made.kind = NamedValue::Kind::number;
    made.name = name.text + " (" + range.unit + ")";
    made.decimals = range.decimals;
    made.least = range.least;
    made.most = range.most;
    made.read = [&value, decimals = range.decimals] { return Vor_String(value, decimals); };
    made.write = [&value](const Vor_String& text) {
        value = textToDouble(text);
        return true;
    };
    return made;
}

NamedValue wholeValue(const ValueName& name, int& value, int least, int most) {
    NamedValue made;
    made.kind = NamedValue::Kind::number;
    made.name = name.text;
    made.least = least;
    made.most = most;
    made.read = [&value] { return Vor_String(value, 0); };
    made.write = [&value](const Vor_String& text) {
        value = textToInt(text);
        return true;
    };
    return made;
}

NamedValue yesNoValue(const ValueName& name, bool& value) {
    NamedValue made;
    made.kind = NamedValue::Kind::yesNo;
    made.name = name.text;
    made.read = [&value] { return Vor_String(value ? "1" : "0"); };
    made.write = [&value](const Vor_String& text) {
        value = text == "1";
        return true;
    };
    return made;
}

NamedValue choice(const ValueName& name, const Vor_StringArray& words, std::function<int()> read,
                  std::function<void(int)> write) {
    NamedValue made;
    made.kind = NamedValue::Kind::choice;
    made.name = name.text;
    made.choices = words;
    made.read = [words, read = std::move(read)] {
        const int index = read();
        return words.isIndex(index) ? words[index] : Vor_String();
    };
    made.write = [words, write = std::move(write)](const Vor_String& text) {
        const int index = words.find(text, true);
        if (index < 0) return false;
        write(index);
        return true;
    };
    return made;
}

NamedValue indexValue(const ValueName& name, int& index, const Vor_StringArray& words) {
    return choice(
        name, words, [&index] { return index; }, [&index](int picked) { index = picked; });
}

NamedValue choice(const ValueName& name, std::initializer_list<int> words,
                  std::function<int()> read, std::function<void(int)> write) {
    Vor_StringArray texts;
    for (const int word : words) texts.append(dialString(word));
    return choice(name, texts, std::move(read), std::move(write));
}
