#include "cli/standards/batch_input.h"
#include "cli/standards/variables.h"
#include "exchange/csv.h"
#include "exchange/texts.h"

namespace cli {

namespace {

class CsvInput : public BatchInput {
  public:
    explicit CsvInput(exchange::LineSource& source) : m_reader(source) {}

    bool begin(const TwVarCells& cells, std::string& error) override {
        const auto got = m_reader.next(m_fields);
        error = got == exchange::CsvReader::ReadResult::end
                    ? "there is no header; it names " + describe(cells, TwCellType::input)
                    : m_reader.error();
        return got == exchange::CsvReader::ReadResult::record && takeHeader(cells, error);
    }

    ReadResult next(TwVarCells& cells, std::string& error) override {
        switch (m_reader.next(m_fields)) {
            case exchange::CsvReader::ReadResult::record:
                return takeValues(cells, error) ? ReadResult::values : ReadResult::bad;
            case exchange::CsvReader::ReadResult::end:
                return ReadResult::end;
            case exchange::CsvReader::ReadResult::bad:
                error = m_reader.error();
                return ReadResult::bad;
            case exchange::CsvReader::ReadResult::failed:
                break;
        }
        error = m_reader.error();
        return ReadResult::failed;
    }

  private:
    bool takeHeader(const TwVarCells& cells, std::string& error) {
        std::vector<bool> given(static_cast<size_t>(cells.length()));
        for (const auto field : m_fields) {
            int index = 0;
            std::string name;
            if (!exchange::fromUtf8(field, name, error)) return false;
            const bool known =
                cells.findVarCell(name, index) == Acad::eOk && cells[index].isInput();
            if (!known || given[static_cast<size_t>(index)]) {
                error = "column \"" + std::string(field) + "\" " +
                        (known ? "stands there twice" : "is no input") + "; the standard takes " +
                        describe(cells, TwCellType::input);
                return false;
            }
            given[static_cast<size_t>(index)] = true;
            m_columns.push_back(index);
        }
        for (int i = 0; i < cells.length(); ++i) {
            if (!cells[i].isInput() || given[static_cast<size_t>(i)]) continue;
            error = "there is no column for the input ";
            exchange::appendUtf8(error, cells[i].name());
            return false;
        }
        return true;
    }

    bool takeValues(TwVarCells& cells, std::string& error) {
        if (m_fields.size() != m_columns.size()) {
            error = "there are " + std::to_string(m_fields.size()) + " fields, the header has " +
                    std::to_string(m_columns.size());
            return false;
        }
        for (size_t i = 0; i < m_fields.size(); ++i) {
            TwVarCell& cell = cells[m_columns[i]];
            if (!exchange::fromUtf8(m_fields[i], m_text, error)) return false;
            cell.typedValue().setText(m_text);
        }
        return true;
    }

    exchange::CsvReader m_reader;
    std::vector<std::string_view> m_fields;
    std::vector<int> m_columns;  // the input of each column
    std::string m_text;
};

}  // namespace

std::unique_ptr<BatchInput> makeCsvInput(exchange::LineSource& source) {
    return std::make_unique<CsvInput>(source);
}

}  // namespace cli
