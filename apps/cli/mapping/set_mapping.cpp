#include <set>

#include "cli/io/output.h"
#include "cli/io/suggestion.h"
#include "cli/io/typed_paths.h"
#include "cli/mapping/mapped_standard.h"
#include "cli/mapping/mapping_commands.h"
#include "core_api/files.h"
#include "core_api/macros/macro_file.h"
#include "core_api/macros/macro_limits.h"
#include "core_api/text/text_helpers.h"
#include "exchange/texts.h"
#include "mapping/mapping_file.h"
#include "mapping_dialog/mapping_saver.h"
#include "mapping_dialog/object_list.h"
#include "platform/exclusive_change.h"
#include "runs/given_value.h"

namespace cli {

namespace {

constexpr const char* groupPrefix = "Module.";

/// The key in Windows-1252; nothing, after telling why, when a mapping file cannot hold it.
std::optional<Vor_String> takeKey(const std::string& typed) {
    std::string key, error;
    if (!exchange::fromUtf8(typed, key, error)) {
        complain("--key " + typed + ": " + error);
        return std::nullopt;
    }
    if (key.find('=') != key.npos || !isMacroText(key))
        error = "a key has at most 255 characters, none of them = or a control character";
    else if (Vor_String(key).beginsWith(groupPrefix))
        error = "this names a module group, which needs no mapping; choose another key";
    if (error.empty()) return Vor_String(key);
    complain("--key " + typed + ": " + error);
    return std::nullopt;
}

std::vector<std::string> utf8Of(const Vor_StringArray& texts) {
    std::vector<std::string> words;
    for (const Vor_String& text : texts) exchange::appendUtf8(words.emplace_back(), text);
    return words;
}

class Assigning {
  public:
    Assigning(SheetChoices& choices, const TwSSMapping& objects)
        : m_choices(choices),
          m_numbers(objects, TwValueType::Double),
          m_texts(objects, TwValueType::String) {}

    /// Takes "Variable=Object" over. Why not, or nothing.
    std::string take(const std::string& typed) {
        const auto parts = exchange::splitAssignment(typed);
        std::string name, label, error;
        if (!parts) return "write it as Variable=Object";
        if (!exchange::fromUtf8(parts->name, name, error) ||
            !exchange::fromUtf8(parts->value, label, error))
            return error;
        const VariableChoice* variable = m_choices.find(name);
        if (!variable) return noSuchVariable(parts->name);
        const auto index = static_cast<size_t>(variable - m_choices.variables().data());
        if (!m_taken.insert(index).second) return "this variable is given twice";
        if (!variable->canBeMapped())
            return "a mapping file cannot hold this name; rename the variable";
        return label.empty() ? choose(index, nullptr) : chooseByLabel(index, label, parts->value);
    }

  private:
    std::string choose(size_t index, const TwObjectMap* object) {
        m_choices.choose(index, object);
        return {};
    }
    std::string chooseByLabel(size_t index, const Vor_String& label, const std::string& typed) {
        const TwValueType type = m_choices.variables()[index].type;
        const ObjectList& objects = isNumeric(type) ? m_numbers : m_texts;
        const std::string word = runs::typeName(type);
        const TwObjectMap* object = objects.find(label);
        if (!object)
            return "the macro has no such object for a variable of type " + word +
                   didYouMean(nearest(typed, utf8Of(objects.labels())));
        const std::string own = runs::typeName(*mapTypeValueType(object->kind()));
        if (own != word)
            return "the object is of type " + own + ", which no run finds for a variable of type " +
                   word;
        return choose(index, object);
    }
    std::string noSuchVariable(const std::string& typed) const {
        Vor_StringArray names;
        for (const VariableChoice& variable : m_choices.variables()) names.append(variable.name);
        const std::string hint = didYouMean(nearest(typed, utf8Of(names)));
        std::string all;
        exchange::appendUtf8(all, arrToStr(names, ", "));
        return "the standard has no such input or output" +
               (hint.empty() ? "; it has " + all : hint);
    }

    SheetChoices& m_choices;
    const ObjectList m_numbers;
    const ObjectList m_texts;
    std::set<size_t> m_taken;
};

bool attach(MappedMacro& mapped, const Vor_String& standard, const Vor_String& key,
            Vor_String& failure) {
    Vor_Macro& macro = *mapped.macro.macroWrite();
    TabMappingData rows = macro.standards();
    for (int i = 0; i < rows.length(); ++i)
        if (rows.standardsNames()[i].equal(standard) && rows.mappingKeys()[i].equal(key, true))
            return true;
    if (rows.insertRow(rows.length(), standard, key) != Acad::eOk) {
        failure = mapped.path + ": the macro can take no more standards; remove some first";
        return false;
    }
    macro.setStandards(rows);
    return saveMacro(mapped.path, mapped.macro, failure) == Acad::eOk;
}

std::optional<files::ExclusiveChange> changeOf(const Vor_String& path) {
    std::string error;
    auto change = files::ExclusiveChange::take(path, error);
    if (!change) complainText(error);
    return change;
}

}  // namespace

ExitCode setMapping(const SetMappingRequest& request) {
    auto key = takeKey(request.key);
    if (!key) return ExitCode::wrongCall;
    const auto standard = openMappedStandard(request.name);
    if (!standard) return ExitCode::failed;
    // From here on to the end, as what is written comes from what is read.
    const auto mappingChange = changeOf(mappingFilePath(standard->name));
    const auto macroPath = insidePath(request.macroFile);
    if (!mappingChange || !macroPath) return ExitCode::failed;
    const auto macroChange = request.attach ? changeOf(macroFilePath(*macroPath)) : std::nullopt;
    if (request.attach && !macroChange) return ExitCode::failed;
    auto macro = openMappedMacro(request.macroFile);
    if (!macro) return ExitCode::failed;

    Vor_String failure;
    // Read once: what a second reading missed would be written away.
    const auto lines = readMappingLines(standard->name, &failure);
    if (!lines && ObjectExportFileExists(mappingFilePath(standard->name))) {
        complainText(failure);
        return ExitCode::failed;
    }
    TwSSMapping stored;
    if (lines && !key->isEmpty()) (void)stored.getMappingFromLines(*lines, *key);
    SheetChoices choices(standard->declared, stored, macro->objects);
    Assigning assigning(choices, macro->objects);
    for (const std::string& assignment : request.assignments) {
        const std::string refusal = assigning.take(assignment);
        if (refusal.empty()) continue;
        complain(assignment + ": " + refusal);
        return ExitCode::wrongCall;
    }

    MappingSaver saver;
    const TwSSMapping mapping = choices.mapping();
    const ErrorStatus status = key->isEmpty()
                                   ? saver.save(standard->name, mapping, *key, failure)
                                   : saver.saveUnder(standard->name, mapping, *key, failure);
    if (status != Acad::eOk || (request.attach && !attach(*macro, standard->name, *key, failure))) {
        complainText(failure);
        if (!saver.undo(failure)) complainText(failure);
        return ExitCode::failed;
    }
    saver.keep();
    Output output;
    appendMapping(output.text(), *key, choices);
    output.written();
    return output.close() ? ExitCode::done : ExitCode::failed;
}

}  // namespace cli
