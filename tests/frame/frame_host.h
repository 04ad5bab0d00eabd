// A host that notes what the module asks of it, with the module attached.
#pragma once

#include <string>
#include <vector>

#include "frame/library.h"
#include "platform/host/host.h"
#include "platform/window/wnd.h"
#include "support/own_settings.h"
#include "support/test_user.h"

class FrameHost : public Host, public DynamicLinker, public CommandStack {
  public:
    void print(std::string_view text) override { printed += text; }
    void postCommandPrompt() override { ++prompts; }
    void focusMainWindow() override { ++focused; }
    CWnd* mainWindow() override { return window; }
    DynamicLinker* dynamicLinker() override { return this; }
    CommandStack* commandStack() override { return this; }
    bool eraseObject(AcDbObjectId object) override {
        erased.push_back(object.handle());
        return true;
    }
    AcDbObjectId drawMember(std::string_view section) override {
        calls += "draw " + std::string(section) + "\n";
        return AcDbObjectId(77);
    }
    bool unlockApplication(void* application) override {
        calls += application ? "unlock\n" : "unlock nothing\n";
        return true;
    }
    bool registerAppMDIAware(void* application) override {
        calls += application ? "mdi\n" : "mdi nothing\n";
        return true;
    }
    bool removeGroup(std::string_view group) override {
        calls += "remove " + std::string(group) + "\n";
        return true;
    }

    std::string printed, calls;
    std::vector<long long> erased;
    int prompts = 0, focused = 0;
    CWnd* window = nullptr;
};

/// The module attached to a host, with a registry of its own and a user that follows a script.
class FrameTest : public testing::Test {
  protected:
    FrameTest() : m_scope(host) { attachLibrary(&instance); }
    ~FrameTest() override { detachLibrary(); }

    bool isOverridden() const { return gResourceOverride.current() == &instance; }

    int instance = 0;
    OwnSettings settings;
    FrameHost host;
    TestUser user;

  private:
    HostScope m_scope;
};
