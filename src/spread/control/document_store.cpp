// Documents from files, and the store of those that were read before. A standards run asks for the
// same document a thousand times a second; the store answers after one look at the file's size and
// time.
#include <algorithm>
#include <functional>
#include <map>

#include "platform/files.h"
#include "spread/control/document.h"
#include "spread/control/grid.h"

namespace control {
namespace {

// Larger documents are read anew each time; so many bytes of file are kept at most.
constexpr int64_t mostBytesOfOne = 4 << 20;
constexpr int64_t mostBytesOfAll = 64 << 20;

class DocumentStore {
  public:
    std::shared_ptr<const Document> find(std::string_view path, const files::Stamp& stamp) {
        const auto found = m_kept.find(path);
        if (found == m_kept.end() || !(found->second.stamp == stamp)) return nullptr;
        found->second.lastUse = ++m_uses;
        return found->second.document;
    }

    void keep(std::string_view path, const files::Stamp& stamp,
              std::shared_ptr<const Document> document) {
        remove(m_kept.find(path));
        m_bytes += stamp.size;
        m_kept.emplace(path, Kept{stamp, std::move(document), ++m_uses});
        while (m_bytes > mostBytesOfAll) {
            const auto older = [](const auto& a, const auto& b) {
                return a.second.lastUse < b.second.lastUse;
            };
            remove(std::min_element(m_kept.begin(), m_kept.end(), older));
        }
    }

  private:
    struct Kept {
        files::Stamp stamp;
        std::shared_ptr<const Document> document;
        uint64_t lastUse;
    };
    using Map = std::map<std::string, Kept, std::less<>>;

    void remove(Map::iterator entry) {
        if (entry == m_kept.end()) return;
        m_bytes -= entry->second.stamp.size;
        m_kept.erase(entry);
    }

    Map m_kept;
    int64_t m_bytes = 0;
    uint64_t m_uses = 0;
};

DocumentStore& store() {
    static DocumentStore instance;
    return instance;
}

std::shared_ptr<Document> readFile(std::string_view path, std::string& error,
                                   files::Stamp* opened = nullptr) {
    const std::optional<std::string> text =
        files::readWhole(path, error, files::usualSizeLimit, opened);
    return text ? readDocument(*text, path, error) : nullptr;
}

std::shared_ptr<const Document> loadStamped(std::string_view path,
                                            const std::optional<files::Stamp>& stamp,
                                            std::string& error) {
    error.clear();
    if (stamp)
        if (auto known = store().find(path, *stamp)) return known;
    const bool isSettled = stamp && files::isSettled(*stamp);
    // A change while it is being read gives the file another stamp: what was read is not found then.
    files::Stamp opened;
    std::shared_ptr<const Document> document = readFile(path, error, &opened);
    if (document && isSettled && stamp->size <= mostBytesOfOne && opened == *stamp)
        store().keep(path, *stamp, document);
    return document;
}

}  // namespace

std::shared_ptr<const Document> loadDocument(std::string_view path, std::string& error) {
    return loadStamped(path, files::stampOf(path), error);
}

bool loadInto(Grid& grid, std::string_view path, std::string& error) {
    const std::optional<files::Stamp> stamp = files::stampOf(path);
    if (stamp && stamp->size > mostBytesOfOne) {
        std::shared_ptr<Document> document = readFile(path, error);
        if (!document) return false;
        grid.adopt(std::move(document));
        return true;
    }
    std::shared_ptr<const Document> document = loadStamped(path, stamp, error);
    if (!document) return false;
    grid.restore(std::move(document));
    return true;
}

}  // namespace control
