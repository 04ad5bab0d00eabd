// What the pages of section groups and of section types have in common: a list of entries with a
// check mark each for those in use, and the properties of the one that is selected. What is shown
// is stored before another entry is shown. Pages work on the catalogue they are given.
#pragma once

#include "core_api/sections/section_catalogue.h"
#include "platform/window/dialog.h"
#include "spread/vor_spread.h"

class CataloguePage : public CDialog {
  public:
    enum Item {
        entryList = 1101,
        addButton = 1102,
        removeButton = 1103,
        propertiesFrame = 1104,
        enabledBox = 1105,
        pictureLabel = 1106,
        pictureField = 1107,
        groupLabel = 1108,
        groupList = 1109,
        remarkLabel = 1110,
        remarkField = 1111,
        namesFrame = 1112,
        namesSheet = 1113,
    };

    CataloguePage(const DialogResource& resource, CWnd* parent, SectionCatalogue& catalogue);
    ~CataloguePage() override;

    /// Takes over what is typed for the entry shown.
    void store();
    /// Fills the page again, after the catalogue was changed elsewhere.
    void refresh();
    /// One column, a row for each language.
    Vor_Spread& names() { return m_names; }

    void onCommand(int id, int code) override;
    bool preTranslateKey(const KeyMessage& key) override;

  protected:
    void onInit() override;
    void onSize(CSize before) override;

    SectionCatalogue& catalogue() { return m_catalogue; }
    const SectionCatalogue& catalogue() const { return m_catalogue; }

    // --- the entries, by their index from 0 --------------------------------------------------
    virtual int count() const = 0;
    virtual Vor_String nameOf(int entry) const = 0;
    virtual bool isInUse(int entry) const = 0;
    virtual void setInUse(int entry, bool inUse) = 0;
    virtual Vor_String pictureOf(int entry) const = 0;
    virtual void setPicture(int entry, const Vor_String& file) = 0;
    virtual Vor_StringArray namesOf(int entry) const = 0;
    virtual void setNames(int entry, const Vor_StringArray& names) = 0;
    virtual void append() = 0;
    virtual void removeEntry(int entry) = 0;
    /// What only one kind of entry has; `entry` is -1 when none is shown.
    virtual void showOwn(int /*entry*/, bool /*canChange*/) {}
    virtual void storeOwn(int /*entry*/) {}

  private:
    void fillList();
    void show(int entry);
    void add();
    void remove();
    void onChecked();

    SectionCatalogue& m_catalogue;
    Vor_Spread m_names;
    int m_shown = -1;
};

class GroupsPage : public CataloguePage {
  public:
    static constexpr int resourceNumber = 8751;
    GroupsPage(CWnd* parent, SectionCatalogue& catalogue);

  protected:
    int count() const override { return groups().length(); }
    Vor_String nameOf(int entry) const override { return groups().getName(entry); }
    bool isInUse(int entry) const override { return groups().getEnabled(entry); }
    void setInUse(int entry, bool inUse) override { groups().setEnabled(entry, inUse); }
    Vor_String pictureOf(int entry) const override { return groups().getImage(entry); }
    void setPicture(int entry, const Vor_String& file) override { groups().setImage(entry, file); }
    Vor_StringArray namesOf(int entry) const override { return groups().getLangs(entry); }
    void setNames(int entry, const Vor_StringArray& names) override {
        groups().setLangs(entry, names);
    }
    void append() override { groups().appendNewGrp(); }
    void removeEntry(int entry) override { groups().removeAt(entry); }

  private:
    SectionGroupArray& groups() { return catalogue().groups; }
    const SectionGroupArray& groups() const { return catalogue().groups; }
};

class TypesPage : public CataloguePage {
  public:
    static constexpr int resourceNumber = 8752;
    TypesPage(CWnd* parent, SectionCatalogue& catalogue);

  protected:
    int count() const override { return types().length(); }
    Vor_String nameOf(int entry) const override { return types()[entry].getName(); }
    bool isInUse(int entry) const override { return types()[entry].isEnabled; }
    void setInUse(int entry, bool inUse) override { types()[entry].isEnabled = inUse; }
    Vor_String pictureOf(int entry) const override { return types()[entry].image; }
    void setPicture(int entry, const Vor_String& file) override { types()[entry].image = file; }
    Vor_StringArray namesOf(int entry) const override { return types()[entry].names; }
    void setNames(int entry, const Vor_StringArray& names) override {
        types()[entry].names = names;
    }
    void append() override { types().append({}); }
    void removeEntry(int entry) override { types().removeAt(entry); }
    void showOwn(int entry, bool canChange) override;
    void storeOwn(int entry) override;

  private:
    Vor_Array<SectionType>& types() { return catalogue().types; }
    const Vor_Array<SectionType>& types() const { return catalogue().types; }

    AcArray<long> m_groupIds;  // behind the entries of the group list
};
