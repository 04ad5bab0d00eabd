#include "core_api/text/text_helpers.h"
#include "frame/editor/descriptions.h"
#include "frame/editor/entry_list.h"

namespace {

constexpr int fixedText = 21040, diameterText = 21059, holeOffsetText = 21060,
              firstBoltsText = 21061, secondBoltsText = 21062, sectionText = 21063,
              materialText = 21064, memberNameText = 21065, forAllText = 21066, cutTypeText = 21041;
constexpr int firstOffsetWord = 21042;  // nine, in the order of TwCutOffsetType
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

/// Offsets that the new type lacks count for nothing and go.
void setCutType(CutConstraint& cut, TwCutType type) {
    cut.type = type;
    for (int i = 0; i < cutOffsetCount; ++i)
        if (!hasCutOffset(type, static_cast<TwCutOffsetType>(i)))
            cut.offsets[static_cast<size_t>(i)] = 0;
}

NamedValue cutOffsetValue(CutConstraint& cut, TwCutOffsetType offset) {
    const bool isLength = !isCutOffsetInRange(offset, -1);
    double& value = cut.offsets[static_cast<size_t>(offset)];
    return numberValue(firstOffsetWord + offset, value, isLength ? lengths : distances);
}

NamedValues describeCut(CutConstraint& cut, const Vor_String& owner) {
    NamedValue type = choice(
        cutTypeText, {21051, 21052, 21053, 21054, 21055, 21056, 21057},
        [&cut] { return static_cast<int>(cut.type); },
        [&cut](int index) { setCutType(cut, static_cast<TwCutType>(index)); });
    type.reshapes = true;
    NamedValues values{type.of(owner)};
    AcArray<TwCutOffsetType> offsets;
    getCutOffsets(cut.type, offsets);
    for (const TwCutOffsetType offset : offsets)
        values.push_back(cutOffsetValue(cut, offset).of(owner));
    return values;
}

struct Column {
    int heading;
    Vor_StringArray* texts;
};

/// Entries that lie in several lists parallel by index; the first list has their names.
NamedValues parallelLists(int heading, const std::vector<Column>& columns) {
    Vor_StringArray& names = *columns[0].texts;
    for (const Column& each : columns)
        if (each.texts->length() < names.length()) each.texts->setLength(names.length());
    const auto insert = [columns, &names](int from, int to) {
        const Vor_String name = from < 0 ? Vor_String() : freeName(names, names[from]);
        for (const Column& each : columns)
            each.texts->insertAt(to, from < 0 ? Vor_String() : (*each.texts)[from]);
        names[to] = name;
    };
    const auto remove = [columns](int index) {
        for (const Column& each : columns) each.texts->removeAt(index);
    };
    return listValues(heading, EntryList{names.length(), insert, remove}, [&](int index) {
        const Vor_String owner = entryOwner(names[index], index);
        NamedValues rows;
        for (const Column& each : columns)
            rows.push_back(textValue(each.heading, (*each.texts)[index]).of(owner));
        rows[0].reshapes = true;
        return rows;
    });
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

NamedValues describe(DlgMacroCutsData& data) {
    NamedValues values;
    for (MacroCut& each : data.cuts)
        add(values, describeCut(each.cut, each.moduleName + ", " + each.cut.name));
    return values;
}

NamedValues describe(DynArrayData& data) {
    NamedValues values{choiceValue(21070, data.mode, {21071, 21072})};
    for (int i = 0; i < DynArrayData::textCount; ++i)
        values.push_back(textValue(21073 + i, data.texts[static_cast<size_t>(i)]));
    add(values, listValues(21071, data.entries, [](Vor_String& distance, int index) -> NamedValues {
            return {textValue(dialString(21078) + " " + Vor_String(index + 1, 0), distance)};
        }));
    return values;
}

NamedValues describe(EditConstrData& data) {
    NamedValues values;
    for (EditConstraint& each : data.constraints) {
        values.push_back(numberValue(each.name, each.value, each.isAngle ? angles : distances));
        values.push_back(yesNoValue(fixedText, each.isFixed).of(each.name));
    }
    return values;
}

NamedValues describe(MacroChoice& data) {
    NamedValues values{indexValue(87, data.chosen, data.names)};
    if (data.hasAlternative) values.push_back(yesNoValue(1309, data.isAlternative));
    return values;
}

NamedValues describe(TwAutoStandardsData& data) {
    constexpr int nameText = 87, valueText = 86, filterText = 347, overrideText = 1765;
    NamedValues values = parallelLists(1762, {{nameText, &data.dwgGenVars()},
                                              {valueText, &data.dwgGenValues()},
                                              {filterText, &data.dwgGenFilters()}});
    add(values, parallelLists(1763, {{nameText, &data.stdGenVars()},
                                     {valueText, &data.stdGenValues()},
                                     {overrideText, &data.stdGenOverrides()},
                                     {filterText, &data.stdGenFilters()}}));
    return values;
}
