// The words of the sheet editor's window in the working language.
#pragma once

#include "core_api/texts/texts.h"
#include "sheet/sheet_words.h"
#include "window/dialog_font.h"
#include "window/say.h"
