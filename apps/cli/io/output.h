// The standard output through one large buffer. Writing never stops half way: a failure (a full
// disk) is remembered and told once, at the end. Files and pipes get every byte as it is; on a
// terminal the control characters of texts are shown as "?".
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace cli {

class Output {
  public:
    Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    /// What is to be written next; append to it, then call written().
    std::string& text() { return m_buffer; }
    void written() {
        if (m_buffer.size() >= flushAt) flush();
    }
    void write(std::string_view part) {
        m_buffer += part;
        written();
    }
    void flush();
    /// False when something could not be written; there is no use in going on.
    bool isOpen() const { return m_error == 0; }

    /// Writes what is left. False, with the reason told on the error stream, when anything could
    /// not be written.
    bool close();

  private:
    static constexpr size_t flushAt = size_t{128} << 10;

    std::string m_buffer;
    bool m_isTerminal;
    int m_error = 0;
};

}  // namespace cli
