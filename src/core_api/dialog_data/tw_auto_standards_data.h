// General variables: named values, each with a filter that says which macro drawings it is for
// (paths below the library's "Macros\" folder, separated by ";"). Lists are parallel by index.
#pragma once

#include "core_api/text/vor_string_array.h"

class VORMANT_API TwAutoStandardsData {
  public:
    virtual ~TwAutoStandardsData() = default;

    // Of drawings.
    Vor_StringArray& dwgGenVars() { return m_dwgVars; }
    Vor_StringArray& dwgGenValues() { return m_dwgValues; }
    Vor_StringArray& dwgGenFilters() { return m_dwgFilters; }
    const Vor_StringArray& dwgGenVars() const { return m_dwgVars; }
    const Vor_StringArray& dwgGenValues() const { return m_dwgValues; }
    const Vor_StringArray& dwgGenFilters() const { return m_dwgFilters; }
    // Of standards.
    Vor_StringArray& stdGenVars() { return m_stdVars; }
    Vor_StringArray& stdGenValues() { return m_stdValues; }
    Vor_StringArray& stdGenOverrides() { return m_stdOverrides; }
    Vor_StringArray& stdGenFilters() { return m_stdFilters; }
    const Vor_StringArray& stdGenVars() const { return m_stdVars; }
    const Vor_StringArray& stdGenValues() const { return m_stdValues; }
    const Vor_StringArray& stdGenOverrides() const { return m_stdOverrides; }
    const Vor_StringArray& stdGenFilters() const { return m_stdFilters; }

  private:
    Vor_StringArray m_dwgVars, m_dwgValues, m_dwgFilters;
    Vor_StringArray m_stdVars, m_stdValues, m_stdOverrides, m_stdFilters;
};
