#include "frame/editor/descriptions.h"

NamedValues describe(ProfCuts& data) {
    return {choiceValue(21041, data.cuts.shape, {1395, 1396, 1397}),
            numberValue(21080, data.cuts.gap, lengths), numberValue(21081, data.cuts.angle, angles),
            numberValue(21050, data.cuts.radius, lengths), yesNoValue(21082, data.usesForNext)};
}

NamedValues describe(DlgProfFeaturesData& data) {
    NamedValues values;
    for (ProfFeature& each : data.features) {
        values.push_back(yesNoValue(21083, each.isOn).of(each.name));
        values.push_back(numberValue(21084, each.position, distances).of(each.name));
        values.push_back(numberValue(21085, each.size, lengths).of(each.name));
    }
    return values;
}

NamedValues describe(DstvPoints& data) {
    return {choiceValue(21087, data.mark, {21088, 21089, 21090}),
            numberValue(21091, data.depth, lengths), yesNoValue(21092, data.withLabels)};
}

NamedValues describe(TwDlgCis2Data& data) {
    constexpr int highestPhase = 9999;
    NamedValues values{
        textValue(21065, data.memberName),   textValue(21063, data.sectionName),
        textValue(21064, data.materialName), textValue(21093, data.assemblyMark),
        textValue(21094, data.pieceMark),    wholeValue(21095, data.phase, 0, highestPhase),
        yesNoValue(21096, data.isExported)};
    for (SectionTranslation::Pair& pair : data.sectionNames.pairs)
        values.push_back(textValue(1740, pair.otherName).of(pair.section));
    return values;
}
