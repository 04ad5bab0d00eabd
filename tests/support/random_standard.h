// Random standards for comparing the ways in which they are run: everything that a sheet may hold,
// formulas of its own among it. What is chosen comes from a generator or from a fuzzer's bytes.
#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <utility>

#include "spread/control/formula/parser.h"
#include "support/literal_run.h"

/// A number from 0 up to but not including its argument.
using Choices = std::function<unsigned(unsigned)>;

class RandomStandard {
  public:
    explicit RandomStandard(Choices choose) : m_choose(std::move(choose)) { build(); }

    const std::string& document() const { return m_document; }
    /// Values for what is declared; at times too few, too many or of the wrong kind.
    const std::vector<LiteralVariable>& given() const { return m_given; }
    /// Values for the same variables as they may be given another time.
    std::vector<Vor_String> others() {
        std::vector<Vor_String> texts;
        for (const LiteralVariable& variable : m_given) {
            const std::string& before = variable.value.str();
            const unsigned kind = m_choose(6);
            texts.push_back(kind < 2    ? before
                            : kind == 2 ? " " + before + " "
                            : kind == 3 ? before + "0"
                                        : value(oneIn(8) ? "String " : "Double "));
        }
        return texts;
    }
    GenValues gen() {
        if (oneIn(3)) return {{"gen_X", "gen_Y", "Gap"}, {pick(values), pick(values), "12"}};
        return {};
    }

  private:
    using Place = std::pair<int, int>;  // row, column
    static constexpr int columns = 4;

    bool oneIn(unsigned n) { return m_choose(n) == 0; }
    /// Something that an author would seldom write.
    bool odd(unsigned n) { return !m_isOrderly && oneIn(n); }
    template <size_t n>
    std::string pick(const char* const (&list)[n]) {
        return list[m_choose(n)];
    }

    static constexpr const char* names[] = {"A",     "Gap", "Force", "x.y", "B3",   "T T", "Len",
                                            "gen_X", "Out", "A2",    "S",   "Calc", "a",   "W"};
    static constexpr const char* values[] = {
        "",     "3",    "2.75", "12",   "Calc", "gen_Y", "A=1",
        "#N/A", "-0.5", "1e15", "TRUE", "M20",  "007",   "12345678.12345678"};

    /// Seldom one that the type does not take: that ends the run.
    std::string value(const std::string& type) {
        static constexpr const char* numbers[] = {"",     "3",   "2.75", "12",
                                                  "-0.5", "100", "#N/A", "12345678.12345678"};
        return type == "String " || odd(30) ? pick(values) : pick(numbers);
    }

    std::string cell() {
        const unsigned rows = static_cast<unsigned>(m_lastRow) + 1;
        std::string text;
        if (oneIn(4)) text += '$';
        text += static_cast<char>('A' + m_choose(columns));
        if (oneIn(4)) text += '$';
        return text + std::to_string(1 + m_choose(rows));
    }
    std::string area() {
        if (oneIn(12)) return "C:D";
        return cell() + ":" + cell();
    }

    /// What stands for a value; `inEquation` with names.
    std::string operand(bool inEquation) {
        static constexpr const char* constants[] = {
            "1.5", "2", "0.1", "1/3", "\"t\"", "1/0", "NA()", "\"12\"", "1E99", "TRUE", "\"\""};
        const unsigned kind = m_choose(8);
        if (!m_formulas.empty() && oneIn(5))
            return addressOf(m_formulas[m_choose(static_cast<unsigned>(m_formulas.size()))]);
        if (kind < 2) return m_isOrderly && !oneIn(6) ? constants[m_choose(4)] : pick(constants);
        if (inEquation && (kind < 6 || !m_formatsAtCells)) return variable(8);
        return cell();
    }
    /// At times one that is not declared.
    std::string variable(unsigned seldom) {
        if (m_declared.empty() || odd(seldom)) return pick(names);
        return m_declared[m_choose(static_cast<unsigned>(m_declared.size()))];
    }

