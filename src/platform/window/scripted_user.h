// A user that follows a script, for tests and unattended runs:
//
//     ScriptedUser user;
//     user.whenOpens(218).types(1207, "M16").presses(1205).presses(IDCANCEL);
//     user.whenMessageWithCaption("Replace all").presses(IDOK);
//     user.whenAskedForFile("Open").chooses("c:\\lib\\a.txt");
//     ...
//     user.told()[0].lines()
//
// Each "when" serves once; of several that fit, the first. A message box with OK alone needs no
// script; any other question without one is noted as a problem and answered the safe way.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/export.h"
#include "platform/window/window_system.h"

class VORMANT_API ScriptedUser : public WindowSystem {
  public:
    /// The steps taken when a question comes.
    class VORMANT_API Answer {
      public:
        Answer& types(int id, std::string_view text);
        Answer& presses(int id);
        /// Picks the item `index` of a list, a combo or tabs.
        Answer& selects(int id, int index);
        /// Picks the item with this text.
        Answer& selects(int id, std::string_view item);
        /// Ticks the item `index` of a check list, or unticks it.
        Answer& checks(int id, int index, bool checked);
        /// Picks the menu entry with this text.
        Answer& picks(std::string_view entry);
        /// Gives these files to a file chooser; none cancels it.
        Answer& chooses(std::vector<std::string> paths);
        /// Anything else: looks at the dialog, calls into it.
        Answer& does(std::function<void(CDialog&)> action);

      private:
        friend class ScriptedUser;
        enum class Question { dialog, caption, text, menu, file };
        struct Step {
            /// What is done, and its words where a problem with it is told. False: it cannot be.
            std::function<bool(CDialog&)> take;
            std::string words;
            int pressed = 0;  ///< the button, of a press
        };
        Answer& add(Step step);

        std::string describe() const;
        int pressed() const;

        Question question = Question::dialog;
        int number = 0;
        std::string words;
        std::vector<Step> steps;
        std::string menuEntry;
        std::vector<std::string> files;
        bool isUsed = false;
    };

    /// Is the user from now on, until it goes.
    ScriptedUser();
    ~ScriptedUser() override;

    Answer& whenOpens(int dialog);
    Answer& whenMessageWithCaption(std::string_view caption);
    /// A message box whose text contains `part`.
    Answer& whenMessage(std::string_view part);
    Answer& whenMenuOpens();
    /// A file chooser with this title.
    Answer& whenAskedForFile(std::string_view title);

    /// The message boxes so far, and their texts as lines.
    const std::vector<MessageBox>& messages() const { return m_messages; }
    std::vector<std::vector<std::string>> messageLines() const;

    /// Questions without an answer, steps that could not be taken.
    const std::vector<std::string>& problems() const { return m_problems; }
    /// Answers that were never asked for.
    std::vector<std::string> unusedAnswers() const;

    int messageBox(const MessageBox& box) override;
    void runModal(CDialog& dialog) override;
    int popupMenu(CWnd& owner, std::span<const MenuEntry> entries) override;
    std::vector<std::string> chooseFiles(const FileQuestion& question, CWnd* parent) override;
    bool isShiftHeld() override { return m_isShiftHeld; }
    void holdShift(bool held) { m_isShiftHeld = held; }

  private:
    Answer& add(Answer::Question question, int number, std::string_view words);
    Answer* take(const std::function<bool(const Answer&)>& fits);

    std::deque<Answer> m_answers;  // a deque: callers hold on to references
    std::vector<MessageBox> m_messages;
    std::vector<std::string> m_problems;
    WindowSystem* m_before;
    bool m_isShiftHeld = false;
};
