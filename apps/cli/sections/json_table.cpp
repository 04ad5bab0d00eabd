#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>
#include <unordered_map>

#include "cli/sections/imported_table.h"
#include "core_api/texts/texts.h"
#include "exchange/texts.h"
#include "platform/encodings.h"

namespace cli {

namespace {

using Json = nlohmann::json;
using Table = Vor_ProfValuesTable;

// --- characters ---------------------------------------------------------------------------------

/// The characters of lines. A line is fetched when its first character is looked at and not before:
/// a number is known to end at the end of its line, and is told of with that line.
class Characters {
  public:
    explicit Characters(exchange::LineSource& source) : m_source(source) {}

    bool isAtEnd() {
        if (m_at <= m_line.size() && m_isOpen) return false;
        if (m_isEnd) return true;
        m_at = 0;
        const exchange::LineSource::ReadResult got = m_source.next(m_line);
        m_isOpen = got == exchange::LineSource::ReadResult::line;
        m_isEnd = !m_isOpen;
        if (got != exchange::LineSource::ReadResult::end) m_number = m_source.lineNumber();
        if (got == exchange::LineSource::ReadResult::tooLong)
            m_failure = "the line is longer than 16 MiB";
        if (got == exchange::LineSource::ReadResult::failed) m_failure = m_source.error();
        return m_isEnd;
    }
    char current() {
        if (isAtEnd()) return '\0';
        return m_at < m_line.size() ? m_line[m_at] : '\n';
    }
    void advance() { ++m_at; }

    /// The last one at the end; 0 when there is none.
    long long line() const { return m_number; }
    size_t place() const { return m_at; }
    const std::string& failure() const { return m_failure; }

  private:
    exchange::LineSource& m_source;
    std::string_view m_line;
    long long m_number = 0;
    size_t m_at = 0;
    bool m_isOpen = false;
    bool m_isEnd = false;
    std::string m_failure;
};

/// What the parser reads them by; the end is the one without characters.
struct CharacterIterator {
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = char;

    char operator*() const { return characters->current(); }
    CharacterIterator& operator++() {
        characters->advance();
        return *this;
    }
    CharacterIterator operator++(int) {
        characters->advance();
        return *this;
    }
    bool operator==(const CharacterIterator& other) const { return isEnd() == other.isEnd(); }
    bool isEnd() const { return !characters || characters->isAtEnd(); }

    Characters* characters = nullptr;
};

// --- what stands where --------------------------------------------------------------------------

enum class Place { file, table, columns, sizes, size, names, values, calculated };
enum Kind : unsigned { null = 1, truth = 2, number = 4, text = 8, object = 16, array = 32 };

struct Member {
    Place in;
    std::string_view key;  ///< empty: whatever stands there
    unsigned kinds;
    std::string_view expected;
    Place opens = Place::file;
};

constexpr Member members[] = {
    {Place::file, "", object, "a section table is one JSON object", Place::table},
    {Place::table, "table", text, "the name of a table is a text"},
    {Place::table, "type", number | text, "a type is a number from 1 to 24"},
    {Place::table, "template", text, "a template is the name of a .dwg file"},
    {Place::table, "columns", array, "the columns are an array of texts", Place::columns},
    {Place::table, "sizes", array, "the sizes are an array of objects", Place::sizes},
    {Place::columns, "", text, "the columns are an array of texts"},
    {Place::sizes, "", object, "the sizes are an array of objects", Place::size},
    {Place::size, "section", text, "the name of a section is a text"},
    {Place::size, "active", truth, "\"active\" is true or false"},
    {Place::size, "names", object, "the names are an object, a text for each language",
     Place::names},
    {Place::size, "values", object, "the values are an object, one for each column", Place::values},
    {Place::size, "mass", number | null, "a mass is a number"},
    {Place::size, "calculated", object, "what is calculated is an object, a number for each column",
     Place::calculated},
    {Place::names, "", text, "a name is a text"},
    {Place::values, "", number | text | null, "a value is a number or a text"},
    {Place::calculated, "", number, "what is calculated is a number"},
};

const Member* memberOf(Place place, std::string_view key) {
    const auto found = std::ranges::find_if(members, [&](const Member& member) {
        return member.in == place && (member.key.empty() || member.key == key);
    });
    return found == std::end(members) ? nullptr : found;
}

/// A bit for each of them.
unsigned keysOf(Place place) {
    unsigned bits = 0;
    for (size_t i = 0; i < std::size(members); ++i)
        if (members[i].in == place) bits |= 1U << i;
    return bits;
}

std::string knownKeys(Place place) {
    std::string keys;
    for (const Member& member : members)
        if (member.in == place) (keys += keys.empty() ? "" : ", ") += member.key;
    return keys;
}

// --- what was read ------------------------------------------------------------------------------

struct Cell {
    std::string column;
    std::string text;
};

struct Size {
    int line = 0;
    std::string section;
    bool isActive = true;
    std::vector<Cell> names;
    std::vector<Cell> values;
};

struct Read {
    std::string table;
    std::string drawnAs;
    int typeLine = 0, columnsLine = 0;
    std::vector<std::string> columns;
    std::vector<Size> sizes;
};

/// Keeps what the parser meets, all texts in Windows-1252, and refuses what has no place in a
/// table.
class TableHandler : public Json::json_sax_t {
  public:
    TableHandler(Characters& characters, ImportProblem& problem)
        : m_characters(characters), m_problem(problem) {}

