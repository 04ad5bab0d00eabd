#include "exchange/line_source.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace exchange {

namespace {

constexpr size_t firstBuffer = size_t{256} << 10;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool wouldWait(int descriptor) {
    pollfd question{descriptor, POLLIN, 0};
    return ::poll(&question, 1, 0) == 0;
}

}  // namespace

Descriptor::~Descriptor() {
    if (m_number > STDERR_FILENO) ::close(m_number);
}

std::optional<LineSource> LineSource::open(const std::string& path, std::string& error) {
    const bool isInput = path == "-";
    Descriptor descriptor(isInput ? STDIN_FILENO : ::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat status {};
    if (descriptor.number() < 0 || ::fstat(descriptor.number(), &status) != 0) {
        error = std::strerror(errno);
        return std::nullopt;
    }
    if (S_ISDIR(status.st_mode)) {
        error = "is a folder";
        return std::nullopt;
    }
    const long long size = S_ISREG(status.st_mode) ? static_cast<long long>(status.st_size) : 0;
    return LineSource(std::move(descriptor), shownName(path), size);
}

std::string LineSource::shownName(const std::string& path) {
    return path == "-" ? "(standard input)" : path;
}

std::optional<LineSource> LineSource::openFile(const std::string& path, std::string& error) {
    struct stat status {};
    const bool isThere = ::stat(path.c_str(), &status) == 0;
    if (!isThere || S_ISREG(status.st_mode) || S_ISDIR(status.st_mode)) return open(path, error);
    error = "is not an ordinary file";
    return std::nullopt;
}

LineSource::LineSource(Descriptor descriptor, std::string name, long long size)
    : m_descriptor(std::move(descriptor)),
      m_name(std::move(name)),
      m_size(size),
      m_buffer(firstBuffer) {}

LineSource::ReadResult LineSource::next(std::string_view& line) {
    line = {};
    m_recordLine += m_recordLines;
    m_recordLines = 1;
    m_begin = m_next;
    ReadResult got = takeLine(0, line);
    if (got == ReadResult::tooLong) got = skipRecord();
    if (m_recordLine <= 1 && line.starts_with(byteOrderMark)) {
        m_begin += byteOrderMark.size();
        line.remove_prefix(byteOrderMark.size());
    }
    if (got == ReadResult::end || got == ReadResult::failed) m_recordLines = 0;
    m_firstNext = m_next;
    return got;
}

LineSource::ReadResult LineSource::extend(std::string_view& record) {
    const ReadResult got = takeLine(m_next - m_begin, record);
    if (got == ReadResult::line) ++m_recordLines;
    return got;
}

void LineSource::keepFirstLineOnly() {
    m_next = m_firstNext;
    m_recordLines = 1;
}

// Makes the record, `length` bytes long so far with its line ends, one line longer. Reading may
// move the record within the buffer, so places are counted from its beginning.
LineSource::ReadResult LineSource::takeLine(size_t length, std::string_view& record) {
    size_t searched = length;
    while (true) {
        const std::string_view buffered(m_buffer.data() + m_begin, m_filled - m_begin);
        const size_t available = buffered.size();
        const size_t lineEnd = buffered.find('\n', searched);
        const bool found = lineEnd != buffered.npos;
        const size_t end = found ? lineEnd : available;
        if (end > maxRecord) return ReadResult::tooLong;
        if (!found && fill()) {
            searched = available;
            continue;
        }
        if (!found && !m_error.empty()) return ReadResult::failed;
        if (!found && available == length) return ReadResult::end;
        m_next = m_begin + end + (found ? 1 : 0);  // the last line may lack its end
        // Not `buffered`: looking for more may have moved it, even when there was no more.
        record = std::string_view(m_buffer.data() + m_begin, end);
        if (record.ends_with('\r')) record.remove_suffix(1);
        return ReadResult::line;
    }
}

// Reads on to the end of a line that does not fit, without keeping it.
LineSource::ReadResult LineSource::skipRecord() {
    while (true) {
        const char* begin = m_buffer.data() + m_begin;
        if (const void* found = std::memchr(begin, '\n', m_filled - m_begin)) {
            m_next = m_begin + static_cast<size_t>(static_cast<const char*>(found) - begin) + 1;
            return ReadResult::tooLong;
        }
        m_begin = m_next = m_filled;
        if (!fill()) return m_error.empty() ? ReadResult::tooLong : ReadResult::failed;
    }
}

// Adds at least one byte to the buffer.
bool LineSource::fill() {
    if (m_atEnd) return false;
    makeRoom();
    if (m_whenWaiting && wouldWait(m_descriptor.number())) m_whenWaiting();
    ssize_t count = 0;
    do {
        count =
            ::read(m_descriptor.number(), m_buffer.data() + m_filled, m_buffer.size() - m_filled);
    } while (count < 0 && errno == EINTR);
    if (count < 0) m_error = std::strerror(errno);
    m_atEnd = count <= 0;
    if (count > 0) m_filled += static_cast<size_t>(count);
    return count > 0;
}

// Half of the buffer free: by forgetting what lies before the record, else by growing.
void LineSource::makeRoom() {
    if (m_buffer.size() - m_filled >= m_buffer.size() / 2) return;
    std::memmove(m_buffer.data(), m_buffer.data() + m_begin, m_filled - m_begin);
    m_discarded += static_cast<long long>(m_begin);
    m_filled -= m_begin;
    m_next -= m_begin;
    m_firstNext -= std::min(m_begin, m_firstNext);
    m_begin = 0;
    if (m_filled > m_buffer.size() / 2) m_buffer.resize(m_buffer.size() * 2);
}

}  // namespace exchange
