// Attaching, the entry point, and whose resources are in front.
#include "frame/entry_point.h"
#include "frame/frame_host.h"
#include "frame/open_macro_dialogs.h"
#include "frame/starters.h"
#include "standards/run_observer.h"

namespace {

TEST(Library, AttachesAnInstanceOnly) {
    detachLibrary();  // the test program attached its own
    EXPECT_FALSE(attachLibrary(nullptr));
    EXPECT_EQ(libraryInstance(), nullptr);
    const int instance = 0;
    EXPECT_TRUE(attachLibrary(&instance));
    EXPECT_EQ(libraryInstance(), &instance);
    EXPECT_EQ(gResourceOverride.current(), nullptr);
    detachLibrary();
    EXPECT_EQ(libraryInstance(), nullptr);
    EXPECT_FALSE(gResourceOverride.SetDefaultResource());
}

TEST(ResourceOverride, NestsAndRestoresOnlyWhatWasSet) {
    TwTempResourceOverride resources;
    EXPECT_FALSE(resources.SetDefaultResource());
    resources.RestoreOriginalResource();
    EXPECT_EQ(resources.current(), nullptr);
    const int ours = 0, theirs = 0;
    resources.SaveDefaultResource(&ours);
    EXPECT_EQ(resources.current(), nullptr);
    EXPECT_TRUE(resources.SetDefaultResource());
    resources.SaveDefaultResource(&theirs);
    EXPECT_TRUE(resources.SetDefaultResource());
    EXPECT_EQ(resources.current(), &theirs);
    resources.RestoreOriginalResource();
    EXPECT_EQ(resources.current(), &ours);
    resources.RestoreOriginalResource();
    EXPECT_EQ(resources.current(), nullptr);
}

TEST_F(FrameTest, EntryPointInitialisesAndIgnoresStrangers) {
    int application = 0;
    EXPECT_EQ(acrxEntryPoint(AcRx::kInitAppMsg, &application), AcRx::kRetOK);
    EXPECT_EQ(host.calls, "unlock\nmdi\n");
    EXPECT_EQ(gBitmapChecked, bitmapResource(8134));
    EXPECT_EQ(gBitmapUnchecked, bitmapResource(8136));
    EXPECT_FALSE(gBitmapChecked.isEmpty());
    EXPECT_NE(gBitmapChecked, gBitmapUnchecked);
    for (const int other : {0, 3, 4, -1, 99})
        EXPECT_EQ(acrxEntryPoint(static_cast<AcRx::AppMsgCode>(other), nullptr), AcRx::kRetOK);
    EXPECT_EQ(host.calls, "unlock\nmdi\n");
    EXPECT_EQ(host.prompts, 0);
}

class ResourceWatcher : public RunObserver {
  public:
    ResourceWatcher() { setRunObserver(this); }
    ~ResourceWatcher() override { setRunObserver(nullptr); }
    void runEnded(bool) override { atEnd = gResourceOverride.current(); }
    ModuleInstance atEnd = nullptr;
};

TEST_F(FrameTest, RunsOfStandardsHaveTheModulesResources) {
    ResourceWatcher watcher;
    TwDlgStandardsData data;
    data.standardsName = "no such standard";
    EXPECT_FALSE(StartDlgStandardsSS(data));
    EXPECT_EQ(watcher.atEnd, &instance);
    EXPECT_FALSE(isOverridden());
}

TEST_F(FrameTest, UnloadClosesEveryModelessDialog) {
    MacroData macro;
    EditConstrData constraints;
    int slot = 0;
    ASSERT_TRUE(StartDlgMacroModeless(true, macro, slot));
    ASSERT_TRUE(StartDlgMacroModeless(true, macro, slot));
    ASSERT_TRUE(StartDlgEditConstraints(constraints));
    EXPECT_EQ(acrxEntryPoint(AcRx::kUnloadAppMsg, nullptr), AcRx::kRetOK);
    EXPECT_EQ(host.calls, "remove VORMANT_SS\n");
    EXPECT_EQ(openMacroDialogs().length(), 0);
    EXPECT_FALSE(GetDlgMacroData(0, macro));
    EXPECT_EQ(host.prompts, 3);
}

}  // namespace
