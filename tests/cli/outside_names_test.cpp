// Names in the files of a library that lead out of it, and names that mean the library although
// the folder that the program was started in has a file of that name.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "cli/library.h"

namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* refusal =
    "outside of the library: put the file into it, or allow it with "
    "--outside";

class OutsideNames : public testing::Test {
  protected:
    OutsideNames() : m_before(std::filesystem::current_path()) {
        std::filesystem::current_path(folder.path());
        folder.write("steel.txt", "fy\t1\n");
        folder.write("only here.txt", "fy\t1\n");
        folder.write("Child.tws", child("1"));
        folder.write(standards + "Data/steel.txt", "fy\t355\n");
        folder.write(standards + "Childs/Child.tws", child("355"));
        const auto link = [&](const std::string& name, const std::string& to) {
            std::filesystem::create_symlink(folder.path() / to, folder.path() / (standards + name));
        };
        link("Data/link.txt", "steel.txt");
        link("Data/linked", "");
        link("Childs/Link.tws", "Child.tws");
        link("Childs/linked", "");
    }
    ~OutsideNames() override { std::filesystem::current_path(m_before); }

    static std::string child(const std::string& value) {
        return column({"Input", "Double P", "Output", "Double W", "Calc", "W=" + value});
    }
    /// What a standard of the library with this equation gives.
    program::Result run(const std::string& equation, bool isAllowed = false,
                        const std::string& file = standards + "Parent.tws") const {
        folder.write(file, column({"Input", "Double P", "Output", "Double W", "Calc", equation}));
        std::vector<std::string> call{
            "--library", "lib", "standards", "run", file.starts_with("lib") ? "Parent" : file,
            "--set",     "P=1"};
        if (isAllowed) call.insert(call.begin(), "--outside");
        return program::run(call);
    }
    static inline const std::string standards = "lib/Connection Standards/";
    program::Folder folder;

  private:
    std::filesystem::path m_before;
};

TEST_F(OutsideNames, OfDataFilesAreRefusedUnlessAllowed) {
    for (const std::string& name :
         {std::string("../../../steel.txt"), folder / "steel.txt", std::string("link.txt"),
          std::string("linked/steel.txt"), std::string("./../../../steel.txt")}) {
        const std::string call = "W=TONUMBER(GETCELL(\"" + name + "\",\"fy\"))";
        const auto refused = run(call);
        EXPECT_THAT(refused.err, HasSubstr(refusal)) << name;
        EXPECT_THAT(refused.out, Not(HasSubstr("W  1"))) << name;
        EXPECT_THAT(run(call, true).out, HasSubstr("W  1\n")) << name;
        EXPECT_THAT(run("W=STDSIZEWITHTOLERANCE(\"" + name + "\",5,P,1,1)").err, HasSubstr(refusal))
            << name;
    }
}

TEST_F(OutsideNames, OfChildrenAreRefusedUnlessAllowed) {
    for (const std::string& name : {std::string("../../Child.tws"), folder / "Child.tws",
                                    std::string("Link.tws"), std::string("linked/Child.tws")}) {
        const std::string call = "CallChild(\"" + name + "\",P,W)";
        const auto refused = run(call);
        EXPECT_EQ(refused.exitCode, 1) << name;
        EXPECT_THAT(refused.err, HasSubstr(refusal)) << name;
        EXPECT_THAT(run(call, true).out, HasSubstr("W  1\n")) << name;
    }
}

TEST_F(OutsideNames, BareNamesMeanTheLibrary) {
    for (const bool isAllowed : {false, true}) {
        EXPECT_THAT(run("W=TONUMBER(GETCELL(\"steel.txt\",\"fy\"))", isAllowed).out,
                    HasSubstr("W  355\n"));
        EXPECT_THAT(run("CallChild(\"Child.tws\",P,W)", isAllowed).out, HasSubstr("W  355\n"));
        EXPECT_THAT(run("W=TONUMBER(GETCELL(\"only here.txt\",\"fy\"))", isAllowed).err,
                    HasSubstr("there is no data file"));
    }
}

TEST_F(OutsideNames, AStandardThatIsNamedBringsItsFolder) {
    folder.write("job/Near.tws", child("7"));
    EXPECT_THAT(run("CallChild(\"Near.tws\",P,W)", false, "job/Mine.tws").out, HasSubstr("W  7\n"));
    EXPECT_THAT(run("CallChild(\"Child.tws\",P,W)", false, "Mine.tws").out, HasSubstr("W  1\n"));
    EXPECT_THAT(run("CallChild(\"../Child.tws\",P,W)", false, "job/Mine.tws").err,
                HasSubstr(refusal));
}

}  // namespace
