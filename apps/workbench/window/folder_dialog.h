// A file chooser that can give folders among the files. Qt's own chooser enters a folder instead,
// and forgets those that are selected beside files.
#pragma once

#include <QAbstractItemModel>
#include <QFileDialog>
#include <QPushButton>

class FolderDialog : public QFileDialog {
  public:
    using QFileDialog::QFileDialog;

    /// Several files and folders are wanted. A button takes the folders that are selected, or with
    /// nothing selected the one that is shown; opening a single folder still enters it.
    void takeFolders();
    QStringList chosen() const { return m_taken.isEmpty() ? selectedFiles() : m_taken; }

  protected:
    void accept() override;

  private:
    QModelIndexList selected() const;
    bool hasSelectedFolder() const;
    void take();
    void showWhatCanBeTaken();

    QPushButton* m_take = nullptr;  ///< null when folders are not wanted
    QStringList m_taken;
};
