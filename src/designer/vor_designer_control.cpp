#include "designer/vor_designer_control.h"

#include "core_api/files.h"
#include "core_api/text/text_helpers.h"

namespace {

constexpr char separator = ';';

std::string keyOf(const char* name, int i) {
    return name + std::to_string(i);
}

bool isValueButton(int type) {
    return type == ctValueButton || type == ctValueButtonRef;
}

/// Each field its part, or the empty text.
void split(const Vor_String& text, std::initializer_list<Vor_String*> fields) {
    const Vor_StringArray parts = strToArr(text, separator);
    int index = 0;
    for (Vor_String* field : fields) {
        *field = index < parts.length() ? parts[index] : Vor_String();
        ++index;
    }
}

}  // namespace

void Vor_DesignerControl::getFromPropList(const Vor_PropertyList& properties, const int& i) {
    const auto number = [&](const char* name, double& field) {
        if (const auto value = properties.getDouble(keyOf(name, i))) field = *value;
    };
    if (const auto value = properties.getInt(keyOf("type", i))) type = *value;
    number("topLeftX", topLeftX);
    number("topLeftY", topLeftY);
    number("bottomRightX", bottomRightX);
    number("bottomRightY", bottomRightY);
    if (const Vor_String* text = properties.getText(keyOf("contents", i))) contents = *text;
    if (const Vor_String* text = properties.getText(keyOf("comboList", i)))
        setSplitExtComboList(*text);
}

void Vor_DesignerControl::setToPropList(Vor_PropertyList& properties, const int& i) const {
    properties.setInt(keyOf("type", i), type);
    properties.setDouble(keyOf("topLeftX", i), topLeftX);
    properties.setDouble(keyOf("topLeftY", i), topLeftY);
    properties.setDouble(keyOf("bottomRightX", i), bottomRightX);
    properties.setDouble(keyOf("bottomRightY", i), bottomRightY);
    properties.setText(keyOf("contents", i), contents);
    properties.setText(keyOf("comboList", i), getMergedExtComboList());
}

Vor_String Vor_DesignerControl::getMergedExtComboList() const {
    if (type == ctFlexFixButton)
        return arrToStr(Vor_StringArray{flexGroup, flexPart2, flexPart3, flexPart4}, ";");
    if (isValueButton(type))
        return arrToStr(Vor_StringArray{extPart1, extPart2, extPart3, extPart4, comboList}, ";");
    return comboList;
}

bool Vor_DesignerControl::setSplitExtComboList(const Vor_String& text) {
    if (type == ctFlexFixButton) {
        split(text, {&flexGroup, &flexPart2, &flexPart3, &flexPart4});
    } else if (isValueButton(type)) {
        split(text, {&extPart1, &extPart2, &extPart3, &extPart4, &comboList});
    } else {
        comboList = text;
        extPart2 = Vor_String();
    }
    return true;
}

void Vor_DesignerControl::getComboItemsFromFile(Vor_StringArray& items) const {
    if (!comboList.isEmpty() && ObjectExportFileExists(comboList))
        ObjectExportReadFile(comboList, items);
}
