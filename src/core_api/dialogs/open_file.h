// A file that a window has read, shows, and writes back later. Somebody else may change the file in
// between: then saving asks, and never loses the other's change without a word.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/files.h"

class VORMANT_API OpenFile {
  public:
    /// Before `path` (inside form; empty: no file yet) is read.
    void opening(std::string_view path);
    /// What is shown is new, and meant for `path`: a file there is somebody else's.
    void startNew(std::string_view path);
    const std::string& path() const { return m_path; }

    enum class Saved {
        yes,
        reload,  ///< the user wants the other's file in place of what is shown; nothing was written
        no       ///< with the reason in `error`; without one the user cancelled
    };
    using Write = std::function<bool(std::string& error)>;
    /// Lets `write` write `path` while other programs that change it wait. When it is the file that
    /// was opened, and somebody changed it since then, the user is asked first. A file that was
    /// removed is written anew. Another path becomes the open file, whoever wrote it.
    Saved save(std::string_view path, const Write& write, std::string& error);

    /// True when somebody else wrote the file since it was opened or saved here, once for every
    /// state that it has had. Who shows it loads it again, or reports that saving will ask.
    bool noticeChange();

    /// Asks what to do about `path`, which another program has written: IDYES to replace it, IDNO
    /// to load it, IDCANCEL.
    static int askAbout(std::string_view path);

  private:
    enum class Step { done, failed, changed };
    Step tryToSave(std::string_view path, const Write& write, std::string& error);

    std::string m_path;
    std::optional<files::Stamp> m_stamp;
    std::optional<files::Stamp> m_noticed;
};
