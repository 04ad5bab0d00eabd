#include "spread/editor/formula_help.h"

#include <algorithm>
#include <array>

#include "core_api/text/text_helpers.h"
#include "core_api/texts/sheet_text_numbers.h"
#include "platform/encodings.h"
#include "spread/control/formula/functions/families.h"
#include "spread/control/formula/lexer.h"
#include "spread/editor/function_words/function_words.h"

namespace editor {

using formula::ReferenceStyle;
using formula::Symbol;
using formula::Token;
using formula::TokenKind;

// --- functions ----------------------------------------------------------------------------------

namespace {

struct Family {
    int name;
    std::span<const formula::FunctionSpec> (*functions)();
    std::span<const FunctionWords> (*words)();
};
constexpr Family families[] = {
    {texts::familyMaths, formula::mathFunctions, mathWords},
    {texts::familyTrigonometry, formula::trigonometryFunctions, trigonometryWords},
    {texts::familyStatistics, formula::statisticsFunctions, statisticsWords},
    {texts::familyMatrices, formula::matrixFunctions, matrixWords},
    {texts::familyLogic, formula::logicFunctions, logicWords},
    {texts::familyLookUp, formula::lookupFunctions, lookupWords},
    {texts::familyTexts, formula::textFunctions, textWords},
    {texts::familyInformation, formula::informationFunctions, informationWords},
    {texts::familyDates, formula::dateFunctions, dateWords},
    {texts::familyEngineering, formula::engineeringFunctions, engineeringWords},
};

/// The help texts of the tables are UTF-8.
std::string inside(std::string_view utf8) {
    return encodings::fromUtf8(utf8).value_or(std::string(utf8));
}

std::vector<std::string> argumentsIn(Language language, const formula::FunctionSpec& spec) {
    std::vector<std::string> arguments;
    if (spec.arguments.empty()) return arguments;
    for (const Vor_String& part : splitStringAtSymbol(spec.arguments, ',', true))
        arguments.push_back(inside(argumentIn(language, part)));
    return arguments;
}

/// English stands where a table has no words.
std::vector<FunctionHelp> makeList(Language language) {
    std::vector<FunctionHelp> list;
    for (const Family& family : families) {
        for (const formula::FunctionSpec& spec : family.functions()) {
            const std::string_view words = wordsIn(language, family.words(), spec.name);
            list.push_back({spec.name, family.name, argumentsIn(language, spec),
                            inside(words.empty() ? spec.summary : words)});
        }
    }
    std::sort(list.begin(), list.end(),
              [](const FunctionHelp& a, const FunctionHelp& b) { return a.name < b.name; });
    return list;
}

auto lowerBound(std::string_view upperName) {
    const std::vector<FunctionHelp>& list = functionList();
    return std::lower_bound(
        list.begin(), list.end(), upperName,
        [](const FunctionHelp& each, std::string_view name) { return each.name < name; });
}

}  // namespace

std::string FunctionHelp::syntax() const {
    std::string text = std::string(name) + "(";
    for (size_t i = 0; i < arguments.size(); ++i) text += (i > 0 ? ", " : "") + arguments[i];
    return text + ")";
}

const std::vector<FunctionHelp>& functionList() {
    static const std::array lists{makeList(Language::english), makeList(Language::dutch),
                                  makeList(Language::german), makeList(Language::french)};
    return lists[static_cast<size_t>(gSettings.current().language)];
}

const FunctionHelp* functionHelp(std::string_view name) {
    const std::string upperName = encodings::uppered(name);
    const auto found = lowerBound(upperName);
    return found != functionList().end() && found->name == upperName ? &*found : nullptr;
}

// --- what is being typed ------------------------------------------------------------------------

namespace {

bool isFormula(std::string_view typed) {
    return typed.starts_with('=');
}

ReferenceStyle styleOf(const FormulaPlace& place) {
    return place.style == 2 ? ReferenceStyle::r1c1 : ReferenceStyle::a1;
}

/// Calls visit(token) for the tokens of a typed formula, with positions in the whole text, up to
/// one that is not complete.
template <class Visit>
void eachToken(std::string_view typed, ReferenceStyle style, Visit&& visit) {
    formula::Lexer lexer(typed.substr(1), style);
    Token token;
    for (lexer.next(token); token.kind != TokenKind::end && token.kind != TokenKind::invalid;
         lexer.next(token)) {
        ++token.position;
        visit(token);
    }
}

/// An open parenthesis, of a function or not, and the commas behind it.
struct OpenCall {
    std::string_view name;
    int argument = 0;
};

/// The argument's index in the help, where "…" stands for any number of the one before.
int helpIndex(const FunctionHelp& function, int argument) {
    const int count = static_cast<int>(function.arguments.size());
    if (argument < count) {
        const bool isMore = function.arguments[static_cast<size_t>(argument)] == "\x85";
        return isMore ? argument - 1 : argument;
    }
    const bool takesMore = count > 1 && function.arguments.back() == "\x85";
    return takesMore ? count - 2 : -1;
}

bool isNamePart(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '.' ||
           c == '_';
}

bool isInText(std::string_view before) {
    return std::count(before.begin(), before.end(), '"') % 2 != 0;
}

}  // namespace

std::optional<ArgumentHint> argumentHint(std::string_view typed, size_t cursor) {
    if (!isFormula(typed) || cursor == 0) return std::nullopt;
    typed = typed.substr(0, std::min(cursor, typed.size()));
    std::vector<OpenCall> open;
    std::string_view name;
    int braces = 0;
    eachToken(typed, ReferenceStyle::a1, [&](const Token& token) {
        if (token.symbol == Symbol::open)
            open.push_back({name});
        else if (token.symbol == Symbol::close && !open.empty())
            open.pop_back();
        else if (token.symbol == Symbol::openBrace)
            ++braces;
        else if (token.symbol == Symbol::closeBrace)
            --braces;
        else if (token.symbol == Symbol::comma && braces == 0 && !open.empty())
            ++open.back().argument;
        name = token.kind == TokenKind::name ? typed.substr(token.position, token.length)
                                             : std::string_view();
    });
    // Parentheses without a function belong to the argument around them.
    while (!open.empty() && open.back().name.empty()) open.pop_back();
    if (open.empty()) return std::nullopt;
    const FunctionHelp* function = functionHelp(open.back().name);
    if (!function) return std::nullopt;
    return ArgumentHint{function, helpIndex(*function, open.back().argument)};
}

std::optional<Completion> completeFunction(std::string_view typed, size_t cursor) {
    cursor = std::min(cursor, typed.size());
    size_t start = cursor;
    while (start > 1 && isNamePart(typed[start - 1])) --start;
    const bool isTyping = isFormula(typed) && start < cursor && !isInText(typed.substr(0, start)) &&
                          !(typed[start] >= '0' && typed[start] <= '9') &&
                          (cursor == typed.size() || !isNamePart(typed[cursor])) &&
                          typed[start - 1] != '$';
    if (!isTyping) return std::nullopt;
    const std::string prefix = encodings::uppered(typed.substr(start, cursor - start));
    Completion completion{start, cursor - start, {}};
    for (auto each = lowerBound(prefix);
         each != functionList().end() && each->name.starts_with(prefix); ++each)
        completion.names.push_back(each->name);
    if (completion.names.empty()) return std::nullopt;
    return completion;
}

// --- references ---------------------------------------------------------------------------------

namespace {

/// A reference with both corners, when it has two.
struct TypedReference {
    size_t start, length;
    Token first;
    std::optional<Token> second;
};

std::vector<TypedReference> typedReferences(std::string_view typed, ReferenceStyle style) {
    std::vector<TypedReference> references;
    std::vector<Token> tokens;
    eachToken(typed, style, [&](const Token& token) { tokens.push_back(token); });
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (tokens[i].kind != TokenKind::reference) continue;
        TypedReference reference{tokens[i].position, tokens[i].length, tokens[i], std::nullopt};
        if (i + 2 < tokens.size() && tokens[i + 1].symbol == Symbol::colon &&
            tokens[i + 2].kind == TokenKind::reference) {
            reference.second = tokens[i + 2];
            reference.length = tokens[i + 2].position + tokens[i + 2].length - reference.start;
            i += 2;
        }
        references.push_back(reference);
    }
    return references;
}

control::Block blockOf(const TypedReference& typed, const FormulaPlace& place) {
    const bool isR1C1 = place.style == 2;
    const auto row = [&](const formula::Corner& corner) {
        return corner.row + (isR1C1 && corner.rowRelative ? place.row : 0);
    };
    const auto col = [&](const formula::Corner& corner) {
        return corner.col + (isR1C1 && corner.colRelative ? place.col : 0);
    };
    const formula::ReferenceToken& first = typed.first.reference;
    const formula::ReferenceToken& second = typed.second ? typed.second->reference : first;
    control::Block block{
        std::min(col(first.first), col(second.last)), std::min(row(first.first), row(second.last)),
        std::max(col(first.first), col(second.last)), std::max(row(first.first), row(second.last))};
    if (first.wholeCols) block.row1 = 1, block.row2 = -1;
    if (first.wholeRows) block.col1 = 1, block.col2 = -1;
    return block;
}

/// Whether the column and the row are absolute.
struct Dollars {
    bool col, row;
    Dollars next() const {
        if (!col && !row) return {true, true};
        if (col && row) return {false, true};
        return row ? Dollars{true, false} : Dollars{false, false};
    }
};

// One corner, or a whole column or row, in A1 notation.
std::string withNextDollars(const formula::ReferenceToken& reference) {
    const formula::Corner& first = reference.first;
    const formula::Corner& last = reference.last;
    const auto mark = [](bool relative) { return std::string(relative ? "$" : ""); };
    if (reference.wholeCols)
        return mark(first.colRelative) + formula::columnLetters(first.col) + ":" +
               mark(first.colRelative) + formula::columnLetters(last.col);
    if (reference.wholeRows)
        return mark(first.rowRelative) + std::to_string(first.row) + ":" + mark(first.rowRelative) +
               std::to_string(last.row);
    const Dollars next = Dollars{!first.colRelative, !first.rowRelative}.next();
    return formula::cellText(first.col, first.row, next.col, next.row);
}

std::string cycled(std::string_view reference) {
    const std::string typed = "=" + std::string(reference);
    const auto found = typedReferences(typed, ReferenceStyle::a1);
    if (found.empty()) return std::string(reference);
    std::string text = withNextDollars(found[0].first.reference);
    if (found[0].second) text += ":" + withNextDollars(found[0].second->reference);
    return text;
}

}  // namespace

