// Adds one size to a section table: a form with the values of the size it is made from.
#pragma once

#include "platform/window/dialog.h"
#include "sections/dialogs/new_size.h"

/// One row of a section table.
struct SectionSize {
    Vor_ProfValuesTable table;
    /// In: the size that the new one is made from. Out, after OK: the place of the new one among
    /// the active sizes; -1 when none could be made.
    int row = 0;
};

class SizeDialog : public CDialog {
  public:
    static constexpr int resourceNumber = 8723;
    static constexpr int mostValues = 11;
    enum Item {
        nameLabel = 1001,
        nameField = 1002,
        nameFrame = 1003,
        fromValues = 1004,
        ownName = 1005,
        sectionPictureItem = 1006,
        furtherLabel = 1007,
        formLabel = 1008,
        firstValueLabel = 1020,  ///< and those after it
        firstValueField = 1040,
    };

    SizeDialog();

    SectionSize& data() { return m_data; }
    /// The user section whose picture is shown when the table does not say how it is drawn.
    void setSection(const Vor_String& section) { m_section = section; }

    void onCommand(int id, int code) override;

  protected:
    void onInit() override;
    void onOK() override;

  private:
    bool isNamedByValues() const;
    Vor_StringArray pattern() const;
    int shownValues() const;
    void showValues();
    Vor_String labelOf(int value) const;
    int dimensionCount() const;
    void showShapeValues();
    void showFurtherValues();
    bool isTyped(int value) const;
    void showOtherForm();
    Vor_String nameFromValues(const Vor_StringArray& values) const;
    void showName();
    Vor_StringArray typedValues() const;
    NewSize typedSize() const;
    bool isGood(const NewSize& size);
    bool refuse(int text, const Vor_String& what, int field);
    int currentNameColumn() const;

    SectionSize m_data;
    Vor_String m_section;
    SizeNaming m_naming;
    Vor_StringArray m_shown;  // what the dialog itself wrote into the fields of the values
};
