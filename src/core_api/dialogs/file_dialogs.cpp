#include "core_api/dialogs/file_dialogs.h"

#include "core_api/text/text_helpers.h"

namespace {

FileQuestion questionFor(FileQuestion::Kind kind, const Vor_String& title,
                         const Vor_String& filterName, const Vor_String& extension) {
    FileQuestion question;
    question.kind = kind;
    question.title = title.str();
    question.filterName = filterName.str();
    question.extension = extension.str();
    return question;
}

}  // namespace

bool DlgOpenSave(CWnd* parent, bool isOpen, const Vor_String& title, const Vor_String& filterName,
                 const Vor_String& extension, Vor_String& path) {
    FileQuestion question = questionFor(
        isOpen ? FileQuestion::Kind::open : FileQuestion::Kind::save, title, filterName, extension);
    question.folder = getPath(path).str();
    question.preset = getFileName(path).str();
    const std::string chosen = chooseFile(question, parent);
    if (chosen.empty()) return false;
    path = chosen;
    return true;
}

bool DlgOpenMulti(CWnd* parent, const Vor_String& title, const Vor_String& filterName,
                  const Vor_String& extension, const Vor_String& folder, Vor_StringArray& paths) {
    FileQuestion question =
        questionFor(FileQuestion::Kind::openSeveral, title, filterName, extension);
    question.folder = folder.str();
    const std::vector<std::string> chosen = chooseFiles(question, parent);
    if (chosen.empty()) return false;
    paths.clear();
    for (const std::string& path : chosen) paths.append(path);
    return true;
}
