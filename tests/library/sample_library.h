// Opens the sample library beside the sources.
#pragma once

#include <gtest/gtest.h>

#include "core_api/settings.h"
#include "platform/paths.h"
#include "test_folders.h"

class SampleLibrary : public testing::Test {
  protected:
    SampleLibrary() {
        const auto folder = paths::toInside(VORMANT_SOURCE_DIR "/library/");
        gSettings.setLibDir(folder.value_or(""));
        gSettings.current().diagnostics = true;
    }
    static Vor_String path(std::string_view name) { return gSettings.libDir() + name; }
};
