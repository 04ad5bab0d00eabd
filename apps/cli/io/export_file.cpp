#include "cli/io/export_file.h"

#include "cli/io/output.h"
#include "cli/io/typed_paths.h"
#include "core_api/text/delimited_text.h"
#include "platform/encodings.h"
#include "platform/files.h"

namespace cli {

void appendRecord(std::string& text, const Vor_StringArray& fields) {
    for (int i = 0; i < fields.length(); ++i) {
        if (i > 0) text += ',';
        appendField(text, encodings::toUtf8(fields[i]), ',');
    }
    text += '\n';
}

bool ExportTarget::isJson() const {
    return json || Vor_String(file).endsWith(".json");
}

bool ExportTarget::isValid() const {
    if (file == "-" || Vor_String(file).endsWith(isJson() ? ".json" : ".csv")) return true;
    complainAt(file, 0, "only .csv and .json can be written");
    return false;
}

ExitCode ExportTarget::write(const std::string& text) const {
    if (file == "-") {
        Output output;
        output.write(text);
        return output.close() ? ExitCode::done : ExitCode::failed;
    }
    const auto path = insidePath(file);
    std::string error;
    if (path && files::writeWhole(*path, text, error)) return ExitCode::done;
    if (path) complainText(error);
    return ExitCode::failed;
}

}  // namespace cli
