#include "standards/native_functions.h"

#include "core_api/text/text_helpers.h"
#include "platform/encodings.h"

namespace {

/// In the order of NativeFunction.
const Vor_StringArray& nativeFunctionNames() {
    static const Vor_StringArray names{"CallChild"};
    return names;
}

bool containsFolded(std::string_view text, std::string_view part) {
    for (const char first : {encodings::toUpper(part[0]), encodings::toLower(part[0])})
        for (size_t at = text.find(first); at != std::string_view::npos;
             at = text.find(first, at + 1))
            if (encodings::equalFolded(text.substr(at, part.size()), part)) return true;
    return false;
}

}  // namespace

bool findNativeFunction(std::string_view text, Vor_String& name) {
    for (const Vor_String& known : nativeFunctionNames()) {
        if (!containsFolded(text, known)) continue;
        name = known;
        return true;
    }
    return false;
}

int nativeFunctionOf(std::string_view name) {
    return nativeFunctionNames().find(name);
}

bool parseChildCall(const Vor_String& text, const Vor_String& function, ChildCall& call,
                    Vor_String& reason) {
    const int name = text.findFirstFrom(function, 0);
    const int open = name < 0 ? -1 : text.findFirstFrom("(", name + function.length());
    const int close = open < 0 ? -1 : text.findFirstFrom(")", open + 1);
    if (close < 0) {
        reason = "the call needs its arguments in parentheses: CallChild(file, variable, ...)";
        return false;
    }
    Vor_StringArray arguments =
        splitStringAtSymbol(text.getSubStringAt(open + 1, close - open - 1), ',', true);
    if (arguments.length() < 2) {
        reason = "the call needs a file and at least one variable: CallChild(file, variable, ...)";
        return false;
    }
    call.file = arguments[0];
    if (call.file.beginsWith("\"")) call.file.removeAt(0);
    if (call.file.endsWith("\"")) call.file.removeAt(call.file.length() - 1);
    arguments.removeAt(0);
    call.variables = std::move(arguments);
    return true;
}