std::vector<ReferenceMark> referenceMarks(std::string_view typed, const FormulaPlace& place) {
    std::vector<ReferenceMark> marks;
    if (!isFormula(typed)) return marks;
    int colours = 0;
    for (const TypedReference& reference : typedReferences(typed, styleOf(place))) {
        ReferenceMark mark{reference.start, reference.length, blockOf(reference, place), colours};
        const auto same = std::find_if(marks.begin(), marks.end(), [&](const ReferenceMark& each) {
            return each.block == mark.block;
        });
        if (same != marks.end())
            mark.colour = same->colour;
        else
            ++colours;
        marks.push_back(mark);
    }
    return marks;
}

std::optional<EditedText> cycleReference(std::string_view typed, size_t cursor,
                                         const FormulaPlace& place) {
    if (!isFormula(typed)) return std::nullopt;
    const ReferenceStyle style = styleOf(place);
    for (const TypedReference& reference : typedReferences(typed, style)) {
        const size_t end = reference.start + reference.length;
        if (cursor < reference.start || cursor > end) continue;
        const std::string_view written = typed.substr(reference.start, reference.length);
        const auto a1 =
            formula::convertStyle(written, style, ReferenceStyle::a1, place.col, place.row);
        const auto next =
            a1 ? formula::convertStyle(cycled(*a1), ReferenceStyle::a1, style, place.col, place.row)
               : std::nullopt;
        if (!next) return std::nullopt;
        std::string text(typed.substr(0, reference.start));
        text += *next;
        text += typed.substr(end);
        return EditedText{text, reference.start, next->size()};
    }
    return std::nullopt;
}

std::string referenceTo(const control::Block& block, const FormulaPlace& place) {
    std::string text;
    if (block.row2 == -1)
        text = formula::columnLetters(block.col1) + ":" + formula::columnLetters(block.col2);
    else if (block.col2 == -1)
        text = std::to_string(block.row1) + ":" + std::to_string(block.row2);
    else
        text = formula::cellText(block.col1, block.row1, false, false);
    const bool isArea = block.row2 != -1 && block.col2 != -1 &&
                        (block.col1 != block.col2 || block.row1 != block.row2);
    if (isArea) text += ":" + formula::cellText(block.col2, block.row2, false, false);
    return formula::convertStyle(text, ReferenceStyle::a1, styleOf(place), place.col, place.row)
        .value_or(text);
}

}  // namespace editor
