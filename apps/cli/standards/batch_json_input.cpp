#include <algorithm>
#include <nlohmann/json.hpp>

#include "cli/standards/batch_input.h"
#include "exchange/texts.h"

namespace cli {

namespace {

using Json = nlohmann::json;

// Takes the members of one flat object over as they are read. Nothing is built up, and what is
// nested is refused where it begins, however deep it goes.
class ValueHandler : public Json::json_sax_t {
  public:
    /// The object of the next line goes into `cells`.
    void begin(TwVarCells& cells) {
        m_cells = &cells;
        m_given.assign(static_cast<size_t>(cells.length()), false);
        m_error.clear();
        m_index = -1;
        m_isOpen = false;
    }
    const std::string& error() const { return m_error; }
    bool isGiven(int index) const { return m_given[static_cast<size_t>(index)]; }

    bool null() override { return take({}); }
    bool boolean(bool) override { return refuse("true and false are no values"); }
    bool number_integer(number_integer_t number) override { return take(std::to_string(number)); }
    bool number_unsigned(number_unsigned_t number) override { return take(std::to_string(number)); }
    bool number_float(number_float_t, const string_t& written) override { return take(written); }
    bool string(string_t& text) override {
        return exchange::fromUtf8(text, m_text, m_error) && take(m_text);
    }
    bool binary(binary_t&) override { return refuse("is no JSON"); }
    bool start_object(std::size_t) override {
        if (m_isOpen) return refuse("a value must be a number or a text");
        m_isOpen = true;
        return true;
    }
    bool key(string_t& name) override {
        m_index = -1;
        if (!exchange::fromUtf8(name, m_text, m_error)) return false;
        if (m_cells->findVarCell(m_text, m_index) != Acad::eOk || !(*m_cells)[m_index].isInput())
            return refuse("\"" + name + "\" is no input of the standard");
        if (m_given[static_cast<size_t>(m_index)])
            return refuse("\"" + name + "\" stands there twice");
        m_given[static_cast<size_t>(m_index)] = true;
        return true;
    }
    bool end_object() override { return true; }
    bool start_array(std::size_t) override { return refuse("a value must be a number or a text"); }
    bool end_array() override { return true; }
    bool parse_error(std::size_t position, const std::string&,
                     const nlohmann::detail::exception&) override {
        return refuse("is no JSON at character " + std::to_string(position));
    }

  private:
    bool take(std::string_view text) {
        if (!m_isOpen) return refuse("is no JSON object");
        (*m_cells)[m_index].typedValue().setText(text);
        return true;
    }
    bool refuse(std::string message) {
        m_error = std::move(message);
        return false;
    }

    TwVarCells* m_cells = nullptr;
    std::vector<bool> m_given;
    std::string m_text;
    std::string m_error;
    int m_index = -1;
    bool m_isOpen = false;
};

class JsonInput : public BatchInput {
  public:
    explicit JsonInput(exchange::LineSource& source) : m_source(source) {}

    bool begin(const TwVarCells&, std::string&) override { return true; }

    ReadResult next(TwVarCells& cells, std::string& error) override {
        std::string_view line;
        do {
            switch (m_source.next(line)) {
                case exchange::LineSource::ReadResult::line:
                    break;
                case exchange::LineSource::ReadResult::end:
                    return ReadResult::end;
                case exchange::LineSource::ReadResult::tooLong:
                    error = "longer than 16 MiB";
                    return ReadResult::bad;
                case exchange::LineSource::ReadResult::failed:
                    error = m_source.error();
                    return ReadResult::failed;
            }
        } while (line.find_first_not_of(" \t") == line.npos);
        return takeLine(line, cells, error) ? ReadResult::values : ReadResult::bad;
    }

  private:
    bool takeLine(std::string_view line, TwVarCells& cells, std::string& error) {
        m_handler.begin(cells);
        if (!Json::sax_parse(line, &m_handler)) {
            error = m_handler.error();
            return false;
        }
        for (int i = 0; i < cells.length(); ++i) {
            if (!cells[i].isInput() || m_handler.isGiven(i)) continue;
            error = "the input ";
            exchange::appendUtf8(error, cells[i].name());
            error += " is missing";
            return false;
        }
        return true;
    }

    exchange::LineSource& m_source;
    ValueHandler m_handler;
};

}  // namespace

std::unique_ptr<BatchInput> makeJsonInput(exchange::LineSource& source) {
    return std::make_unique<JsonInput>(source);
}

}  // namespace cli