    std::string expression(bool inEquation, int depth = 2) {
        const auto part = [&] {
            return depth > 0 && oneIn(3) ? expression(inEquation, depth - 1) : operand(inEquation);
        };
        static constexpr const char* operators[] = {"+", "*", "&", "-", ">", "/", "="};
        // Most standards look at names alone, which runs make use of.
        const unsigned first = m_formatsAtCells ? 0 : 9;
        switch (first + m_choose((inEquation ? 22 : 18) - first)) {
            case 0:
                return "SUM(" + area() + ")";
            case 1:
                return "INDIRECT(\"" + cell() + "\")";
            case 2:
                return "OFFSET(" + cell() + "," + std::to_string(m_choose(4)) + "," +
                       std::to_string(m_choose(2)) + ")";
            case 3:
                return "SUMIF(" + area() + ",\">0\"," + cell() + ")";
            case 4:
                return "INDEX(" + area() + "," + std::to_string(1 + m_choose(4)) + ")";
            case 5:
                return "COUNTA(" + area() + ")";
            case 6:
                return "MAX(" + part() + "," + area() + ")";
            case 7:
                return "SUM(" + cell() + ":INDEX(" + area() + ",2))";
            case 8:
                return "N(" + cell() + ")+ROW(" + cell() + ")+RAND()*0";
            case 9:
                return "IF(" + part() + ">" + part() + "," + part() + "," + part() + ")";
            case 10:
                return "IFERROR(" + part() + "," + part() + ")";
            case 11:
                return "ROUND(" + part() + ",1)";
            case 12:
                return "LEN(" + part() + ")&\"" + (oneIn(4) ? "A" : "x") + "\"";
            case 13:
                return "AND(" + part() + ">1," + part() + ">2)";
            case 18:
                return "ROUNDTO(" + part() + ",5)";
            case 19:
                return "TONUMBER(" + part() + ")+ISNULL(" + part() + ")";
            case 20:
                return "GETCELL(\"table.txt\"," + part() + ")";
            case 21:
                return "GETARRAYITEM(" + part() + ",1)";
            default:
                return part() + pick(operators) + part();
        }
    }

    std::string equation() {
        if (odd(12)) return "no equation";
        if (odd(20)) return "Out=";
        if (oneIn(m_callsOften ? 4 : 20)) return call();
        return variable(20) + (oneIn(6) ? " = " : "=") + (odd(15) ? "=" : "") + expression(true) +
               (odd(15) ? "+" : "");
    }
    std::string call() {
        static constexpr const char* files[] = {
            "Child0.tws", "\"Child1.tws\"", "Child0.tws", "..\\Connection Standards\\Child1.tws",
            "Sheet.tws",  "None.tws"};
        std::string text = oneIn(3) ? "Out=CallChild(" : "CallChild( ";
        text += pick(files);
        for (unsigned i = 0, count = m_choose(7); i < count; ++i) text += ", " + variable(20);
        return text + (odd(15) ? "" : ")");
    }

    static std::string addressOf(Place place) {
        return static_cast<char>('A' + place.second - 1) + std::to_string(place.first);
    }
    static std::string quoted(const std::string& text) {
        std::string line = "\"";
        for (const char c : text) line += c == '\\' ? "\\\\" : std::string(1, c);
        return line;
    }
    void put(Place place, const std::string& text) {
        if (!text.empty()) m_cells[place] = quoted(text);
    }

    std::string newName() {
        if (m_isOrderly) return "V" + std::string(1, static_cast<char>('a' + m_declared.size()));
        return oneIn(30) ? "" : pick(names);
    }

    void declareSection(const char* marker, TwCellType kind) {
        put({++m_lastRow, 1}, marker);
        if (oneIn(4)) put({m_lastRow, 2}, oneIn(2) ? "label" : "gen_X");
        static constexpr const char* types[] = {"Int ", "Double ", "String ", "Double "};
        for (unsigned i = 0, count = m_choose(m_isOrderly ? 6 : 4); i < count; ++i) {
            ++m_lastRow;
            for (int column = 1; column <= (oneIn(3) ? 2 : 1); ++column) {
                const std::string type = pick(types);
                const std::string name = newName();
                put({m_lastRow, column}, (odd(5) ? " " : "") + type + name);
                m_declared.push_back(name);
                if (kind != TwCellType::local)
                    m_given.push_back({name, kind, TwValueType::String, value(type), 0, 0});
            }
        }
    }

