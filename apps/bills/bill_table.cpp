#include "bills/bill_table.h"

#include "exchange/csv.h"
#include "exchange/texts.h"
#include "platform/encodings.h"
#include "platform/paths.h"

namespace bills {

namespace {

class TableReader {
  public:
    TableReader(const Vor_String& path, exchange::LineSource& source, std::string& error)
        : m_path(path), m_reader(source), m_error(error) {}

    std::optional<BillTable> read() {
        BillTable table;
        std::vector<std::string_view> fields;
        for (bool isFirst = true;; isFirst = false) {
            switch (m_reader.next(fields)) {
                case exchange::CsvReader::ReadResult::record: {
                    Vor_StringArray record;
                    if (!take(fields, record)) return std::nullopt;
                    if (isFirst && hasOtherSeparators(record))
                        return fail(
                            "the columns are not separated by commas; save the table with commas "
                            "and decimal points");
                    if (isFirst)
                        table.header = std::move(record);
                    else
                        table.rows.append(std::move(record));
                    break;
                }
                case exchange::CsvReader::ReadResult::end:
                    if (table.header.isEmpty()) return fail("the file is empty");
                    return table;
                default:
                    return fail(encodings::fromUtf8(m_reader.error()).value_or("bad CSV"));
            }
        }
    }

  private:
    /// As programs write them where the comma is for decimals: all would be one column.
    static bool hasOtherSeparators(const Vor_StringArray& header) {
        return header.length() == 1 &&
               header[0].view().find_first_of(";\t") != std::string_view::npos;
    }

    bool take(const std::vector<std::string_view>& fields, Vor_StringArray& record) {
        record.reserve(static_cast<int>(fields.size()));
        for (const std::string_view field : fields) {
            std::string text, why;
            if (!exchange::fromUtf8(field, text, why)) return fail(why), false;
            record.append(std::move(text));
        }
        return true;
    }
    std::nullopt_t fail(const std::string& what) {
        m_error = m_path.str() + ':' + std::to_string(m_reader.lineNumber()) + ": " + what;
        return std::nullopt;
    }

    const Vor_String& m_path;
    exchange::CsvReader m_reader;
    std::string& m_error;
};

}  // namespace

std::optional<BillTable> readBillTable(const Vor_String& path, std::string& error) {
    std::string why;
    auto source = exchange::LineSource::openFile(paths::toMachine(path), why);
    if (!source) {
        error = path.str() + ": " + encodings::fromUtf8(why).value_or("it cannot be read");
        return std::nullopt;
    }
    return TableReader(path, *source, error).read();
}

}  // namespace bills
