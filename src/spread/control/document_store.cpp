// Documents from files, and the store of those that were read before. A standards run asks for the
// same document a thousand times a second; the store answers after one look at the file's size and
// time.
#include <functional>
#include <list>
#include <map>

#include "platform/files.h"
#include "spread/control/document.h"
#include "spread/control/grid.h"

namespace control {
namespace {

// Counted in bytes of file. In memory a standard takes some nine times as much, its cells and what
// is prepared of its equations together: all that is kept comes to some 150 MB at most. Larger
// documents are read anew each time.
constexpr int64_t mostBytesOfOne = 4 << 20;
constexpr int64_t mostBytesOfAll = 16 << 20;

class DocumentStore {
  public:
    /// Looks at the file only when there is something to compare it with.
    std::shared_ptr<const Document> find(std::string_view path) {
        const auto found = m_kept.find(path);
        if (found == m_kept.end() || files::stampOf(path) != found->second.stamp) return nullptr;
        m_byUse.splice(m_byUse.end(), m_byUse, found->second.use);
        return found->second.document;
    }

    void keep(std::string_view path, const files::Stamp& stamp,
              std::shared_ptr<const Document> document) {
        remove(m_kept.find(path));
        m_bytes += stamp.size;
        const auto entry = m_kept.emplace(path, Kept{stamp, std::move(document), {}}).first;
        entry->second.use = m_byUse.insert(m_byUse.end(), entry);
        while (m_bytes > mostBytesOfAll) remove(m_byUse.front());
    }

  private:
    struct Kept;
    using Map = std::map<std::string, Kept, std::less<>>;
    struct Kept {
        files::Stamp stamp;
        std::shared_ptr<const Document> document;
        std::list<Map::iterator>::iterator use;
    };

    void remove(Map::iterator entry) {
        if (entry == m_kept.end()) return;
        m_bytes -= entry->second.stamp.size;
        m_byUse.erase(entry->second.use);
        m_kept.erase(entry);
    }

    Map m_kept;
    std::list<Map::iterator> m_byUse;  // the one used longest ago in front
    int64_t m_bytes = 0;
};

DocumentStore& store() {
    static DocumentStore instance;
    return instance;
}

/// What was read, and the file as it was when reading began.
struct ReadFile {
    std::shared_ptr<Document> document;  ///< null when there is none to be had
    files::Stamp stamp;
    bool isSettled = false;
};

ReadFile readFile(std::string_view path, std::string& error) {
    ReadFile reading;
    const std::int64_t start = files::now();
    const std::optional<std::string> text =
        files::readWhole(path, error, files::usualSizeLimit, &reading.stamp);
    if (!text) return reading;
    reading.document = readDocument(*text, path, error);
    reading.isSettled = files::isSettled(reading.stamp, start);
    return reading;
}

bool isLarge(const ReadFile& reading) {
    return reading.stamp.size > mostBytesOfOne;
}

/// A change while it was read, or later, gives the file another stamp: this is not found then.
std::shared_ptr<const Document> kept(std::string_view path, ReadFile reading) {
    if (reading.document && reading.isSettled && !isLarge(reading))
        store().keep(path, reading.stamp, reading.document);
    return std::move(reading.document);
}

}  // namespace

std::shared_ptr<const Document> knownDocument(std::string_view path) {
    return store().find(path);
}

std::shared_ptr<const Document> loadDocument(std::string_view path, std::string& error) {
    error.clear();
    if (auto known = store().find(path)) return known;
    return kept(path, readFile(path, error));
}

bool loadInto(Grid& grid, std::string_view path, std::string& error) {
    error.clear();
    if (auto known = store().find(path)) {
        grid.restore(std::move(known));
        return true;
    }
    ReadFile reading = readFile(path, error);
    if (!reading.document) return false;
    if (isLarge(reading))
        grid.adopt(std::move(reading.document));
    else
        grid.restore(kept(path, std::move(reading)));
    return true;
}

}  // namespace control
