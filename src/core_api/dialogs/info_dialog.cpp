#include "core_api/dialogs/info_dialog.h"

#include "core_api/dialog_state.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/dial_text.h"
#include "platform/host/host.h"
#include "platform/window/dialog.h"

namespace {

constexpr const char* sizeName = "DLG_INFO";
constexpr ControlTemplate controls[] = {
    {Control::label, infoHeading, {}, {7, 7, 326, 10}, 0, anchorWide},
    {Control::edit, infoLines, {}, {7, 21, 326, 172}, styleMultiline | styleReadOnly, anchorAll},
    {Control::button, IDCANCEL, dialText(285), {263, 199, 70, 14}, styleDefault, anchorBottomRight},
};
constexpr DialogResource resource{infoDialogNumber, {}, {0, 0, 340, 220}, controls, true};

class InfoDialog : public CDialog {
  public:
    InfoDialog(const DlgInfoData& data, CWnd* parent) : CDialog(resource, parent), m_data(data) {}

  protected:
    void onInit() override {
        setText(m_data.title);
        item(infoHeading)->setText(m_data.heading);
        item(infoLines)->setText(arrToStr(m_data.lines, "\n"));
        ChangeDlgSize(*this, sizeName);
    }
    void onDestroy() override { WriteDlgSize(*this, sizeName); }

  private:
    const DlgInfoData& m_data;
};

}  // namespace

void ExportStartDlgInfo(const DlgInfoData& data, CWnd* parent) {
    InfoDialog dialog(data, parent ? parent : Host::current().mainWindow());
    dialog.doModal();
}
