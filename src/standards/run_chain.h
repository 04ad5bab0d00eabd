// The standards that are running right now, each started by the one before: keeps a standard from
// calling itself through others, and calls from nesting or branching without end.
#pragma once

#include "core_api/text/vor_string.h"

inline constexpr int mostNestedRuns = 32;
/// Two calls in each of thirty standards would be a billion runs.
inline constexpr int mostRunsTogether = 10'000;

/// One run, for the length of a scope.
class RunningStandard {
  public:
    RunningStandard();
    ~RunningStandard();
    RunningStandard(const RunningStandard&) = delete;
    RunningStandard& operator=(const RunningStandard&) = delete;

    /// Known once the file is loaded; borrowed.
    void setPath(const Vor_String& path);

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
    static RunningStandard* s_innermost;
    static int s_depth;
    static int s_count;
    static unsigned long long s_serial;
    static Vor_String s_home;
};
