// The records of a record file (core_api/files.h) one after another, without copying their fields:
// for those who go through many files and keep little of them.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "platform/export.h"

class VORMANT_API RecordReader {
  public:
    /// Borrows `text`.
    explicit RecordReader(std::string_view text) : m_rest(text) {}

    enum class ReadResult {
        record,
        end,
        damaged,  ///< see damage; the next record can be read
    };
    /// The next record; its fields live until the next call. An empty line has one empty field.
    ReadResult next(std::vector<std::string_view>& fields);
    /// Of the record last read, from 1.
    int line() const { return m_line; }

    static constexpr const char* damage = "a backslash stands alone; write it twice";

  private:
    std::string_view m_rest;
    int m_line = 0;
    std::deque<std::string> m_unescaped;  // fields of the record that are not as they are written
};
