// The frame of a dialog: what Escape, Enter, Tab and the cross of the title bar do.
#pragma once

#include <QDialog>

class DialogView;

class DialogWidget : public QDialog {
  public:
    explicit DialogWidget(QWidget* parent);
    /// Borrowed; null once the dialog has gone.
    void setView(DialogView* view) { m_view = view; }

    void reject() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    DialogView* m_view = nullptr;
};
