// What was made from a file is kept until the file changes: a run asks for the same mapping file
// and size lists thousands of times. Changes are told by size, time and identity of the file.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/files.h"

template <class Content>
class CachedFiles {
  public:
    /// What `readFile(path)` (a std::optional<Content>) gave for the file as it is now. Null when
    /// there is no such file or reading gives nothing; a failure is not kept.
    template <class Read>
    std::shared_ptr<const Content> get(std::string_view path, Read&& readFile) {
        const auto stamp = files::stampOf(path);
        if (!stamp) return nullptr;
        const auto known = m_entries.find(path);
        if (known != m_entries.end() && known->second.stamp == *stamp) return known->second.content;
        const bool isSettled = files::isSettled(*stamp);
        auto read = readFile(path);
        if (!read) return nullptr;
        auto content = std::make_shared<const Content>(std::move(*read));
        if (!isSettled || files::stampOf(path) != stamp) return content;
        if (known == m_entries.end() && m_entries.size() >= mostFiles) m_entries.clear();
        m_entries.insert_or_assign(std::string(path), Entry{*stamp, content});
        return content;
    }

  private:
    static constexpr std::size_t mostFiles = 64;

    struct Entry {
        files::Stamp stamp;
        std::shared_ptr<const Content> content;
    };
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };
    std::unordered_map<std::string, Entry, Hash, std::equal_to<>> m_entries;
};
