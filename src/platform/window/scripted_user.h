// A user that follows a script, for tests and unattended runs:
//
//     ScriptedUser user;
//     user.whenOpens(218).types(1207, "M16").presses(1205).presses(IDCANCEL);
//     user.whenToldWithCaption("Replace all").presses(IDOK);
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
        /// Picks the menu entry with this text.
        Answer& picks(std::string_view entry);
        /// Anything else: looks at the dialog, calls into it.
        Answer& does(std::function<void(CDialog&)> action);

      private:
        friend class ScriptedUser;
        enum class Question { dialog, caption, text, menu };
        struct Step {
            enum class Kind { type, press, pick, action } kind;
            int id;
            std::string text;
            std::function<void(CDialog&)> action;
        };

        std::string describe() const;
        int pressed() const;

        Question question = Question::dialog;
        int number = 0;
        std::string words;
        std::vector<Step> steps;
        bool isUsed = false;
    };

    /// Is the user from now on, until it goes.
    ScriptedUser();
    ~ScriptedUser() override;

    Answer& whenOpens(int dialog);
    Answer& whenToldWithCaption(std::string_view caption);
    /// A message box whose text contains `part`.
    Answer& whenTold(std::string_view part);
    Answer& whenMenuOpens();

    /// The message boxes so far, and their texts as lines.
    const std::vector<MessageBox>& told() const { return m_told; }
    std::vector<std::vector<std::string>> toldLines() const;

    /// Questions without an answer, steps that could not be taken.
    const std::vector<std::string>& problems() const { return m_problems; }
    /// Answers that were never asked for.
    std::vector<std::string> unusedAnswers() const;

    int messageBox(const MessageBox& box) override;
    void runModal(CDialog& dialog) override;
    int popupMenu(CWnd& owner, std::span<const MenuEntry> entries) override;

  private:
    Answer& add(Answer::Question question, int number, std::string_view words);
    Answer* take(const std::function<bool(const Answer&)>& fits);
    bool takeStep(CDialog& dialog, const Answer::Step& step);

    std::deque<Answer> m_answers;  // a deque: callers hold on to references
    std::vector<MessageBox> m_told;
    std::vector<std::string> m_problems;
    WindowSystem* m_before;
};
