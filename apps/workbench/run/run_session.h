// A standard that a user tries out: values for its inputs, and what comes of them. Every change
// runs it again; that takes far less than a frame of the screen.
#pragma once

#include <memory>
#include <optional>
#include <utility>

#include "runs/calculation.h"
#include "runs/named_request.h"

class RunSession {
  public:
    /// Nothing, with the reason in `failure` (Windows-1252), when it cannot be read.
    static std::unique_ptr<RunSession> open(const Vor_String& path, Vor_String& failure);

    const runs::DeclaredStandard& standard() const { return m_standard; }
    /// In the order of the sheet.
    std::vector<const runs::DeclaredVariable*> inputs() const;
    std::vector<const runs::DeclaredVariable*> outputs() const;

    std::string value(std::string_view input);
    /// Windows-1252. When it gives a reason, the variable takes no such value and keeps the old
    /// one. Nothing happens for what is no input.
    Vor_String setValue(std::string_view input, std::string_view value);
    /// The variable is meant to name a section.
    static bool namesSection(const runs::DeclaredVariable& variable);

    /// Runs; the calculation says how it went.
    void run();
    const runs::Calculation& calculation() const { return m_calculation; }
    /// The calculation, for who still shows it while the next run is made.
    runs::Calculation takeCalculation() { return std::exchange(m_calculation, {}); }
    /// The file was changed on disk since it was opened.
    bool isStale() const;

  private:
    RunSession(runs::NamedRequest request, runs::DeclaredStandard standard);

    runs::NamedRequest m_request;
    runs::DeclaredStandard m_standard;
    runs::Calculation m_calculation;
    std::optional<std::int64_t> m_time;
};
