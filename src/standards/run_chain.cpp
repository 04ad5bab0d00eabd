#include "standards/run_chain.h"

RunningStandard* RunningStandard::s_innermost = nullptr;
int RunningStandard::s_depth = 0;
unsigned long long RunningStandard::s_serial = 0;

RunningStandard::RunningStandard() : m_caller(s_innermost) {
    if (s_depth++ == 0) ++s_serial;
    s_innermost = this;
}

RunningStandard::~RunningStandard() {
    --s_depth;
    s_innermost = m_caller;
}

bool RunningStandard::isRunning(const Vor_String& path) {
    for (const RunningStandard* run = s_innermost; run; run = run->m_caller)
        if (run->m_path && run->m_path->equal(path)) return true;
    return false;
}
