// The groups that section types are sorted into, in the order users gave them. Groups are asked for
// by their index, from 0; types refer to them by their number, which stays when others come and go.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "platform/host/ac_array.h"

class VORMANT_API SectionGroupArray {
  public:
    virtual ~SectionGroupArray() = default;

    int length() const { return m_groups.length(); }
    /// In the working language, else in the first that has a name; empty when out of range.
    Vor_String getName(const int& index) const;
    /// The number that types know it by; -1 when out of range.
    long getId(const int& index) const;

    // Out of range, reading gives false or empty texts and setting false, with nothing changed.
    bool getEnabled(const int& index) const;
    bool setEnabled(const int& index, bool enabled);
    Vor_String getImage(const int& index) const;
    bool setImage(const int& index, const Vor_String& file);
    /// One for each language, in the order of MacroLangs.
    Vor_StringArray getLangs(const int& index) const;
    bool setLangs(const int& index, const Vor_StringArray& names);

    /// Appends an enabled group called "New group" in every language. Its index.
    int appendNewGrp();
    bool removeAt(const int& index);
    void namesOfAllGroups(Vor_StringArray& names, AcArray<long>& ids) const;

    struct Group {
        long id = 0;
        bool isEnabled = true;
        Vor_String image;
        Vor_StringArray names;
        bool operator==(const Group&) const = default;
    };
    /// As a file has it. False when another group has its number.
    bool append(Group group);

    bool operator==(const SectionGroupArray& other) const { return m_groups == other.m_groups; }

  private:
    Vor_Array<Group> m_groups;
};
