#include "core_api/text/text_helpers.h"
#include "frame/editor/descriptions.h"

namespace {

constexpr int diameterText = 21059, holeOffsetText = 21060, firstBoltsText = 21061,
              secondBoltsText = 21062, sectionText = 21063, materialText = 21064,
              memberNameText = 21065, forAllText = 21066;
constexpr int highestCount = 1000;

Vor_String named(const Vor_String& owner, int text) {
    return owner + ": " + dialString(text);
}

/// A text that a setter takes or refuses.
template <class Read, class Write>
NamedValue setterText(const Vor_String& name, Read read, Write write) {
    return checkedText(name, read,
                       [write](const Vor_String& text) { return write(text) == Acad::eOk; });
}

NamedValues describeBolts(MacroTabData& tab) {
    MacroBoltData* bolts = tab.getBoltData();
    if (!bolts) return {};
    return {setterText(
                named(tab.key(), diameterText) + " (mm)", [bolts] { return bolts->diameter(); },
                [bolts](const Vor_String& text) { return bolts->setDiameter(text); }),
            setterText(
                named(tab.key(), holeOffsetText) + " (mm)", [bolts] { return bolts->holeOffset(); },
                [bolts](const Vor_String& text) { return bolts->setHoleOffset(text); })};
}

NamedValue boltCount(MacroPatternProps& pattern, const Vor_String& owner, bool first) {
    NamedValue made;
    made.kind = NamedValue::Kind::number;
    made.name = named(owner, first ? firstBoltsText : secondBoltsText);
    made.least = 1;
    made.most = highestCount;
    made.read = [&pattern, first] { return Vor_String(pattern.nrBolts(first), 0); };
    made.write = [&pattern, first](const Vor_String& text) {
        return pattern.setNrBolts(first, textToInt(text)) == Acad::eOk;
    };
    return made;
}

NamedValues describePatterns(MacroTabData& tab) {
    NamedValues values;
    for (int i = 0; i < tab.patterns().length(); ++i) {
        MacroPatternProps& pattern = *tab.getPattern(i);
        const Vor_String owner = tab.key() + ", " + pattern.name;
        values.push_back(boltCount(pattern, owner, true));
        if (pattern.hasSecondDirection()) values.push_back(boltCount(pattern, owner, false));
    }
    return values;
}

/// One property of a profile group, which the tab hands out and takes back as a whole.
NamedValue groupProperty(MacroTabData& tab, const Vor_String& group, int text,
                         const Vor_String& (MacroProfData::*get)() const,
                         ErrorStatus (MacroProfData::*set)(std::string_view)) {
    const auto read = [&tab, group, get] {
        MacroProfData properties;
        tab.getMergedPropsOfGroup(group, properties);
        return (properties.*get)();
    };
    const auto write = [&tab, group, set](const Vor_String& value) {
        MacroProfData properties;
        const ErrorStatus status = tab.getMergedPropsOfGroup(group, properties);
        if (status != Acad::eOk || (properties.*set)(value) != Acad::eOk)
            return Acad::eInvalidInput;
        return tab.setMergedPropsOfGroup(group, properties);
    };
    return setterText(named(tab.key() + ", " + group, text), read, write);
}

NamedValues describeProfiles(MacroTabData& tab, const Vor_String& onlyGroup) {
    NamedValues values;
    for (const MacroProfData& profile : tab.profiles()) {
        const Vor_String& group = profile.name;
        if (!onlyGroup.isEmpty() && !group.equal(onlyGroup)) continue;
        values.push_back(groupProperty(tab, group, sectionText, &MacroProfData::sectionName,
                                       &MacroProfData::setSectionName));
        values.push_back(groupProperty(tab, group, materialText, &MacroProfData::material,
                                       &MacroProfData::setMaterial));
        values.push_back(groupProperty(tab, group, memberNameText, &MacroProfData::memberName,
                                       &MacroProfData::setMemberName));
    }
    return values;
}

}  // namespace

NamedValues describe(MacroData& data) {
    NamedValues values;
    for (int i = 0; i < data.tabCount(); ++i) {
        MacroTabData& tab = *data.getTab(i);
        add(values, describeBolts(tab));
        add(values, describePatterns(tab));
        add(values, describeProfiles(tab, {}));
    }
    return values;
}

NamedValues describe(AdvancedProfiles& data) {
    NamedValues values;
    for (int i = 0; i < data.macro.tabCount(); ++i) {
        MacroTabData& tab = *data.macro.getTab(i);
        if (data.tab.isEmpty() || tab.key().equal(data.tab))
            add(values, describeProfiles(tab, data.group));
    }
    return values;
}

NamedValues describe(ObjectProfile& data) {
    MacroProfData& properties = data.properties;
    return {setterText(
                dialString(sectionText), [&properties] { return properties.sectionName(); },
                [&properties](const Vor_String& text) { return properties.setSectionName(text); }),
            setterText(
                dialString(materialText), [&properties] { return properties.material(); },
                [&properties](const Vor_String& text) { return properties.setMaterial(text); }),
            setterText(
                dialString(memberNameText), [&properties] { return properties.memberName(); },
                [&properties](const Vor_String& text) { return properties.setMemberName(text); }),
            yesNoValue(forAllText, data.forAll)};
}

NamedValues describe(MacroChoice& data) {
    NamedValues values{indexValue(87, data.chosen, data.names)};
    if (data.hasAlternative) values.push_back(yesNoValue(1309, data.isAlternative));
    return values;
}
