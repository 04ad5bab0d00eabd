// Whatever is saved, a failing disk leaves the old file whole and the caller told.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>

#include <cerrno>
#include <functional>

#include "core_api/files.h"
#include "core_api/property_list.h"
#include "platform/registry/registry.h"
#include "support/failing_steps.h"
#include "support/temporary_folder.h"

namespace {

using testing::HasSubstr;
using Save = std::function<bool(const std::string& path, Vor_String& message)>;

TEST(Saving, FailureKeepsTheOldFileWhoeverSaves) {
    const TemporaryFolder folder;
    ::setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
    const std::string path = folder.write("vormant/user.registry", "registry 1\n");
    const struct {
        const char* what;
        Save save;
    } savers[] = {
        {"lines",
         [](const std::string& to, Vor_String& message) {
             return ObjectExportWriteFile(to, {"new", "lines"}, &message) == Acad::eOk;
         }},
        {"records",
         [](const std::string& to, Vor_String& message) {
             return writeFile(to, {{"new", "record"}}, &message);
         }},
        {"properties",
         [](const std::string& to, Vor_String& message) {
             Vor_PropertyList list;
             list.setInt("new", 1);
             return list.save(to, message);
         }},
        {"registry",
         [](const std::string&, Vor_String& message) {
             std::string error;
             const bool done = registry::write(registry::Root::user, "key", "n", "v", error);
             message = error;
             return done;
         }},
    };
    for (const auto& saver : savers) {
        for (const auto step : {FailingSteps::opening, FailingSteps::secondWrite,
                                FailingSteps::flushing, FailingSteps::renaming}) {
            const FailingSteps steps(step, ENOSPC);
            Vor_String message;
            EXPECT_FALSE(saver.save(path, message)) << saver.what << " at step " << step;
            EXPECT_THAT(message.str(), HasSubstr("cannot write " + path)) << saver.what;
            EXPECT_EQ(folder.read("vormant/user.registry"), "registry 1\n") << saver.what;
        }
    }
    EXPECT_FALSE(registry::read(registry::Root::user, "key", "n"));
    for (const auto& saver : savers) {
        folder.write("vormant/user.registry", "registry 1\n");
        Vor_String message;
        EXPECT_TRUE(saver.save(path, message)) << saver.what << ": " << message.str();
        EXPECT_NE(folder.read("vormant/user.registry"), "registry 1\n") << saver.what;
    }
    ::unsetenv("XDG_CONFIG_HOME");
}

}  // namespace
