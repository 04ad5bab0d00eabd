#include "workbench/shell/help_window.h"

#include <QFile>
#include <QPointer>
#include <QUrl>

#include "workbench/window/ui_text.h"
#include "workbench/words/workbench_words.h"

HelpWindow::HelpWindow(QWidget* parent) : QTextBrowser(parent) {
    setWindowFlag(Qt::Window);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(uiTitle(wordManual));
    resize(760, 640);
    setOpenExternalLinks(true);
}

void HelpWindow::open(QWidget* parent, const QString& page) {
    static QPointer<HelpWindow> window;
    if (!window) window = new HelpWindow(parent);
    window->setSource(QUrl("qrc:/docs/" + page), QTextDocument::MarkdownResource);
    window->show();
    window->raise();
}

QVariant HelpWindow::loadResource(int type, const QUrl& url) {
    const QVariant found = QTextBrowser::loadResource(type, url);
    if (found.isValid() || type != QTextDocument::MarkdownResource) return found;
    return QString("There is no page " + url.path()).toUtf8();
}
