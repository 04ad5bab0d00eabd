#include "frame/editor/descriptions.h"
#include "frame/editor/entry_list.h"

NamedValues describe(ProfCuts& data) {
    return {choiceValue(21041, data.cuts.shape, {1395, 1396, 1397}),
            numberValue(21080, data.cuts.gap, lengths), numberValue(21081, data.cuts.angle, angles),
            numberValue(21050, data.cuts.radius, lengths), yesNoValue(21082, data.usesForNext)};
}

NamedValues describe(DlgProfFeaturesData& data) {
    const auto rowsOf = [](ProfFeature& feature, int index) -> NamedValues {
        const Vor_String owner = entryOwner(feature.name, index);
        return {nameValue(87, feature.name).of(owner), yesNoValue(21083, feature.isOn).of(owner),
                numberValue(21084, feature.position, distances).of(owner),
                numberValue(21085, feature.size, lengths).of(owner)};
    };
    const auto renew = [](ProfFeature& made, const auto& features) {
        made.name = freeName(namesOf(features), made.name);
    };
    return listValues(21017, data.features, rowsOf, renew);
}

NamedValues describe(DstvPoints& data) {
    return {choiceValue(21087, data.mark, {21088, 21089, 21090}),
            numberValue(21091, data.depth, lengths), yesNoValue(21092, data.withLabels)};
}

namespace {

using SectionPair = SectionTranslation::Pair;

/// A section has one name in the other system.
NamedValue sectionOf(SectionPair& pair, const SectionTranslation& names) {
    NamedValue made = checkedText(
        670, [&pair] { return pair.section; },
        [&pair, &names](const Vor_String& text) {
            for (const SectionPair& each : names.pairs)
                if (&each != &pair && !text.isEmpty() && each.section.equal(text)) return false;
            pair.section = text;
            return true;
        });
    made.reshapes = true;
    return made;
}

NamedValues describeSectionNames(SectionTranslation& names) {
    const auto rowsOf = [&names](SectionPair& pair, int index) -> NamedValues {
        const Vor_String owner = entryOwner(pair.section, index);
        return {sectionOf(pair, names).of(owner), textValue(1740, pair.otherName).of(owner)};
    };
    const auto renew = [](SectionPair& made, const auto&) { made.section = {}; };
    return listValues(25000, names.pairs, rowsOf, renew);
}

}  // namespace

NamedValues describe(TwDlgCis2Data& data) {
    constexpr int highestPhase = 9999;
    NamedValues values{
        textValue(21065, data.memberName),   textValue(21063, data.sectionName),
        textValue(21064, data.materialName), textValue(21093, data.assemblyMark),
        textValue(21094, data.pieceMark),    wholeValue(21095, data.phase, 0, highestPhase),
        yesNoValue(21096, data.isExported)};
    if (data.areSectionNamesKnown) add(values, describeSectionNames(data.sectionNames));
    return values;
}
