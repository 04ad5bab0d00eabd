// Starters are borders: hosts expect no exceptions. What a starter says when memory runs out.
#pragma once

/// Prints that there was no memory for a dialog, when there is enough for that. False, for the
/// starter to hand on.
bool noMemoryForDialog();
