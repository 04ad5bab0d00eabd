// The template files of designed dialogs: property lists below the library's "Dialog
// Templates\Dialog Design\", each with its picture beside it.
#pragma once

#include "core_api/text/vor_array.h"
#include "designer/vor_designer_control.h"
#include "platform/host/error_status.h"

/// Ends in a backslash.
VORMANT_API Vor_String getDesignerRootFolder();
/// The names of all templates: paths below the root without extension, sorted.
VORMANT_API void getModuleImages(Vor_StringArray& names);

/// The controls of the template at `path`, in the order of the file. Fails, with `message` saying
/// why, for a file that cannot be read or claims more controls than it holds.
ErrorStatus readDesignerTemplate(const Vor_String& path, Vor_Array<Vor_DesignerControl>& controls,
                                 Vor_String& message);
