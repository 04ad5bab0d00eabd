#include "mapping/dialog/mapping_saver.h"

#include <algorithm>

#include "core_api/text/text_helpers.h"
#include "mapping/mapping_file.h"
#include "platform/files.h"
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
    for (const Before& before : m_before) {
        std::string error;
        const bool isDone = before.content ? files::writeWhole(before.path, *before.content, error)
                                           : files::removeFile(before.path, error);
        if (!isDone) acutPrint(error + "\n");
    }
}

bool MappingSaver::isKnown(const Vor_String& path) const {
    return std::any_of(m_before.begin(), m_before.end(),
                       [&](const Before& before) { return before.path == path; });
}

ErrorStatus MappingSaver::save(const Vor_String& standardsName, const TwSSMapping& mapping,
                               Vor_String& key, Vor_String& message) {
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
    const Vor_String path = mappingFilePath(standardsName);
    Before before{path, std::nullopt};
    std::string error;
    if (files::exists(path) && !(before.content = files::readWhole(path, error))) {
        message = error;
        return Acad::eInvalidInput;
    }
    if (mapping.setMappingToFile(standardsName, key, &message) != Acad::eOk)
        return Acad::eInvalidInput;
    if (!isKnown(path)) m_before.push_back(std::move(before));
    return Acad::eOk;
}
