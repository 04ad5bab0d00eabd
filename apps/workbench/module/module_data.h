// What the module's starters work on while the program runs: the macro in front, and objects that a
// drawing would hold in a CAD program. They are filled from the library when they are first wanted
// and keep what the user makes of them until another library is opened.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "frame/starters.h"
#include "runs/macro_run.h"
#include "workbench/module/open_macros.h"

class MacroPage;

/// Once given, each keeps what the user changed.
struct ModuleObjects {
    /// The module whose constraints were confirmed last: one that has lost all can get some again.
    struct ConstrainedModule {
        Vor_String macro;
        Vor_String name;
    } constrained;
    std::optional<DynArrayData> array;
    std::optional<TwAutoStandardsData> generalVariables;
    std::optional<Vor_Array<Vor_StringArray>> rows;
    DlgProfCutsData memberCuts;
    std::optional<DlgProfFeaturesData> memberFeatures;
    std::optional<TwDlgCis2Data> cis2;
    std::optional<TwGridDlgData> constructionGrid;
    std::optional<TwLevelsDlgData> levels;
    TwCladdingDlgData cladding;
    std::optional<TwBracingDlgData> bracing;
    std::optional<TwLookUpDlgData> lookUp;
    int chosenPicture = -1;
    bool forAllObjects = true;
    Vor_String chosenMacro;
    Vor_String sheetFile;
    Vor_String templateFile;
};

class ModuleData {
  public:
    /// Gives the page of the macro file `path`, that in front for an empty path, or null.
    using PageOf = std::function<MacroPage*(const Vor_String& path)>;
    explicit ModuleData(PageOf pageOf);

    /// That of the page in front, else the first of the library; null when there is none.
    runs::MacroRun* macro();
    MacroPage* pageInFront() const { return m_pageOf({}); }
    /// Changes the macro of a file; its page, if there is one, shows it. Nothing when it is open no
    /// more.
    void changeMacro(const Vor_String& path, const std::function<void(Vor_DbMacro&)>& change);

    /// The first member of the macro, or one without texts.
    Vor_PrPl member();
    /// The full name of the section selected on the page in front; that of the member when the page
    /// shows no sections.
    Vor_String section();
    /// What the pages have to do with sections.
    struct SectionPages {
        std::function<Vor_String()> inFront;  ///< empty when no section is selected there
        std::function<void()> changed;        ///< sizes came, went or have other values
    };
    void setSectionPages(SectionPages pages) { m_sectionPages = std::move(pages); }
    void noteSectionChange() const;
    /// The full names of a section table of the library; of the first one when there is none of
    /// that name.
    static Vor_StringArray sections(std::string_view table);

    /// Another library was opened.
    void clear();

    OpenMacros openMacros;
    ModuleObjects objects;

  private:
    runs::MacroRun* macroOf(const Vor_String& path);

    PageOf m_pageOf;
    SectionPages m_sectionPages;
    std::unique_ptr<runs::MacroRun> m_ofLibrary;
};
