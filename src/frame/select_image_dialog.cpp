#include "frame/select_image_dialog.h"

#include "core_api/dialog_state.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/dial_text.h"
#include "platform/host/host.h"

namespace {

constexpr const char* sizeName = "DLG_SELECTIMAGE";
constexpr int titleText = 21021, cannotBeShownText = 21030, chooseFirstText = 21031;
constexpr ControlTemplate controls[] = {
    {Control::list, selectImageList, {}, {7, 7, 306, 170}, styleThumbnails, anchorAll},
    {Control::label, selectImageError, {}, {7, 183, 170, 26}, 0, anchorWideBelow},
    {Control::button, IDOK, dialText(1), {187, 189, 60, 14}, styleDefault, anchorBottomRight},
    {Control::button, IDCANCEL, dialText(2), {253, 189, 60, 14}, 0, anchorBottomRight},
};
constexpr DialogResource resource{
    selectImageNumber, dialText(titleText), {0, 0, 320, 214}, controls, true};

}  // namespace

SelectImageDialog::SelectImageDialog() : CDialog(resource, Host::current().mainWindow()) {}

void SelectImageDialog::onInit() {
    if (!m_data.title.isEmpty()) setText(m_data.title);
    itemAs<CListBox>(selectImageList)->setPictureSize(m_data.pictureSize);
    showPictures();
    showError();
    ChangeDlgSize(*this, sizeName);
}

void SelectImageDialog::showPictures() {
    auto* list = itemAs<CListBox>(selectImageList);
    m_errors.clear();
    for (int i = 0; i < m_data.files.length(); ++i) {
        const Vor_String& file = m_data.files[i];
        const bool hasLabel = m_data.labels.isIndex(i) && !m_data.labels[i].isEmpty();
        const int place =
            list->add(hasLabel ? m_data.labels[i] : removeExtension(getFileName(file)));
        std::string error;
        if (auto picture = readBitmap(file, error)) list->setPicture(place, std::move(*picture));
        m_errors.append(error);
    }
    list->select(m_data.files.isIndex(m_data.chosen) ? m_data.chosen : -1);
}

/// A picture that cannot be read is still there to be chosen; its place says why it is empty.
void SelectImageDialog::showError() {
    const int chosen = itemAs<CListBox>(selectImageList)->selected();
    const bool isBad = m_errors.isIndex(chosen) && !m_errors[chosen].isEmpty();
    item(selectImageError)
        ->setText(isBad ? dialString(cannotBeShownText) + ": " + m_errors[chosen] : Vor_String());
}

void SelectImageDialog::onCommand(int id, int code) {
    if (id == selectImageList && code == selectionChanged) showError();
    if (id == selectImageList && code == doubleClicked) return onOK();
    CDialog::onCommand(id, code);
}

void SelectImageDialog::onOK() {
    const int chosen = itemAs<CListBox>(selectImageList)->selected();
    if (chosen < 0) {
        item(selectImageError)->setText(dialString(chooseFirstText));
        return;
    }
    m_data.chosen = chosen;
    CDialog::onOK();
}

void SelectImageDialog::onDestroy() {
    WriteDlgSize(*this, sizeName);
}
