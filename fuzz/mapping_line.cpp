// Lines of mapping files: what is read can be written, and what was written reads back equal.
#include <cstdlib>

#include "mapping/mapping_file.h"
#include "mapping/tw_ss_mapping.h"

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const Vor_String line(std::string_view(reinterpret_cast<const char*>(data), size));
    TwSSMapping mapping;
    if (mapping.initMappingFromLine(line) != Acad::eOk) {
        require(mapping.mappedObjects().isEmpty());
        return 0;
    }
    const Vor_String key = mappingLineKey(line);
    const Vor_String written = makeMappingLine(key, mapping.mappedObjects());
    TwSSMapping again;
    require(again.initMappingFromLine(written) == Acad::eOk);
    require(mappingLineKey(written) == key);
    // What ambiguous or unusable variables cost is lost once, not more with every save.
    require(makeMappingLine(key, again.mappedObjects()) == written);
    require(again.mappedObjects().length() <= mapping.mappedObjects().length());
    return 0;
}
