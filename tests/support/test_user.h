// A scripted user whose problems are the test's failures.
#pragma once

#include <gtest/gtest.h>

#include "platform/window/scripted_user.h"

class TestUser : public ScriptedUser {
  public:
    ~TestUser() override {
        for (const std::string& problem : problems()) ADD_FAILURE() << problem;
        for (const std::string& unused : unusedAnswers())
            ADD_FAILURE() << "never asked: " << unused;
    }
};
