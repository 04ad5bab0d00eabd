// What the core module is set to: the folders of the library and of the add-on, and the settings
// of the moment.
#pragma once

#include "core_api/text/vor_string.h"

/// The languages of texts and of section names, in the order of their codes.
enum class Language { english = 0, dutch = 1, german = 2, french = 3 };
inline constexpr int languageCount = 4;

struct VORMANT_API Vor_CurrentSettings {
    bool diagnostics = false;  ///< failures of standards are shown in message boxes
    Language language = Language::english;
};

class VORMANT_API Vor_Settings {
  public:
    /// The library folder, ending in a backslash; empty until it is set.
    const Vor_String& libDir() const { return m_libDir; }
    /// Takes a host-style path with or without its closing backslash. Names below it forgive letter
    /// case (platform/paths.h).
    void setLibDir(std::string_view folder);

    /// The add-on's own folder (pictures, sheet settings), as libDir.
    const Vor_String& vorDir() const { return m_vorDir; }
    void setVorDir(std::string_view folder);

    Vor_CurrentSettings& current() { return m_current; }
    const Vor_CurrentSettings& current() const { return m_current; }

  private:
    Vor_String m_libDir;
    Vor_String m_vorDir;
    Vor_CurrentSettings m_current;
};

extern VORMANT_API Vor_Settings gSettings;
