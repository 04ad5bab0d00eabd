#include "core_api/resource_override.h"

// Needs no code to come to life: libraries attach before main().
constinit TwTempResourceOverride gResourceOverride;

bool TwTempResourceOverride::SetDefaultResource() {
    if (!m_default) return false;
    m_originals.push_back(m_current);  // first, as it may find no memory
    m_current = m_default;
    return true;
}

void TwTempResourceOverride::RestoreOriginalResource() {
    if (m_originals.empty()) return;
    m_current = m_originals.back();
    m_originals.pop_back();
}
