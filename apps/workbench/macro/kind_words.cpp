#include "workbench/macro/kind_words.h"

#include "workbench/window/ui_text.h"

namespace {

constexpr int cutText = 26964;
constexpr int firstOffsetText = 21042;  // nine, in the order of TwCutOffsetType

int textOf(TwMapType kind) {
    switch (kind) {
        case TwMapType::distance:
            return 21078;
        case TwMapType::genVar:
            return 26965;
        case TwMapType::prPlName:
            return 21063;
        case TwMapType::prPlMaterial:
            return 21064;
        case TwMapType::ownedMemberName:
            return 21065;
        case TwMapType::memberSectionSize:
            return 26966;
        case TwMapType::patternNrBolts1:
            return 21061;
        case TwMapType::patternNrBolts2:
            return 21062;
        case TwMapType::patternReverseStart1:
            return 26967;
        case TwMapType::patternReverseStart2:
            return 26968;
        case TwMapType::boltsDiameter:
            return 26969;
        case TwMapType::boltsHoleOffset:
            return 21060;
        default:
            return 0;
    }
}

}  // namespace

QString kindWord(TwMapType kind) {
    if (isCutKind(kind))
        return uiText(cutText).arg(uiText(firstOffsetText + cutOffsetTypeOf(kind)));
    const int text = textOf(kind);
    return text == 0 ? QString() : uiText(text);
}
