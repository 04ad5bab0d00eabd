#include "spread/control/formula/functions/argument_reader.h"
#include "spread/control/formula/functions/lookup_family.h"
#include "spread/control/formula/functions/lookup_vector.h"

namespace formula {
namespace {

using Arguments = std::span<const Value>;

bool isVector(const Value& source) {
    return Calculation::rows(source) == 1 || Calculation::cols(source) == 1;
}

/// VLOOKUP and HLOOKUP: search the first column (row), answer from the column (row) `index`.
Value lookUpInTable(Calculation& c, Arguments args, bool isVertical) {
    const Value& wanted = args[0];
    const Value& table = args[1];
    if (wanted.isError()) return wanted;
    if (table.isError()) return table;
    if (table.isText()) return ErrorCode::value;
    ArgumentReader read(c, args);
    const int index = read.whole(2);
    const bool nearest = args.size() > 3 ? read.truth(3) : true;
    if (read.failed()) return read.error();
    if (index < 1) return ErrorCode::value;
    if (index > (isVertical ? c.cols(table) : c.rows(table))) return ErrorCode::ref;
    const LookupVector keys =
        isVertical ? LookupVector::column(c, table, 0) : LookupVector::row(c, table, 0);
    const auto found = nearest ? findAscending(keys, wanted) : findExact(keys, wanted);
    if (!found) return ErrorCode::na;
    return isVertical ? c.element(table, *found, index - 1) : c.element(table, index - 1, *found);
}

struct Extended {
    MatchMode match;
    SearchMode search;
};

/// The modes of XLOOKUP and XMATCH, which stand from argument `first` on.
Result<Extended> readModes(Calculation& c, Arguments args, size_t first) {
    ArgumentReader read(c, args);
    const int match = read.whole(first, 0);
    const int search = read.whole(first + 1, 1);
    if (read.failed()) return read.error();
    const bool searchIsKnown = search >= -2 && search <= 2 && search != 0;
    if (match < -1 || match > 2 || !searchIsKnown) return ErrorCode::value;
    const Extended modes{static_cast<MatchMode>(match), static_cast<SearchMode>(search)};
    if (modes.match == MatchMode::wildcard && search != 1 && search != -1) return ErrorCode::value;
    return modes;
}

}  // namespace

Value vlookup(Calculation& c, Arguments args) {
    return lookUpInTable(c, args, true);
}

Value hlookup(Calculation& c, Arguments args) {
    return lookUpInTable(c, args, false);
}

Value lookup(Calculation& c, Arguments args) {
    const Value& wanted = args[0];
    const Value& source = args[1];
    if (wanted.isError()) return wanted;
    if (source.isError()) return source;
    if (args.size() > 2) {
        if (args[2].isError()) return args[2];
        if (!isVector(source) || !isVector(args[2])) return ErrorCode::na;
        const auto found = findAscending(LookupVector(c, source), wanted);
        if (!found) return ErrorCode::na;
        return c.rows(args[2]) == 1 ? c.element(args[2], 0, *found) : c.element(args[2], *found, 0);
    }
    const bool isWide = c.cols(source) > c.rows(source);
    const auto found = findAscending(
        isWide ? LookupVector::row(c, source, 0) : LookupVector::column(c, source, 0), wanted);
    if (!found) return ErrorCode::na;
    return isWide ? c.element(source, c.rows(source) - 1, *found)
                  : c.element(source, *found, c.cols(source) - 1);
}

Value match(Calculation& c, Arguments args) {
    const Value& wanted = args[0];
    const Value& source = args[1];
    if (wanted.isError()) return wanted;
    if (source.isError()) return source;
    ArgumentReader read(c, args);
    const double order = args.size() > 2 ? read.number(2) : 1;
    if (read.failed()) return read.error();
    if (!isVector(source)) return ErrorCode::na;
    const LookupVector vector(c, source);
    const auto found = order == 0  ? findExact(vector, wanted)
                       : order > 0 ? findAscending(vector, wanted)
                                   : findDescending(vector, wanted);
    return found ? Value(*found + 1.0) : Value(ErrorCode::na);
}

Value xmatch(Calculation& c, Arguments args) {
    const Value& wanted = args[0];
    const Value& source = args[1];
    if (wanted.isError()) return wanted;
    if (source.isError()) return source;
    const auto modes = readModes(c, args, 2);
    if (!modes) return modes.error();
    if (!isVector(source)) return ErrorCode::value;
    const auto found = findExtended(LookupVector(c, source), wanted, modes->match, modes->search);
    return found ? Value(*found + 1.0) : Value(ErrorCode::na);
}

Value xlookup(Calculation& c, Arguments args) {
    const Value& wanted = args[0];
    const Value& source = args[1];
    const Value& results = args[2];
    if (wanted.isError()) return wanted;
    if (source.isError()) return source;
    if (results.isError()) return results;
    const auto modes = readModes(c, args, 4);
    if (!modes) return modes.error();
    if (!isVector(source)) return ErrorCode::value;
    const bool isVertical = c.cols(source) == 1;
    if (isVertical ? c.rows(source) != c.rows(results) : c.cols(source) != c.cols(results))
        return ErrorCode::value;
    const auto found = findExtended(LookupVector(c, source), wanted, modes->match, modes->search);
    if (!found) return args.size() > 3 && !args[3].isMissing() ? args[3] : Value(ErrorCode::na);
    return isVertical ? cutOut(c, results, *found, 0, 1, c.cols(results))
                      : cutOut(c, results, 0, *found, c.rows(results), 1);
}

}  // namespace formula
