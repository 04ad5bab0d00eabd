#include <string>

#include "core_api/files.h"
#include "core_api/text/text_helpers.h"
#include "platform/escaped_text.h"
#include "platform/files.h"

namespace {

// Takes one record from its line. False when a field is damaged.
bool readRecord(std::string_view line, Vor_StringArray& record) {
    for (bool more = true; more;) {
        more = line.find('\t') != std::string_view::npos;
        auto field = unescaped(takePart(line, '\t'));
        if (!field) return false;
        record.append(std::move(*field));
    }
    return true;
}

}  // namespace

bool readRecords(std::string_view text, std::string_view source, RecordRows& records,
                 Vor_String& message) {
    RecordRows read;
    for (int line = 1; !text.empty(); ++line) {
        Vor_StringArray record;
        if (!readRecord(takeLine(text), record)) {
            message = std::string(source) + ":" + std::to_string(line) +
                      ": a backslash stands alone; write it twice";
            return false;
        }
        read.append(std::move(record));
    }
    records = std::move(read);
    return true;
}

Vor_String writeRecords(const RecordRows& records) {
    std::string text;
    for (const Vor_StringArray& record : records) {
        for (int i = 0; i < record.length(); ++i) {
            if (i > 0) text += '\t';
            appendEscaped(text, record[i]);
        }
        text += '\n';
    }
    return text;
}

bool readFile(std::string_view path, Vor_String& name, RecordRows& records, Vor_String* message) {
    std::string error;
    Vor_String damage;
    const auto text = files::readWhole(path, error, textFileLimit);
    if (!text || !readRecords(*text, path, records, damage)) {
        if (message) *message = text ? damage : Vor_String(std::move(error));
        return false;
    }
    name = removeExtension(getFileName(path));
    return true;
}
