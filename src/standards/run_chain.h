// The standards that are running right now, each started by the one before: keeps a standard from
// calling itself through others, and calls from nesting or branching without end.
#pragma once

#include <utility>
#include <vector>

#include "core_api/text/vor_string.h"

inline constexpr int mostNestedRuns = 32;
/// Two calls in each of thirty standards would be a billion runs.
inline constexpr int mostRunsTogether = 10'000;

/// `path` without the folders that it enters only to leave them, so that one file has one path.
Vor_String withoutDetours(const Vor_String& path);

/// One run, for the length of a scope.
class RunningStandard {
  public:
    RunningStandard();
    ~RunningStandard();
    RunningStandard(const RunningStandard&) = delete;
    RunningStandard& operator=(const RunningStandard&) = delete;

    /// Known once the file is loaded; borrowed.
    void setPath(const Vor_String& path);

    /// The run gave a value back for the caller's variable at `position`, from 0.
    void giveBack(int position) {
        const auto at = static_cast<size_t>(position);
        if (m_givenBack.size() <= at) m_givenBack.resize(at + 1);
        m_givenBack[at] = true;
    }
    /// Whether the last run that the innermost one called gave a value back for `position`.
    static bool gaveBack(int position) {
        const auto at = static_cast<size_t>(position);
        return s_innermost && at < s_innermost->m_childGave.size() && s_innermost->m_childGave[at];
    }

    /// How many runs are under way.
    static int depth() { return s_depth; }
    /// How many runs the outermost one has begun so far, itself included.
    static int count() { return s_count; }
    /// A run of this file is under way; letter case and detours ("Childs\..\") aside.
    static bool isRunning(const Vor_String& path);
    /// The folder of the outermost standard, whose files belong to it, "." for the current one; of
    /// the last one until the file of the next is known.
    static const Vor_String& home() { return s_home; }
    /// Differs from one outermost run to the next; 0 outside of any run. What is looked up on
    /// disk may be remembered as long as it stays.
    static unsigned long long serial() { return s_depth > 0 ? s_serial : 0; }

  private:
    const Vor_String* m_path = nullptr;
    RunningStandard* m_caller;
    std::vector<bool> m_givenBack;
    std::vector<bool> m_childGave;  // what the last child gave back
    static RunningStandard* s_innermost;
    static int s_depth;
    static int s_count;
    static unsigned long long s_serial;
    static Vor_String s_home;
};
