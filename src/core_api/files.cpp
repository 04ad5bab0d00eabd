#include "core_api/files.h"

#include "platform/escaped_text.h"
#include "platform/files.h"

namespace {

ErrorStatus statusOf(bool done) {
    return done ? Acad::eOk : Acad::eInvalidInput;
}

Vor_StringArray toArray(std::vector<std::string> paths) {
    Vor_StringArray array;
    array.reserve(static_cast<int>(paths.size()));
    for (std::string& path : paths) array.append(std::move(path));
    return array;
}

bool writeText(std::string_view path, std::string_view text, Vor_String* message) {
    std::string error;
    const bool done = files::writeWhole(path, text, error);
    if (!done && message) *message = std::move(error);
    return done;
}

}  // namespace

ErrorStatus ObjectExportReadFile(std::string_view path, Vor_StringArray& lines,
                                 Vor_String* message) {
    std::string error;
    const auto text = files::readWhole(path, error, textFileLimit);
    if (!text) {
        if (message) *message = std::move(error);
        return Acad::eInvalidInput;
    }
    lines.clear();
    for (std::string_view rest = *text; !rest.empty();) lines.append(takeLine(rest));
    return Acad::eOk;
}

ErrorStatus ObjectExportWriteFile(std::string_view path, const Vor_StringArray& lines,
                                  Vor_String* message) {
    std::string text;
    for (const Vor_String& line : lines) text.append(line.view()).append("\n");
    return statusOf(writeText(path, text, message));
}

bool writeFile(std::string_view path, const RecordRows& records, Vor_String* message) {
    return writeText(path, writeRecords(records), message);
}

Vor_StringArray ObjectExportFindFiles(std::string_view folder, std::string_view pattern) {
    return toArray(files::find(folder, pattern, false));
}

Vor_StringArray ObjectExportFindFilesRecursive(std::string_view folder, std::string_view pattern) {
    return toArray(files::find(folder, pattern, true));
}

ErrorStatus ObjectExportGetFileTime(std::string_view path, std::int64_t& time) {
    const auto stamp = files::stampOf(path);
    if (stamp) time = stamp->time;
    return statusOf(stamp.has_value());
}

bool ObjectExportFileExists(std::string_view path) {
    return files::mayExist(path);
}

ErrorStatus ObjectExportCreateDirectory(std::string_view path, Vor_String* message) {
    std::string error;
    const bool done = files::createFolder(path, error);
    if (!done && message) *message = std::move(error);
    return statusOf(done);
}
