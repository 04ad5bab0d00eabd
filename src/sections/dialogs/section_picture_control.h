// The picture of a section on a dialog, and what the dialogs' lists say of how sections are drawn.
#pragma once

#include "platform/window/controls.h"
#include "sections/section_pictures.h"

/// Shows the section's picture of the icons folder; nothing when there is none.
void showSectionPicture(CStatic& control, const Vor_String& drawnAs, const Vor_String& section,
                        PictureSize size);

/// How the template list shows what a table says: "<I section>", a drawn template as it is; empty
/// for what is neither.
Vor_String displayOfDrawnAs(const Vor_String& drawnAs);
/// What a table says for an entry of the template list; "-1" when it is none.
Vor_String drawnAsOfDisplay(const Vor_String& display);
