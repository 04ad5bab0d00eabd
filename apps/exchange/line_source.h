// Lines from a file or the standard input through one large buffer, for filters that see millions
// of them. Memory is bounded: a record may be maxRecord bytes long, longer ones are skipped and
// reported. A byte order mark at the start is skipped. A line may be looked at together with the
// ones after it, which is how a quoted CSV field runs over several lines.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace exchange {

/// An open file, closed at the end unless it is one of the three standard ones.
class Descriptor {
  public:
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor();
    int number() const { return m_number; }

  private:
    int m_number;
};

class LineSource {
  public:
    static constexpr size_t maxRecord = size_t{16} << 20;

    /// `path` is a file, or "-" for the standard input. Nothing, with the reason in `error`, when
    /// it cannot be opened.
    static std::optional<LineSource> open(const std::string& path, std::string& error);
    /// The same of nothing but an ordinary file, which has an end.
    static std::optional<LineSource> openFile(const std::string& path, std::string& error);

    static std::string shownName(const std::string& path);

    enum class ReadResult {
        line,
        end,
        tooLong,  ///< skipped up to its end
        failed,   ///< reading failed, see error()
    };

    /// The next line without its "\n" or "\r\n"; it lives until the next call.
    ReadResult next(std::string_view& line);
    /// Makes `record` longer by the line after it, with the line end between them as it was read.
    /// `end` and `tooLong` leave the place of reading as it was; `record` is then of no more use.
    ReadResult extend(std::string_view& record);
    /// Goes back to the line after the first one of the record last read.
    void keepFirstLineOnly();

    /// The number of the line that the record last read began with, from 1.
    long long lineNumber() const { return m_recordLine; }
    const std::string& name() const { return m_name; }
    const std::string& error() const { return m_error; }
    /// Bytes consumed so far, and the size of the file; 0 when that is not known (a pipe).
    long long consumed() const { return m_discarded + static_cast<long long>(m_next); }
    long long size() const { return m_size; }

    /// Called before a read that has to wait: time to hand on what was answered so far.
    void whenWaiting(std::function<void()> action) { m_whenWaiting = std::move(action); }

  private:
    LineSource(Descriptor descriptor, std::string name, long long size);
    bool fill();
    void makeRoom();
    ReadResult takeLine(size_t length, std::string_view& record);
    ReadResult skipRecord();

    Descriptor m_descriptor;
    std::string m_name;
    std::string m_error;
    long long m_size = 0;
    std::function<void()> m_whenWaiting;

    std::vector<char> m_buffer;
    size_t m_begin = 0;      // of the record last read
    size_t m_firstNext = 0;  // after its first line
    size_t m_next = 0;       // after its last line
    size_t m_filled = 0;
    long long m_discarded = 0;  // bytes that left the buffer
    bool m_atEnd = false;
    long long m_recordLine = 1;
    long long m_recordLines = 0;
};

}  // namespace exchange
