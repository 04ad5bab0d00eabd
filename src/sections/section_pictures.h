// The pictures of sections that dialogs show. They lie in the add-on's "icons\" folder, a large and
// a small one of each section type and each drawn template. A user section may lie there too; if
// not, the picture beside its drawing is copied there when its small one is wanted.
#pragma once

#include "core_api/text/vor_string.h"
#include "platform/window/bitmap.h"

class CButton;

enum class PictureSize { big, small };

/// The name of the picture file in the icons folder, "Unknown-big.bmp" or "Unknown-small.bmp" when
/// there is none. `drawnAs` is what the section's table says (a type number or a ".dwg" file),
/// empty for a user section, which `section` names.
VORMANT_API Vor_String sectionPicture(const Vor_String& drawnAs, const Vor_String& section,
                                      PictureSize size);

/// Copies the picture of a user section (its name without folder and extension) from the library to
/// the icons folder, unless the copy there is as new. False, with `file` as it was, when there is
/// none or it cannot be copied, which is told on the command line (a program's own folder may be
/// read-only); else `file` is the name of the copy.
VORMANT_API bool makeUserSectionPicture(const Vor_String& name, Vor_String& file);

/// The path of a picture in the icons folder.
VORMANT_API Vor_String iconPath(const Vor_String& file);

inline constexpr CBitmap::Pixel lightGrey = 0xC0C0C0;

/// Shows a picture file on a button; its pixels of the colour `without` (white or light grey) are
/// left out. False, with the button as it was, when the file is no picture.
VORMANT_API bool showIcon(CButton& button, const Vor_String& file, CBitmap::Pixel without);
/// The same with a path instead of a name in the icons folder.
VORMANT_API bool showPictureFile(CButton& button, const Vor_String& path, CBitmap::Pixel without);
