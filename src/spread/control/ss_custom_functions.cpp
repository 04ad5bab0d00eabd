// Custom functions in the control's callback form, made into functions of the formula engine.
#include <cmath>
#include <deque>
#include <string>
#include <vector>

#include "platform/encodings.h"
#include "spread/control/grid.h"
#include "spread/control/ss_api.h"

struct SSTextBlock {
    std::string text;
};

namespace {

using formula::Area;
using formula::Calculation;
using formula::ErrorCode;
using formula::Value;

constexpr int cellFlag = 1;

/// Arguments or a result. Frees the text blocks that nobody took.
class Values {
  public:
    explicit Values(size_t count) : m_values(count) {}
    ~Values() {
        for (SSValue& value : m_values)
            if (value.kind == ssText) delete value.text;
    }
    Values(const Values&) = delete;
    Values& operator=(const Values&) = delete;

    SSValue& operator[](size_t index) { return m_values[index]; }
    SSValue* data() { return m_values.data(); }

  private:
    std::vector<SSValue> m_values;
};

void setText(SSValue& out, std::string_view text) {
    out.text = new SSTextBlock{std::string(text)};
    out.kind = ssText;
}

void setArea(SSValue& out, const Area& area) {
    if (area.isOneCell()) {
        out.kind = ssCell;
        out.cell = {area.col1, area.row1};
    } else {
        out.kind = ssRange;
        out.range = {area.col1, area.row1, area.col2, area.row2};
    }
}

void setArgument(SSValue& out, const Value& value) {
    out.status = ssValid;
    switch (value.type()) {
        case formula::ValueType::number:
            out.kind = ssDouble;
            out.number = value.number();
            return;
        case formula::ValueType::boolean:
            out.whole = value.truth() ? 1 : 0;
            return;
        case formula::ValueType::text:
            setText(out, value.text());
            return;
        case formula::ValueType::area:
            setArea(out, value.area());
            return;
        case formula::ValueType::empty:
        case formula::ValueType::missing:
            out.status = ssEmpty;
            return;
        default:
            out.status = ssFailed;
            return;
    }
}

Value resultOf(Calculation& calculation, const SSValue& result) {
    if (result.status == ssEmpty) return Value::borrowedText("");
    if (result.status != ssValid) return ErrorCode::value;
    switch (result.kind) {
        case ssWhole:
            return static_cast<double>(result.whole);
        case ssDouble:
            return std::isfinite(result.number) ? Value(result.number) : Value(ErrorCode::num);
        case ssText:
            return result.text ? calculation.text(result.text->text) : Value::borrowedText("");
        case ssCell:
            return calculation.cell(result.cell.col, result.cell.row);
        default:
            return ErrorCode::value;
    }
}

Value callBack(SSCustomFunction callback, Calculation& calculation, std::span<const Value> args) {
    Values arguments(args.size());
    for (size_t i = 0; i < args.size(); ++i) setArgument(arguments[i], args[i]);
    Values result(1);
    if (callback(result.data(), arguments.data(), static_cast<short>(args.size())) == 0)
        return ErrorCode::value;
    return resultOf(calculation, result[0]);
}

struct Registered {
    std::string name;
    int least, most, flags;
    SSCustomFunction callback;
    const formula::CustomFunction* function;
};

// The functions of the process. Standards register the same twelve for every run: finding one that
// is known compares pointers.
const formula::CustomFunction* registered(std::string_view name, int least, int most,
                                          SSCustomFunction callback, int flags) {
    static auto* known = new std::deque<Registered>;
    for (const Registered& r : *known)
        if (r.callback == callback && r.flags == flags && r.least == least && r.most == most &&
            r.name == name)
            return r.function;
    formula::CustomFunction function;
    function.name = encodings::uppered(name);
    function.least = least;
    function.most = most;
    function.cellArguments = (flags & cellFlag) != 0;
    function.call = [callback](Calculation& calculation, std::span<const Value> args) {
        return callBack(callback, calculation, args);
    };
    Registered& added =
        known->emplace_back(Registered{std::string(name), least, most, flags, callback, nullptr});
    try {
        added.function = control::internCustomFunction(std::move(function), &added);
    } catch (...) {
        known->pop_back();  // nobody may find it without its function
        throw;
    }
    return added.function;
}

}  // namespace

bool getGlobalStr(SSTextBlock*& block, Vor_String& text) {
    text.clear();
    if (!block) return false;
    text = std::move(block->text);
    delete block;
    block = nullptr;
    return true;
}

SSTextBlock* setGlobalStr(const Vor_String& text) {
    return new SSTextBlock{text.str()};
}

bool SSAddCustomFunctionExt(SSHandle grid, const char* name, int least, int most,
                            SSCustomFunction callback, int flags) {
    constexpr int mostArguments = 255;
    if (!grid || !name || !*name || !callback) return false;
    if (least < 0 || most < least || most > mostArguments) return false;
    grid->addCustomFunction(registered(name, least, most, callback, flags));
    return true;
}
