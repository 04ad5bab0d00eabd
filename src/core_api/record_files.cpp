#include <string>
#include <vector>

#include "core_api/files.h"
#include "core_api/record_reader.h"
#include "core_api/text/text_helpers.h"
#include "platform/escaped_text.h"
#include "platform/files.h"

bool readRecords(std::string_view text, std::string_view source, RecordRows& records,
                 Vor_String& message) {
    RecordReader reader(text);
    RecordRows read;
    std::vector<std::string_view> fields;
    RecordReader::ReadResult got;
    while ((got = reader.next(fields)) == RecordReader::ReadResult::record) {
        Vor_StringArray record;
        record.reserve(static_cast<int>(fields.size()));
        for (const std::string_view field : fields) record.append(field);
        read.append(std::move(record));
    }
    if (got == RecordReader::ReadResult::damaged) {
        message = std::string(source) + ":" + std::to_string(reader.line()) + ": " + reader.damage;
        return false;
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
