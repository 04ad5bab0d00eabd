#include "workbench/shell/start_page.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"
#include "workbench/words/workbench_words.h"

namespace {

QLabel* heading(int word, int pixels) {
    auto* label = new QLabel(uiTitle(word));
    QFont font = dialogFont();
    font.setPixelSize(pixels);
    font.setBold(true);
    label->setFont(font);
    return label;
}

}  // namespace

StartPage::StartPage(const std::vector<std::string>& recent, Opener open, QWidget* parent)
    : QWidget(parent), m_open(std::move(open)), m_recent(new QVBoxLayout) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, 30, 40, 30);
    layout->addWidget(heading(wordAbout, 22));
    auto* welcome = new QLabel(uiText(wordWelcome));
    welcome->setWordWrap(true);
    layout->addWidget(welcome);
    layout->addSpacing(20);
    layout->addWidget(heading(wordRecentLibraries, 14));
    layout->addLayout(m_recent);
    layout->addSpacing(10);
    auto* other = new QPushButton(uiText(wordOpenLibrary));
    other->setObjectName("openLibrary");
    connect(other, &QPushButton::clicked, this, [this] { m_open({}); });
    layout->addWidget(other, 0, Qt::AlignLeft);
    layout->addStretch(1);
    showRecent(recent);
}

// The link that was clicked may be among those that go.
void StartPage::showRecent(const std::vector<std::string>& recent) {
    while (const QLayoutItem* item = m_recent->takeAt(0)) {
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    if (recent.empty()) m_recent->addWidget(new QLabel(uiText(wordNoLibrary)));
    for (const std::string& folder : recent) m_recent->addWidget(linkTo(folder));
}

QWidget* StartPage::linkTo(const std::string& folder) const {
    auto* link = new QPushButton(QString::fromStdString(folder).replace("&", "&&"));
    link->setFlat(true);
    link->setStyleSheet("text-align: left; color: #204080");
    link->setCursor(Qt::PointingHandCursor);
    connect(link, &QPushButton::clicked, this, [this, folder] { m_open(folder); });
    return link;
}
