#include "workbench/window/folder_dialog.h"

#include <QDialogButtonBox>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <algorithm>

#include "workbench/window/desktop_texts.h"

namespace {

QString pathOf(const QModelIndex& index) {
    return index.data(QFileSystemModel::FilePathRole).toString();
}

}  // namespace

void FolderDialog::takeFolders() {
    setOption(DontUseNativeDialog);  // those of desktops give either files or folders
    setFileMode(ExistingFiles);
    auto* buttons = findChild<QDialogButtonBox*>("buttonBox");
    m_take =
        buttons->addButton(desktopText(DesktopText::chooseFolder), QDialogButtonBox::ActionRole);
    m_take->setObjectName("chooseFolder");
    m_take->setAutoDefault(false);
    connect(m_take, &QPushButton::clicked, this, [this] { take(); });
    connect(findChild<QListView*>("listView")->selectionModel(),
            &QItemSelectionModel::selectionChanged, this, [this] { showWhatCanBeTaken(); });
    connect(this, &QFileDialog::directoryEntered, this, [this] { showWhatCanBeTaken(); });
}

QModelIndexList FolderDialog::selected() const {
    const auto* list = findChild<QListView*>("listView");
    QModelIndexList all = list->selectionModel()->selectedRows();
    // A folder that was entered is selected still, where it lies.
    all.removeIf([&](const QModelIndex& index) { return index.parent() != list->rootIndex(); });
    return all;
}

bool FolderDialog::hasSelectedFolder() const {
    const QModelIndexList all = selected();
    return std::any_of(all.begin(), all.end(),
                       [](const QModelIndex& index) { return QFileInfo(pathOf(index)).isDir(); });
}

void FolderDialog::showWhatCanBeTaken() {
    m_take->setEnabled(selected().isEmpty() || hasSelectedFolder());
}

void FolderDialog::take() {
    m_taken.clear();
    for (const QModelIndex& index : selected()) m_taken += pathOf(index);
    if (m_taken.isEmpty()) m_taken += directory().absolutePath();
    QDialog::accept();
}

void FolderDialog::accept() {
    m_taken.clear();
    const bool isTyped = m_take && findChild<QLineEdit*>("fileNameEdit")->isModified();
    if (m_take && !isTyped && selected().size() > 1 && hasSelectedFolder()) return take();
    QFileDialog::accept();
}
