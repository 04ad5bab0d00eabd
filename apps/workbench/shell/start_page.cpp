#include "shell/start_page.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core_api/texts/texts.h"
#include "shell/words.h"
#include "window/dialog_font.h"

namespace {

QLabel* heading(int word, int pixels) {
    auto* label = new QLabel(toQt(dialString(word)).remove('&'));
    QFont font = dialogFont();
    font.setPixelSize(pixels);
    font.setBold(true);
    label->setFont(font);
    return label;
}

}  // namespace

StartPage::StartPage(const std::vector<std::string>& recent, Opener open, QWidget* parent)
    : QWidget(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, 30, 40, 30);
    layout->addWidget(heading(wordAbout, 22));
    auto* welcome = new QLabel(toQt(dialString(wordWelcome)));
    welcome->setWordWrap(true);
    layout->addWidget(welcome);
    layout->addSpacing(20);
    layout->addWidget(heading(wordRecentLibraries, 14));
    if (recent.empty()) layout->addWidget(new QLabel(toQt(dialString(wordNoLibrary))));
    for (const std::string& folder : recent) {
        auto* link = new QPushButton(QString::fromStdString(folder));
        link->setFlat(true);
        link->setStyleSheet("text-align: left; color: #204080");
        link->setCursor(Qt::PointingHandCursor);
        connect(link, &QPushButton::clicked, this, [open, folder] { open(folder); });
        layout->addWidget(link);
    }
    layout->addSpacing(10);
    auto* other = new QPushButton(toQt(dialString(wordOpenLibrary)));
    other->setObjectName("openLibrary");
    connect(other, &QPushButton::clicked, this, [open] { open({}); });
    layout->addWidget(other, 0, Qt::AlignLeft);
    layout->addStretch(1);
}
