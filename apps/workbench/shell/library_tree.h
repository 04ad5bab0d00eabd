// The library folder as a tree of what people work with: standards, macros, section tables,
// templates and cutting-stock files.
#pragma once

#include <QTreeWidget>
#include <functional>

#include "core_api/text/vor_string_array.h"
#include "workbench/shell/library_kinds.h"

class LibraryTree : public QTreeWidget {
  public:
    explicit LibraryTree(QWidget* parent = nullptr);

    /// Lists the library that gSettings names, keeping what is open and selected. An empty or
    /// vanished folder gives an empty tree.
    void refresh();
    /// Called with a host-style path when an entry is double-clicked or Enter is pressed on it.
    void setOpener(std::function<void(LibraryKind, const Vor_String&)> opener) {
        m_opener = std::move(opener);
    }
    /// The paths of the selected entries of a kind.
    Vor_StringArray selected(LibraryKind kind) const;
    /// Number of entries of a kind.
    int count(LibraryKind kind) const;
    /// Hides what does not contain the text, letter case aside.
    void filter(const QString& text);

  private:
    void add(const LibraryFolder& folder);
    void addStockItems();
    QTreeWidgetItem* rootOf(LibraryKind kind) const;
    QTreeWidgetItem* folderItem(QTreeWidgetItem* root, const QString& folder);

    std::function<void(LibraryKind, const Vor_String&)> m_opener;
};