    Read& read() { return m_read; }

    bool null() override { return fits(Kind::null) && keep(""); }
    bool boolean(bool isTrue) override { return fits(Kind::truth) && keep(isTrue ? "1" : "0"); }
    bool number_integer(number_integer_t number) override {
        return fits(Kind::number) && keep(std::to_string(number));
    }
    bool number_unsigned(number_unsigned_t number) override {
        return fits(Kind::number) && keep(std::to_string(number));
    }
    // As it was written: 5.60 stays what the table of a mill says. Tables have no exponents.
    bool number_float(number_float_t number, const string_t& written) override {
        std::string text;
        if (written.find_first_of("eE") == written.npos)
            text = written;
        else
            exchange::appendNumber(text, number);
        return fits(Kind::number) && keep(std::move(text));
    }
    bool string(string_t& utf8) override {
        std::string text;
        return fits(Kind::text) && take(utf8, text) && keep(std::move(text));
    }
    bool binary(binary_t&) override { return false; }

    bool start_object(std::size_t) override { return fits(Kind::object) && open(); }
    bool start_array(std::size_t) override { return fits(Kind::array) && open(); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }

    bool key(string_t& utf8) override {
        if (!take(utf8, m_key)) return false;
        if (place() >= Place::names) return true;  // columns
        const Member* member = memberOf(place(), m_key);
        if (!member) return refuse("there is no \"" + utf8 + "\" here, only " + knownKeys(place()));
        const auto bit = 1U << (member - members);
        if (m_seen & bit) return refuse("\"" + utf8 + "\" stands there twice");
        m_seen |= bit;
        return true;
    }

    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        if (m_characters.isAtEnd()) return refuse("the JSON ends before the table does");
        return refuse("this is no JSON at character " + std::to_string(m_characters.place()));
    }

  private:
    Place place() const { return m_open.empty() ? Place::file : m_open.back(); }
    int line() const { return static_cast<int>(m_characters.line()); }

    bool refuse(std::string message) {
        m_problem = {m_characters.line(), std::move(message)};
        return false;
    }
    bool take(const std::string& utf8, std::string& text) {
        std::string error;
        return exchange::fromUtf8(utf8, text, error) || refuse(std::move(error));
    }
    bool fits(Kind kind) {
        const Member* member = memberOf(place(), m_key);
        return (member->kinds & kind) != 0 || refuse(std::string(member->expected));
    }

    bool open() {
        const Place opened = memberOf(place(), m_key)->opens;
        m_open.push_back(opened);
        if (opened == Place::columns) m_read.columnsLine = line();
        if (opened == Place::size) {
            m_read.sizes.emplace_back().line = line();
            m_seen &= ~keysOf(Place::size);
        }
        return true;
    }
    bool close() {
        if (place() == Place::size && m_read.sizes.back().section.empty())
            return refuse("the size has no \"section\"");
        m_open.pop_back();
        return true;
    }

    bool keep(std::string text) {
        switch (place()) {
            case Place::table:
                return keepOfTable(std::move(text));
            case Place::columns:
                m_read.columns.push_back(std::move(text));
                return true;
            case Place::size:
                if (m_key == "section") m_read.sizes.back().section = std::move(text);
                if (m_key == "active") m_read.sizes.back().isActive = text == "1";
                return true;  // the mass follows from the values
            case Place::names:
                m_read.sizes.back().names.push_back({m_key, std::move(text)});
                return true;
            case Place::calculated:
                return true;  // for readers: it follows from the values
            default:
                m_read.sizes.back().values.push_back({m_key, std::move(text)});
                return true;
        }
    }
    bool keepOfTable(std::string text) {
        if (m_key == "table") {
            m_read.table = std::move(text);
            return true;
        }
        if (m_read.typeLine > 0) return refuse("a table has a type or a template, not both");
        m_read.typeLine = line();
        m_read.drawnAs = std::move(text);
        return true;
    }

