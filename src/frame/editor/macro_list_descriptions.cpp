// The lists around a macro: cuts, constraints, an array's distances, general variables.
#include "core_api/macros/macro_limits.h"
#include "frame/editor/descriptions.h"
#include "frame/editor/entry_list.h"

namespace {

constexpr int nameText = 87, moduleText = 1119, fixedText = 21040, cutTypeText = 21041,
              newCutText = 26930, newConstraintText = 26931;
constexpr int firstOffsetWord = 21042;  // nine, in the order of TwCutOffsetType

/// The name of something in a macro, among others that `isFree` knows.
NamedValue macroName(Vor_String& name, std::function<bool(const Vor_String&)> isFree) {
    NamedValue made = checkedText(
        nameText, [&name] { return name; },
        [&name, isFree](const Vor_String& text) {
            // The same name in other letters is no other name.
            if (!isMacroName(text) || (!text.equal(name) && !isFree(text))) return false;
            name = text;
            return true;
        });
    made.reshapes = true;
    return made;
}

// --- cuts ---------------------------------------------------------------------------------------

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

NamedValues describeCutValues(CutConstraint& cut, const Vor_String& owner) {
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

Vor_String ownerOf(const MacroCut& cut) {
    return cut.moduleName + ", " + cut.cut.name;
}

Vor_StringArray cutsOfModule(const Vor_Array<MacroCut>& cuts, const Vor_String& module) {
    Vor_StringArray names;
    for (const MacroCut& each : cuts)
        if (each.moduleName.equal(module)) names.append(each.cut.name);
    return names;
}

/// A cut that its new module has already gets another name there.
NamedValue moduleOfCut(MacroCut& cut, DlgMacroCutsData& data) {
    NamedValue made = choice(
        moduleText, data.moduleNames,
        [&cut, &data] { return data.moduleNames.find(cut.moduleName); },
        [&cut, &data](int index) {
            const Vor_String module = data.moduleNames[index];
            if (cut.moduleName.equal(module)) return;
            cut.cut.name = freeName(cutsOfModule(data.cuts, module), cut.cut.name);
            cut.moduleName = module;
        });
    made.reshapes = true;
    return made;
}

NamedValues describeCuts(DlgMacroCutsData& data) {
    const auto rowsOf = [&data](MacroCut& cut, int) -> NamedValues {
        const auto isFree = [&data, &cut](const Vor_String& text) {
            return !cutsOfModule(data.cuts, cut.moduleName).contains(text);
        };
        NamedValues rows{moduleOfCut(cut, data).of(ownerOf(cut)),
                         macroName(cut.cut.name, isFree).of(ownerOf(cut))};
        add(rows, describeCutValues(cut.cut, ownerOf(cut)));
        return rows;
    };
    const auto renew = [&data](MacroCut& made, const auto& others) {
        if (made.moduleName.isEmpty()) made.moduleName = data.moduleNames[0];
        if (made.cut.name.isEmpty()) made.cut.name = dialString(newCutText);
        made.cut.name = freeName(cutsOfModule(others, made.moduleName), made.cut.name);
    };
    return listValues(21012, data.cuts, rowsOf, renew);
}

// --- general variables --------------------------------------------------------------------------

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

NamedValues describe(DlgMacroCutsData& data) {
    if (!data.moduleNames.isEmpty()) return describeCuts(data);
    NamedValues values;
    for (MacroCut& each : data.cuts) add(values, describeCutValues(each.cut, ownerOf(each)));
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
    auto& constraints = data.constraints;
    const auto rowsOf = [&constraints](EditConstraint& constraint, int) -> NamedValues {
        const Vor_String& name = constraint.name;
        const auto isFree = [&constraints](const Vor_String& text) {
            return !namesOf(constraints).contains(text);
        };
        return {macroName(constraint.name, isFree).of(name),
                numberValue(name, constraint.value, constraint.isAngle ? angles : distances),
                yesNoValue(fixedText, constraint.isFixed).of(name)};
    };
    const auto renew = [](EditConstraint& made, const auto& others) {
        if (made.name.isEmpty()) made.name = dialString(newConstraintText);
        made.name = freeName(namesOf(others), made.name);
    };
    return listValues(21011, constraints, rowsOf, renew);
}

NamedValues describe(TwAutoStandardsData& data) {
    constexpr int valueText = 86, filterText = 347, overrideText = 1765;
    NamedValues values = parallelLists(1762, {{nameText, &data.dwgGenVars()},
                                              {valueText, &data.dwgGenValues()},
                                              {filterText, &data.dwgGenFilters()}});
    add(values, parallelLists(1763, {{nameText, &data.stdGenVars()},
                                     {valueText, &data.stdGenValues()},
                                     {overrideText, &data.stdGenOverrides()},
                                     {filterText, &data.stdGenFilters()}}));
    return values;
}
