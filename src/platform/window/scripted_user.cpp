#include "platform/window/scripted_user.h"

#include <algorithm>
#include <utility>

#include "platform/window/dialog.h"

using Answer = ScriptedUser::Answer;

Answer& Answer::add(Step step) {
    steps.push_back(std::move(step));
    return *this;
}

Answer& Answer::types(int id, std::string_view text) {
    return add({[id, text = std::string(text)](CDialog& dialog) { return dialog.type(id, text); },
                "item " + std::to_string(id)});
}

Answer& Answer::presses(int id) {
    return add(
        {[id](CDialog& dialog) { return dialog.press(id); }, "item " + std::to_string(id), id});
}

Answer& Answer::selects(int id, int index) {
    return add({[id, index](CDialog& dialog) { return dialog.pick(id, index); },
                "row " + std::to_string(index) + " of item " + std::to_string(id)});
}

Answer& Answer::selects(int id, std::string_view item) {
    const auto pick = [id, text = std::string(item)](CDialog& dialog) {
        const auto* list = dynamic_cast<ItemControl*>(dialog.descendant(id));
        return list && dialog.pick(id, list->find(text));
    };
    return add({pick, "\"" + std::string(item) + "\" in item " + std::to_string(id)});
}

Answer& Answer::checks(int id, int index, bool checked) {
    const auto check = [=](CDialog& dialog) {
        auto* list = dynamic_cast<CListBox*>(dialog.descendant(id));
        return list && list->userChecks(index, checked);
    };
    return add({check, "row " + std::to_string(index) + " of item " + std::to_string(id)});
}

Answer& Answer::picks(std::string_view entry) {
    menuEntry = entry;
    return *this;
}

Answer& Answer::chooses(std::vector<std::string> paths) {
    files = std::move(paths);
    return *this;
}

Answer& Answer::does(std::function<void(CDialog&)> action) {
    const auto take = [action = std::move(action)](CDialog& dialog) {
        action(dialog);
        return true;
    };
    return add({take, "an action"});
}

std::string Answer::describe() const {
    switch (question) {
        case Question::dialog:
            return "dialog " + std::to_string(number);
        case Question::caption:
            return "message box \"" + words + "\"";
        case Question::text:
            return "message box with \"" + words + "\" in its text";
        case Question::menu:
            return "menu";
        case Question::file:
            return "file chooser \"" + words + "\"";
    }
    return {};
}

int Answer::pressed() const {
    return steps.empty() ? 0 : steps.back().pressed;
}

ScriptedUser::ScriptedUser() : m_before(WindowSystem::install(this)) {}

ScriptedUser::~ScriptedUser() {
    WindowSystem::install(m_before);
}

Answer& ScriptedUser::add(Answer::Question question, int number, std::string_view words) {
    Answer& answer = m_answers.emplace_back();
    answer.question = question;
    answer.number = number;
    answer.words = words;
    return answer;
}

Answer& ScriptedUser::whenOpens(int dialog) {
    return add(Answer::Question::dialog, dialog, {});
}

Answer& ScriptedUser::whenMessageWithCaption(std::string_view caption) {
    return add(Answer::Question::caption, 0, caption);
}

Answer& ScriptedUser::whenMessage(std::string_view part) {
    return add(Answer::Question::text, 0, part);
}

Answer& ScriptedUser::whenMenuOpens() {
    return add(Answer::Question::menu, 0, {});
}

Answer& ScriptedUser::whenAskedForFile(std::string_view title) {
    return add(Answer::Question::file, 0, title);
}

std::vector<std::vector<std::string>> ScriptedUser::messageLines() const {
    std::vector<std::vector<std::string>> lines;
    for (const MessageBox& box : m_messages) lines.push_back(box.lines());
    return lines;
}

std::vector<std::string> ScriptedUser::unusedAnswers() const {
    std::vector<std::string> unused;
    for (const Answer& answer : m_answers) {
        if (!answer.isUsed) unused.push_back(answer.describe());
    }
    return unused;
}

Answer* ScriptedUser::take(const std::function<bool(const Answer&)>& fits) {
    const auto found = std::find_if(m_answers.begin(), m_answers.end(), [&](const Answer& answer) {
        return !answer.isUsed && fits(answer);
    });
    if (found == m_answers.end()) return nullptr;
    found->isUsed = true;
    return &*found;
}

int ScriptedUser::messageBox(const MessageBox& box) {
    m_messages.push_back(box);
    const Answer* answer = take([&](const Answer& each) {
        return (each.question == Answer::Question::caption && each.words == box.caption) ||
               (each.question == Answer::Question::text &&
                box.text.find(each.words) != std::string::npos);
    });
    if (answer && box.hasButton(answer->pressed())) return answer->pressed();
    if (answer) {
        m_problems.push_back(answer->describe() + " has no button " +
                             std::to_string(answer->pressed()));
    } else if (box.isQuestion()) {
        m_problems.push_back("nobody answers the question \"" + box.caption + "\": " + box.text);
    }
    return box.safeAnswer();
}

void ScriptedUser::runModal(CDialog& dialog) {
    const Answer* answer = take([&](const Answer& each) {
        return each.question == Answer::Question::dialog && each.number == dialog.number();
    });
    const std::string name = "dialog " + std::to_string(dialog.number());
    if (!answer) m_problems.push_back("nobody answers " + name + " \"" + dialog.text() + "\"");
    if (answer) {
        for (const Answer::Step& step : answer->steps) {
            if (dialog.isEnded() || !step.take(dialog))
                m_problems.push_back(name + ": " + step.words + " cannot be used");
        }
        if (!dialog.isEnded()) m_problems.push_back(name + " is left open");
    }
    if (!dialog.isEnded()) dialog.press(IDCANCEL);
}

int ScriptedUser::popupMenu(CWnd&, std::span<const MenuEntry> entries) {
    const Answer* answer =
        take([](const Answer& each) { return each.question == Answer::Question::menu; });
    if (!answer) {
        m_problems.push_back("nobody picks from the menu");
        return 0;
    }
    const std::string& wanted = answer->menuEntry;
    for (const MenuEntry& entry : entries) {
        if (entry.command != 0 && entry.text == wanted) return entry.command;
    }
    m_problems.push_back("the menu has no entry \"" + wanted + "\"");
    return 0;
}

std::vector<std::string> ScriptedUser::chooseFiles(const FileQuestion& question, CWnd*) {
    const Answer* answer = take([&](const Answer& each) {
        return each.question == Answer::Question::file && each.words == question.title;
    });
    if (!answer) m_problems.push_back("nobody chooses a file: " + question.title);
    return answer ? answer->files : std::vector<std::string>{};
}
