// The manual in a window: the pages of docs/, which the program carries with it.
#pragma once

#include <QTextBrowser>

class HelpWindow : public QTextBrowser {
  public:
    /// Opens or brings forward the one window, at a page ("batch.md").
    static void open(QWidget* parent, const QString& page = "README.md");

  protected:
    QVariant loadResource(int type, const QUrl& url) override;

  private:
    explicit HelpWindow(QWidget* parent);
};
