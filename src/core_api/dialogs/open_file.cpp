#include "core_api/dialogs/open_file.h"

#include "core_api/texts/texts.h"
#include "platform/exclusive_change.h"
#include "platform/window/message_box.h"

namespace {

constexpr int titleText = 9112, changedText = 9113;

}  // namespace

bool OpenFile::noticeChange() {
    const auto now = m_stamp ? files::stampOf(m_path) : std::nullopt;
    if (!now || now == m_stamp || now == m_noticed) return false;
    m_noticed = now;
    return true;
}

int OpenFile::askAbout(std::string_view path) {
    Vor_String question = dialString(changedText);
    question.replaceSubString("%1", Vor_String(path));
    return showMessage({dialString(titleText).str(), question.str(), MessageIcon::exclamation,
                        MessageButtons::yesNoCancel});
}

void OpenFile::opening(std::string_view path) {
    m_path = path;
    m_stamp = path.empty() ? std::nullopt : files::stampOf(path);
}

void OpenFile::startNew(std::string_view path) {
    m_path = path;
    m_stamp.reset();
}

// On `changed` the stamp is the one of the file that the user is asked about: if it changes once
// more meanwhile, he is asked once more.
OpenFile::Step OpenFile::tryToSave(std::string_view path, const Write& write, std::string& error) {
    // Whether a missing folder is made is for `write` to decide.
    const size_t folder = path.rfind('\\');
    if (folder != path.npos && !files::isFolder(path.substr(0, folder + 1))) {
        if (!write(error)) return Step::failed;
        m_stamp = files::stampOf(path);
        return Step::done;
    }
    const auto change = files::ExclusiveChange::take(path, error);
    if (!change) return Step::failed;
    const auto now = change->stamp();
    if (now && now != m_stamp) {
        m_stamp = now;
        return Step::changed;
    }
    if (!write(error)) return Step::failed;
    m_stamp = change->stamp();
    return Step::done;
}

OpenFile::Saved OpenFile::save(std::string_view path, const Write& write, std::string& error) {
    error.clear();
    const OpenFile before = *this;
    if (path != m_path) opening(path);
    for (;;) {
        switch (tryToSave(path, write, error)) {
            case Step::done:
                return Saved::yes;
            case Step::failed:
                *this = before;
                return Saved::no;
            case Step::changed:
                break;
        }
        // Outside the change: nobody else has to wait for the answer.
        const int answer = askAbout(path);
        if (answer == IDYES) continue;
        *this = before;
        return answer == IDNO ? Saved::reload : Saved::no;
    }
}
