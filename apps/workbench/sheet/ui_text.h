// The words of the sheet editor's window in the working language.
#pragma once

#include "core_api/texts/texts.h"
#include "workbench/sheet/sheet_words.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"
