// Choosing files, with the way of filling in the question that every dialog shares.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "platform/window/file_question.h"

/// Asks for one file. `path` proposes a folder (ending in a backslash) or a whole path, and gets
/// what was chosen. False, with `path` as it was, when cancelled. Saving asks before a file that
/// exists is chosen.
VORMANT_API bool DlgOpenSave(CWnd* parent, bool isOpen, const Vor_String& title,
                             const Vor_String& filterName, const Vor_String& extension,
                             Vor_String& path);

/// Asks for several files and folders, starting in `folder`. Folders end in a backslash. False,
/// with `paths` as they were, when cancelled.
VORMANT_API bool DlgOpenMulti(CWnd* parent, const Vor_String& title, const Vor_String& filterName,
                              const Vor_String& extension, const Vor_String& folder,
                              Vor_StringArray& paths);