    /// Where formulas will stand, which equations then look at.
    void chooseFormulas() {
        if (!oneIn(3)) return;
        for (unsigned i = 0, count = 1 + m_choose(4); i < count; ++i) {
            const Place place{1 + static_cast<int>(m_choose(static_cast<unsigned>(m_lastRow) + 4)),
                              1 + static_cast<int>(m_choose(columns))};
            if (!m_cells.contains(place)) m_formulas.push_back(place);
        }
    }
    void addFormulas() {
        for (const Place& place : m_formulas) {
            if (m_cells.contains(place)) continue;
            std::string text = odd(4)    ? "\"" + pick(names) + "=\"&" + cell()
                               : odd(15) ? "\"Calc\""
                                         : expression(false);
            if (m_isR1C1) {
                using formula::ReferenceStyle;
                const auto converted = formula::convertStyle(
                    text, ReferenceStyle::a1, ReferenceStyle::r1c1, place.second, place.first);
                if (converted) text = *converted;
            }
            static constexpr const char* formats[] = {"", "", "", "@1 ", "@2 "};
            static constexpr const char* results[] = {"", "", "\t5", "\t\"old"};
            m_cells[place] = pick(formats) + "=" + text + pick(results);
        }
    }

    void build() {
        m_isOrderly = !oneIn(3);
        m_isR1C1 = oneIn(4);
        m_callsOften = oneIn(3);
        m_formatsAtCells = oneIn(3);
        std::pair<const char*, TwCellType> sections[] = {{"Input", TwCellType::input},
                                                         {"Output", TwCellType::output},
                                                         {"Local", TwCellType::local}};
        if (odd(3)) std::swap(sections[m_choose(3)], sections[m_choose(3)]);
        for (const auto& [marker, kind] : sections)
            if (!odd(kind == TwCellType::local ? 4 : 20)) declareSection(marker, kind);
        const int declared = m_lastRow;
        put({++m_lastRow, 1}, odd(20) ? "" : "Calc");
        const int first = m_lastRow + 1;
        chooseFormulas();
        m_lastRow += 2 + static_cast<int>(m_choose(m_isOrderly ? 12 : 6));
        for (int row = first; row <= m_lastRow; ++row)
            for (int column = 1; column <= (oneIn(4) ? 2 : 1); ++column)
                if (!oneIn(8)) put({row, column}, equation());
        if (declared > 0 && odd(15)) put({m_lastRow + 1, 1}, "Double Late");
        addFormulas();
        if (odd(15)) m_given.push_back({"more", TwCellType::output, {}, "1", 0, 0});
        if (odd(20) && !m_given.empty()) m_given.pop_back();
        write();
    }

    int lastFormula() const {
        int last = 0;
        for (const Place& place : m_formulas) last = std::max(last, place.first);
        return last;
    }

    void write() {
        m_document = "vormant-sheet 1\nsize 4 " +
                     std::to_string(std::max(m_lastRow + 1, lastFormula())) + "\n" +
                     (m_isR1C1 ? "option refstyle 2\n" : "") +
                     "look 1 number decimals=2\nlook 2 edit\ncells\n";
        for (const auto& [place, content] : m_cells)
            m_document += addressOf(place) + " " + content + "\n";
        m_document += "end " + std::to_string(m_cells.size()) + "\n";
    }

    Choices m_choose;
    std::map<Place, std::string> m_cells;
    std::vector<Place> m_formulas;
    std::vector<std::string> m_declared;
    std::vector<LiteralVariable> m_given;
    int m_lastRow = 0;
    bool m_isOrderly = false;
    bool m_isR1C1 = false;
    bool m_callsOften = false;
    bool m_formatsAtCells = false;
    std::string m_document;
};
