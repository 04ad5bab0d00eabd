// Text numbers in dialog tables.
#pragma once

#include "core_api/texts/texts.h"
#include "platform/window/dialog_resource.h"

/// The text of a number, looked up when the dialog is made.
constexpr DialogText dialText(int number) {
    return {[](int each) { return dialString(each).str(); }, number};
}
