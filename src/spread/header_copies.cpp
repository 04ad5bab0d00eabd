#include "spread/header_copies.h"

#include <optional>
#include <utility>

#include "core_api/library_names.h"
#include "core_api/text/text_helpers.h"
#include "platform/files.h"
#include "platform/window/bitmap.h"
#include "spread/control/document.h"

namespace {

constexpr int mostNumbers = 1000;

/// "Bill header 2.sss".
Vor_String numbered(const Vor_String& name, int number) {
    const Vor_String base = removeExtension(name);
    const std::string_view extension = name.view().substr(base.view().size());
    return base + " " + std::to_string(number) + extension;
}

}  // namespace

bool HeaderCopies::add(Vor_String& reference) {
    m_problem.clear();
    if (reference.isEmpty()) return false;
    if (!files::exists(reference)) {
        if (m_which == HeaderFiles::allOrNothing)
            m_problem = "cannot read " + reference.str() +
                        ": it is not there; correct the page header or footer of the settings";
        return false;
    }
    const std::string_view home = m_folder.isEmpty() ? "." : m_folder.view();
    const auto refusal =
        m_which == HeaderFiles::whereUsable ? outsideRefusal(reference, home) : std::nullopt;
    if (refusal) {
        m_problem = refusal->str();
        return false;
    }
    Copy header{reference, {}, {}};
    const auto isSheet = [](const Copy& copy, std::string& problem) {
        return control::readDocument(copy.content, copy.from, problem) != nullptr;
    };
    if (!read(header, isSheet)) return false;
    std::optional<Copy> picture;
    if (const Vor_String file = changeExtension(reference, "bmp"); files::exists(file)) {
        picture = Copy{file, {}, {}};
        const auto isBitmap = [](const Copy& copy, std::string& problem) {
            if (decodeBitmap(copy.content, problem)) return true;
            problem = copy.from.str() + ": " + problem;
            return false;
        };
        if (!read(*picture, isBitmap)) return false;
    }
    if (!choosePlaces(header, picture ? &*picture : nullptr)) return false;
    if ((picture && !stage(*picture)) || !stage(header)) return false;
    reference = header.to;
    return true;
}

bool HeaderCopies::read(Copy& copy, bool (*isUsable)(const Copy&, std::string& problem)) {
    auto content = files::readWhole(copy.from, m_problem);
    if (!content) return false;
    copy.content = std::move(*content);
    // Hosts answer for what is in the files that they name.
    const bool isHosts =
        m_which == HeaderFiles::whereUsable && libraryNameRule().outside == OutsideNames::asHost;
    return isHosts || isUsable(copy, m_problem);
}

/// Both under the same name, as one shows the other.
bool HeaderCopies::choosePlaces(Copy& header, Copy* picture) {
    const Vor_String name = getFileName(header.from);
    for (int number = 1; number < mostNumbers; ++number) {
        header.to = m_folder + (number == 1 ? name : numbered(name, number));
        if (picture) picture->to = changeExtension(header.to, "bmp");
        if (isFree(header) && (!picture || isFree(*picture))) return true;
    }
    m_problem = "cannot write " + (m_folder + name).str() +
                ": there are too many files of this name; remove old copies";
    return false;
}

/// Nothing is there or will be, or the same already.
bool HeaderCopies::isFree(const Copy& copy) const {
    if (copy.from.equal(copy.to, true)) return true;
    if (copy.to.equal(m_sheet, true)) return false;
    if (const Copy* staged = stagedAs(copy.to)) return staged->content == copy.content;
    if (!files::exists(copy.to)) return true;
    std::string ignored;
    return files::readWhole(copy.to, ignored) == copy.content;
}

const HeaderCopies::Copy* HeaderCopies::stagedAs(const Vor_String& path) const {
    for (const auto& [copy, file] : m_staged)
        if (copy.to.equal(path, true)) return &copy;
    return nullptr;
}

bool HeaderCopies::stage(const Copy& copy) {
    if (files::exists(copy.to) || stagedAs(copy.to)) return true;
    auto file = files::StagedFile::write(copy.to, copy.content, m_problem);
    if (file) m_staged.emplace_back(copy, std::move(*file));
    return file.has_value();
}

bool HeaderCopies::putInPlace() {
    for (size_t i = 0; i < m_staged.size(); ++i) {
        if (m_staged[i].second.putInPlace(m_problem)) continue;
        std::string ignored;
        while (i-- > 0) files::removeFile(m_staged[i].first.to, ignored);
        return false;
    }
    return true;
}
