#include "standards/run_chain.h"

#include <algorithm>
#include <filesystem>

#include "core_api/text/text_helpers.h"

Vor_String withoutDetours(const Vor_String& path) {
    std::string text(path.str());
    std::replace(text.begin(), text.end(), '\\', '/');
    if (text.find("./") == text.npos && text.find("//") == text.npos) return Vor_String(text);
    return Vor_String(std::filesystem::path(text).lexically_normal().string());
}

RunningStandard* RunningStandard::s_innermost = nullptr;
int RunningStandard::s_depth = 0;
int RunningStandard::s_count = 0;
unsigned long long RunningStandard::s_serial = 0;
Vor_String RunningStandard::s_home;

RunningStandard::RunningStandard() : m_caller(s_innermost) {
    if (s_depth++ == 0) {
        ++s_serial;
        s_count = 0;
    }
    ++s_count;
    s_innermost = this;
}

RunningStandard::~RunningStandard() {
    --s_depth;
    s_innermost = m_caller;
    if (m_caller) m_caller->m_childGave = std::move(m_givenBack);
}

void RunningStandard::setPath(const Vor_String& path) {
    m_path = &path;
    if (s_depth > 1) return;
    s_home = getPath(path);
    if (s_home.isEmpty()) s_home = ".";
}

bool RunningStandard::isRunning(const Vor_String& path) {
    const Vor_String wanted = withoutDetours(path);
    for (const RunningStandard* run = s_innermost; run; run = run->m_caller)
        if (run->m_path && withoutDetours(*run->m_path).equal(wanted)) return true;
    return false;
}
