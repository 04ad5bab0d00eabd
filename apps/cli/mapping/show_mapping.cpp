#include "cli/io/output.h"
#include "cli/mapping/mapped_standard.h"
#include "cli/mapping/mapping_commands.h"
#include "core_api/files.h"
#include "exchange/json_writer.h"
#include "exchange/texts.h"
#include "mapping/mapping_file.h"
#include "mapping_dialog/object_list.h"
#include "runs/given_value.h"
#include "runs/macro_run.h"

namespace cli {

namespace {

struct ShownMapping {
    Vor_String key;
    SheetChoices choices;
};

std::string asText(const std::vector<ShownMapping>& mappings) {
    std::string text;
    for (const ShownMapping& mapping : mappings) appendMapping(text, mapping.key, mapping.choices);
    return text;
}

void writeVariable(exchange::JsonWriter& json, const VariableChoice& variable) {
    json.beginObject();
    json.key("name");
    json.text(variable.name);
    json.key("use");
    json.utf8(variable.isInput ? "input" : "output");
    json.key("type");
    json.utf8(runs::typeName(variable.type));
    if (variable.object) {
        json.key("object");
        json.text(objectLabel(*variable.object));
    }
    if (variable.isMissing) {
        json.key("missing");
        json.truth(true);
    }
    json.endObject();
}

std::string asJson(const std::vector<ShownMapping>& mappings) {
    std::string text;
    exchange::JsonWriter json(text);
    json.beginArray();
    for (const ShownMapping& mapping : mappings) {
        json.beginObject();
        json.key("key");
        json.text(mapping.key);
        json.key("variables");
        json.beginArray();
        for (const VariableChoice& variable : mapping.choices.variables())
            writeVariable(json, variable);
        json.endArray();
        json.endObject();
    }
    json.endArray();
    return text + "\n";
}

/// The mapping of a line. Without a macro all its objects are taken to be there.
std::optional<ShownMapping> readLine(const Vor_String& line, const TwVarCells& declared,
                                     const TwSSMapping* objects) {
    TwSSMapping stored;
    if (stored.initMappingFromLine(line) != Acad::eOk) return std::nullopt;
    return ShownMapping{mappingLineKey(line),
                        SheetChoices(declared, stored, objects ? *objects : stored)};
}

}  // namespace

ExitCode showMapping(const ShowMappingRequest& request) {
    std::string key, error;
    if (!exchange::fromUtf8(request.key, key, error)) {
        complain("--key " + request.key + ": " + error);
        return ExitCode::wrongCall;
    }
    const auto standard = openMappedStandard(request.name);
    if (!standard) return ExitCode::failed;
    std::optional<MappedMacro> macro;
    if (!request.macroFile.empty() && !(macro = openMappedMacro(request.macroFile)))
        return ExitCode::failed;

    Vor_String failure = mappingFilePath(standard->name);
    if (!ObjectExportFileExists(failure)) {
        complainText(failure + ": there is none yet; 'mapping set' makes one");
        return ExitCode::failed;
    }
    const auto lines = readMappingLines(standard->name, &failure);
    if (!lines) {
        complainText(failure);
        return ExitCode::failed;
    }
    std::vector<ShownMapping> mappings;
    for (const Vor_String& line : *lines) {
        if (!key.empty() && !mappingLineKey(line).equal(key, true)) continue;
        if (auto mapping = readLine(line, standard->declared, macro ? &macro->objects : nullptr))
            mappings.push_back(std::move(*mapping));
    }
    if (!key.empty() && mappings.empty()) {
        complainText(runs::noSuchKey(standard->name, key, *lines));
        return ExitCode::failed;
    }
    Output output;
    output.write(request.json ? asJson(mappings) : asText(mappings));
    return output.close() ? ExitCode::done : ExitCode::failed;
}

ExitCode listObjects(const ObjectsRequest& request) {
    const auto macro = openMappedMacro(request.macroFile);
    if (!macro) return ExitCode::failed;
    Output output;
    for (const TwValueType type : {TwValueType::Double, TwValueType::String}) {
        const ObjectList objects(macro->objects, type);
        for (int i = 0; i < objects.length(); ++i) {
            std::string& text = output.text();
            const std::string word = runs::typeName(*mapTypeValueType(objects[i].kind()));
            text += word + std::string(8 - word.size(), ' ');
            exchange::appendUtf8(text, objects.labels()[i]);
            if (objects[i].kind() == TwMapType::memberSectionSize) {
                text += "  ";
                exchange::appendUtf8(text, objects[i].spreadsheetVariable());  // which size it is
            }
            text += '\n';
            output.written();
        }
    }
    return output.close() ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
