// What the core module offers its users: texts, files, settings, sections, properties, timers.
#pragma once

#include "core_api/dialog_state.h"
#include "core_api/dialogs/file_dialogs.h"
#include "core_api/dialogs/info_dialog.h"
#include "core_api/files.h"
#include "core_api/numbers.h"
#include "core_api/property_list.h"
#include "core_api/sections/section_catalogue.h"
#include "core_api/sections/section_tables.h"
#include "core_api/sections/section_translation.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/dial_text.h"
#include "core_api/timers.h"
#include "drawing/canvas.h"
#include "drawing/part_picture.h"
