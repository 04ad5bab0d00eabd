// Pictures as thumbnails, to choose one of them.
#pragma once

#include "core_api/dialog_data/tw_select_image_dlg_data.h"
#include "platform/window/dialog.h"

inline constexpr int selectImageNumber = 8736;
inline constexpr int selectImageList = 1001;
inline constexpr int selectImageError = 1002;

class SelectImageDialog : public CDialog {
  public:
    SelectImageDialog();

    TwSelectImageDlgData& data() { return m_data; }

    void onCommand(int id, int code) override;

  protected:
    void onInit() override;
    void onOK() override;
    void onDestroy() override;

  private:
    void showPictures();
    void showError();

    TwSelectImageDlgData m_data;
    Vor_StringArray m_errors;  // parallel to the pictures; empty for one that can be shown
};