    Characters& m_characters;
    ImportProblem& m_problem;
    Read m_read;
    std::vector<Place> m_open;
    std::string m_key;
    unsigned m_seen = 0;  // bits of members
};

// --- the table ----------------------------------------------------------------------------------

/// Makes the table of what was read: cells get the columns they name.
class TableMaker {
  public:
    TableMaker(Read& read, ImportProblem& problem) : m_read(read), m_problem(problem) {}

    std::optional<ImportedTable> make() {
        if (m_read.columnsLine == 0) return refuse(0, "the table has no \"columns\""), std::nullopt;
        if (!makeHeader()) return std::nullopt;
        m_made.table.drawnAs = m_read.drawnAs;
        m_made.lines = {m_read.typeLine, m_read.columnsLine};
        for (const Size& size : m_read.sizes)
            if (!addSize(size)) return std::nullopt;
        return std::move(m_made);
    }

  private:
    using Places = std::unordered_map<std::string, int>;  // by the column's name

    bool refuse(int line, std::string_view windows1252) {
        m_problem = {line, encodings::toUtf8(windows1252)};
        return false;
    }

    bool makeHeader() {
        Vor_StringArray& header = m_made.table.columnNames;
        header = {"SysName", "I/O"};
        header.appendAll(gMacroLangs.GetAllLanguages());
        const auto isKorean = [](const Cell& cell) { return cell.column == "Korean"; };
        if (std::ranges::any_of(m_read.sizes, [&](const Size& size) {
                return std::ranges::any_of(size.names, isKorean);
            }))
            header.append("Korean");
        for (int i = Table::firstNameColumn; i < header.length(); ++i)
            m_languages.emplace(encodings::lowered(header[i]), i);
        for (const std::string& column : m_read.columns) {
            if (!m_values.emplace(column, header.length()).second)
                return refuse(m_read.columnsLine, "there are two columns \"" + column + "\"");
            header.append(column);
        }
        return true;
    }

    bool addSize(const Size& size) {
        Vor_StringArray row;
        row.setLength(m_made.table.columnNames.length());
        if (!takeSystemName(size, row[Table::systemNameColumn])) return false;
        row[Table::activeColumn] = size.isActive ? "1" : "0";
        std::vector<bool> isFilled(static_cast<size_t>(row.length()));
        const auto put = [&](const Places& places, const std::string& name, const Cell& cell) {
            const auto found = places.find(name);
            if (found == places.end())
                return refuse(size.line,
                              size.section + ": there is no column \"" + cell.column + "\"");
            const auto at = static_cast<size_t>(found->second);
            if (isFilled[at])
                return refuse(size.line, size.section + ": \"" + cell.column + "\" stands twice");
            isFilled[at] = true;
            row[found->second] = cell.text;
            return true;
        };
        for (const Cell& cell : size.names)
            if (!put(m_languages, encodings::lowered(cell.column), cell)) return false;
        for (const Cell& cell : size.values)
            if (!put(m_values, cell.column, cell)) return false;
        m_made.table.rows.append(std::move(row));
        m_made.lines.push_back(size.line);
        return true;
    }

    /// What follows the table's name and a hyphen.
    bool takeSystemName(const Size& size, Vor_String& name) {
        const std::string_view section = size.section;
        const size_t end = m_read.table.empty() ? section.find('-') : m_read.table.size();
        const bool isOfTable =
            end < section.size() && section[end] == '-' &&
            (m_read.table.empty() || encodings::equalFolded(section.substr(0, end), m_read.table));
        if (!isOfTable)
            return refuse(size.line,
                          "a section is called by its table, a hyphen and its own name, "
                          "unlike \"" +
                              size.section + "\"");
        name = section.substr(end + 1);
        return true;
    }

    Read& m_read;
    ImportProblem& m_problem;
    ImportedTable m_made;
    Places m_languages;
    Places m_values;
};

}  // namespace

std::optional<ImportedTable> tableFromJson(exchange::LineSource& source, ImportProblem& problem) {
    Characters characters(source);
    TableHandler handler(characters, problem);
    const bool isRead =
        Json::sax_parse(CharacterIterator{&characters}, CharacterIterator{}, &handler);
    if (!characters.failure().empty()) problem = {characters.line(), characters.failure()};
    if (!isRead || !characters.failure().empty()) return std::nullopt;
    return TableMaker(handler.read(), problem).make();
}

}  // namespace cli
