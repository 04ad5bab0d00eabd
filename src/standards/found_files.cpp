#include "standards/found_files.h"

#include "core_api/text/text_helpers.h"
#include "platform/files.h"
#include "standards/run_chain.h"

namespace {

constexpr size_t mostFound = 1000;
constexpr std::int64_t missing = -1;

std::optional<Vor_String> firstExisting(const std::vector<Vor_String>& candidates) {
    for (const Vor_String& candidate : candidates)
        if (files::exists(candidate)) return candidate;
    return std::nullopt;
}

std::optional<Vor_String> firstAllowed(const std::vector<Vor_String>& candidates) {
    auto found = firstExisting(candidates);
    return found && outsideRefusal(*found, RunningStandard::home()) ? std::nullopt : found;
}

}  // namespace

FoundFiles& FoundFiles::instance() {
    static FoundFiles found;
    return found;
}

const std::optional<Vor_String>* FoundFiles::knownAs(const std::string& key) {
    if (RunningStandard::serial() == 0) return nullptr;
    if (m_serial != RunningStandard::serial() || m_home != RunningStandard::home()) startRun();
    const auto known = m_found.find(key);
    return known == m_found.end() ? nullptr : &known->second;
}

std::optional<Vor_String> FoundFiles::format(const std::string& key,
                                             const std::vector<Vor_String>& candidates) {
    if (RunningStandard::serial() == 0) return firstAllowed(candidates);
    for (const Vor_String& candidate : candidates) noteFolderOf(candidate);
    return m_found.insert_or_assign(key, firstAllowed(candidates)).first->second;
}

std::optional<Vor_String> FoundFiles::refusal(const std::vector<Vor_String>& candidates) {
    const auto found = firstExisting(candidates);
    return found ? outsideRefusal(*found, RunningStandard::home()) : std::nullopt;
}

/// Forgets everything when a folder has changed since it was looked into.
void FoundFiles::startRun() {
    m_serial = RunningStandard::serial();
    bool holds = m_isLasting && m_found.size() < mostFound && m_home == RunningStandard::home() &&
                 m_rule == libraryNameRule().outside;
    for (auto folder = m_folders.begin(); holds && folder != m_folders.end(); ++folder) {
        const auto stamp = files::folderStampOf(folder->first);
        holds = (stamp ? stamp->time : missing) == folder->second;
    }
    if (holds) return;
    m_found.clear();
    m_folders.clear();
    m_isLasting = true;
    m_home = RunningStandard::home();
    m_rule = libraryNameRule().outside;
}

void FoundFiles::noteFolderOf(const Vor_String& file) {
    const Vor_String path = getPath(file);
    const auto [folder, isNew] = m_folders.try_emplace(path.isEmpty() ? "." : path.str(), missing);
    if (!isNew) return;
    const auto stamp = files::folderStampOf(folder->first);
    if (!stamp) return;
    folder->second = stamp->time;
    m_isLasting = m_isLasting && files::isSettled(*stamp);
}
