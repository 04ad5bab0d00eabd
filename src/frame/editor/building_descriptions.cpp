#include "frame/editor/descriptions.h"
#include "frame/editor/entry_list.h"

NamedValues describe(TwGridDlgData& data) {
    return {textValue(87, data.name),
            numberValue(21100, data.originX, distances),
            numberValue(21101, data.originY, distances),
            numberValue(21102, data.originZ, distances),
            numberValue(21103, data.rotation, angles),
            textValue(21104, data.x.distances),
            textValue(21105, data.x.firstLabel),
            textValue(21106, data.y.distances),
            textValue(21107, data.y.firstLabel),
            numberValue(21108, data.overhang, lengths),
            yesNoValue(21109, data.showsLabels)};
}

NamedValues describe(TwLevelsDlgData& data) {
    return listValues(21019, data.levels, [](TwLevel& level, int index) -> NamedValues {
        const Vor_String owner = dialString(21110) + " " + Vor_String(index + 1, 0);
        return {textValue(87, level.name).of(owner),
                numberValue(21111, level.height, distances).of(owner),
                yesNoValue(21112, level.isVisible).of(owner)};
    });
}

NamedValues describe(TwCladdingDlgData& data) {
    return {textValue(21113, data.panelName),
            choiceValue(21114, data.direction, {21115, 21116}),
            numberValue(21117, data.panelWidth, sizes),
            numberValue(21118, data.longestPanel, sizes),
            numberValue(21119, data.overlap, lengths),
            numberValue(21120, data.startOffset, distances),
            yesNoValue(21121, data.hasTrims)};
}

NamedValues describe(TwBracingDlgData& data) {
    return {choiceValue(21122, data.shape, {21123, 21124, 21125, 21126, 21127}),
            textValue(21063, data.sectionName),
            textValue(21064, data.material),
            numberValue(21120, data.startOffset, distances),
            numberValue(21128, data.endOffset, distances),
            numberValue(21129, data.gussetThickness, sizes),
            yesNoValue(21130, data.isBolted)};
}

NamedValues describe(TwLookUpDlgData& data) {
    const Vor_String name = data.prompt.isEmpty() ? dialString(86) : data.prompt;
    return {indexValue(name, data.chosen, data.names)};
}
