// Message boxes: what a dialog tells or asks in between. Texts are Windows-1252, lines separated by
// "\n". Where nobody can answer, the text goes to the host's command line and the safe answer
// (cancel, else no, else OK) is given.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/export.h"

enum class MessageIcon { none, stop, question, exclamation, information };
enum class MessageButtons { ok, okCancel, yesNoCancel, yesNo, retryCancel };

/// The numbers of the buttons of message boxes and dialogs.
enum StandardButton {
    IDOK = 1,
    IDCANCEL = 2,
    IDABORT = 3,
    IDRETRY = 4,
    IDIGNORE = 5,
    IDYES = 6,
    IDNO = 7
};

struct VORMANT_API MessageBox {
    std::string caption;
    std::string text;
    MessageIcon icon = MessageIcon::none;
    MessageButtons buttons = MessageButtons::ok;

    std::vector<std::string> lines() const;
    bool isQuestion() const { return buttons != MessageButtons::ok; }
    bool hasButton(int id) const;
    /// The button that changes nothing.
    int safeAnswer() const;
};

/// Shows the box and gives the number of the button pressed.
VORMANT_API int showMessage(const MessageBox& box);
/// The common case: something the user should know, with the exclamation icon and OK.
VORMANT_API void showWarning(std::string_view caption, std::string_view text);

/// Hears of every message box before it is shown. True takes the box over: it was shown or noted
/// elsewhere and gets its safe answer. The newest listener hears first.
using MessageListener = std::function<bool(const MessageBox&)>;

/// Listens for the length of a scope.
class VORMANT_API MessageListenerScope {
  public:
    explicit MessageListenerScope(MessageListener listener);
    ~MessageListenerScope();
    MessageListenerScope(const MessageListenerScope&) = delete;
    MessageListenerScope& operator=(const MessageListenerScope&) = delete;

  private:
    friend int showMessage(const MessageBox& box);
    MessageListener m_listener;
    MessageListenerScope* m_before;
};
