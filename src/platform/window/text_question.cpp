#include "platform/window/text_question.h"

#include "platform/window/dialog.h"

namespace {

constexpr ControlTemplate controls[] = {
    {Control::label, textQuestionPrompt, {}, {7, 7, 186, 18}},
    {Control::label, textQuestionLabel, {}, {7, 32, 50, 10}},
    {Control::edit, textQuestionField, {}, {60, 30, 133, 14}},
    {Control::button, IDOK, {}, {79, 52, 54, 14}, styleDefault},
    {Control::button, IDCANCEL, {}, {139, 52, 54, 14}},
};
constexpr DialogResource resource{textQuestionNumber, {}, {0, 0, 200, 73}, controls};

class TextQuestionDialog : public CDialog {
  public:
    TextQuestionDialog(const TextQuestion& question, CWnd* parent)
        : CDialog(resource, parent), m_question(question) {}

    std::string answer;

  protected:
    void onInit() override {
        setText(m_question.title);
        item(textQuestionPrompt)->setText(m_question.prompt);
        item(textQuestionLabel)->setText(m_question.label);
        item(textQuestionField)->setText(m_question.preset);
        item(IDOK)->setText(m_question.ok);
        item(IDCANCEL)->setText(m_question.cancel);
        item(IDCANCEL)->show(!m_question.cancel.empty());
    }
    void onOK() override {
        answer = item(textQuestionField)->text();
        CDialog::onOK();
    }

  private:
    const TextQuestion& m_question;
};

}  // namespace

bool askText(const TextQuestion& question, CWnd* parent, std::string& answer) {
    TextQuestionDialog dialog(question, parent);
    if (dialog.doModal() != IDOK) return false;
    answer = dialog.answer;
    return true;
}
