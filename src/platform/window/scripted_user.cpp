#include "platform/window/scripted_user.h"

#include <algorithm>
#include <utility>

#include "platform/window/dialog.h"

using Answer = ScriptedUser::Answer;

Answer& Answer::types(int id, std::string_view text) {
    steps.push_back({Step::Kind::type, id, std::string(text), {}});
    return *this;
}

Answer& Answer::presses(int id) {
    steps.push_back({Step::Kind::press, id, {}, {}});
    return *this;
}

Answer& Answer::picks(std::string_view entry) {
    steps.push_back({Step::Kind::pick, 0, std::string(entry), {}});
    return *this;
}

Answer& Answer::does(std::function<void(CDialog&)> action) {
    steps.push_back({Step::Kind::action, 0, {}, std::move(action)});
    return *this;
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
    }
    return {};
}

int Answer::pressed() const {
    return !steps.empty() && steps.back().kind == Step::Kind::press ? steps.back().id : 0;
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

Answer& ScriptedUser::whenToldWithCaption(std::string_view caption) {
    return add(Answer::Question::caption, 0, caption);
}

Answer& ScriptedUser::whenTold(std::string_view part) {
    return add(Answer::Question::text, 0, part);
}

Answer& ScriptedUser::whenMenuOpens() {
    return add(Answer::Question::menu, 0, {});
}

std::vector<std::vector<std::string>> ScriptedUser::toldLines() const {
    std::vector<std::vector<std::string>> lines;
    for (const MessageBox& box : m_told) lines.push_back(box.lines());
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
    m_told.push_back(box);
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

bool ScriptedUser::takeStep(CDialog& dialog, const Answer::Step& step) {
    using Kind = Answer::Step::Kind;
    switch (step.kind) {
        case Kind::type:
            return dialog.type(step.id, step.text);
        case Kind::press:
            return dialog.press(step.id);
        case Kind::pick:
            return false;
        case Kind::action:
            step.action(dialog);
            return true;
    }
    return false;
}

void ScriptedUser::runModal(CDialog& dialog) {
    const Answer* answer = take([&](const Answer& each) {
        return each.question == Answer::Question::dialog && each.number == dialog.number();
    });
    const std::string name = "dialog " + std::to_string(dialog.number());
    if (!answer) m_problems.push_back("nobody answers " + name + " \"" + dialog.text() + "\"");
    if (answer) {
        for (const Answer::Step& step : answer->steps) {
            if (dialog.isEnded() || !takeStep(dialog, step))
                m_problems.push_back(name + ": item " + std::to_string(step.id) +
                                     " cannot be used");
        }
        if (!dialog.isEnded()) m_problems.push_back(name + " is left open");
    }
    if (!dialog.isEnded()) dialog.press(IDCANCEL);
}

int ScriptedUser::popupMenu(CWnd&, std::span<const MenuEntry> entries) {
    const Answer* answer =
        take([](const Answer& each) { return each.question == Answer::Question::menu; });
    if (!answer || answer->steps.empty()) {
        m_problems.push_back("nobody picks from the menu");
        return 0;
    }
    const std::string& wanted = answer->steps.front().text;
    for (const MenuEntry& entry : entries) {
        if (entry.command != 0 && entry.text == wanted) return entry.command;
    }
    m_problems.push_back("the menu has no entry \"" + wanted + "\"");
    return 0;
}
