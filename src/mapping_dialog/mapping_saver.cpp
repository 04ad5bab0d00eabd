#include "mapping_dialog/mapping_saver.h"

#include <algorithm>

#include "core_api/text/text_helpers.h"
#include "mapping/mapping_file.h"
#include "platform/host/host.h"

namespace {

constexpr int keyLength = 24;
constexpr int mostDraws = 9999;

std::optional<Vor_String> drawKey(const Vor_String& standardsName) {
    Vor_StringArray taken;
    if (const auto lines = readMappingLines(standardsName))
        for (const Vor_String& line : *lines) taken.append(mappingLineKey(line));
    Vor_String key;
    for (int draw = 0; draw < mostDraws; ++draw) {
        if (!generateRandomString(keyLength, key, true)) return std::nullopt;
        if (!taken.contains(key, true)) return key;
    }
    return std::nullopt;
}

}  // namespace

MappingSaver::~MappingSaver() {
    Vor_String message;
    if (!undo(message)) acutPrint(message + "\n");
}

bool MappingSaver::undo(Vor_String& message) {
    std::string error;
    bool isDone = true;
    for (const Before& before : m_before) isDone = before.file->putBack(error) && isDone;
    m_before.clear();
    if (!isDone) message = error;
    return isDone;
}

bool MappingSaver::begin(const Vor_String& path, Vor_String& message) {
    const auto isSame = [&](const Before& before) { return before.path == path; };
    if (std::any_of(m_before.begin(), m_before.end(), isSame)) return true;
    std::string error;
    auto change = files::ExclusiveChange::take(path, error);
    auto file = change ? files::KeptFile::keep(path, error) : nullptr;
    if (file)
        m_before.push_back({path, std::move(*change), std::move(file)});
    else
        message = error;
    return !m_before.empty() && isSame(m_before.back());
}

ErrorStatus MappingSaver::save(const Vor_String& standardsName, const TwSSMapping& mapping,
                               Vor_String& key, Vor_String& message) {
    if (!begin(mappingFilePath(standardsName), message)) return Acad::eInvalidInput;
    const auto fresh = drawKey(standardsName);
    if (!fresh) {
        message = mappingFilePath(standardsName) + ": no new key could be drawn; try again";
        return Acad::eInvalidInput;
    }
    const ErrorStatus status = saveUnder(standardsName, mapping, *fresh, message);
    if (status == Acad::eOk) key = *fresh;
    return status;
}

ErrorStatus MappingSaver::saveUnder(const Vor_String& standardsName, const TwSSMapping& mapping,
                                    const Vor_String& key, Vor_String& message) {
    return begin(mappingFilePath(standardsName), message)
               ? mapping.setMappingToFile(standardsName, key, &message)
               : Acad::eInvalidInput;
}
