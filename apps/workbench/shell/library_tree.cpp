#include "workbench/shell/library_tree.h"

#include <QSet>

#include "core_api/files.h"
#include "core_api/settings.h"
#include "cutstock/cutting_stock_library.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"

namespace {

enum ItemRole { pathRole = Qt::UserRole, kindRole };

QString keyOf(const QTreeWidgetItem* item) {
    QString key;
    for (; item; item = item->parent()) key = item->text(0) + "\n" + key;
    return key;
}

template <class Call>
void eachItem(QTreeWidget& tree, Call&& call) {
    for (QTreeWidgetItemIterator at(&tree); *at; ++at) call(*at);
}

/// True when the item or something below it is shown.
bool showMatching(QTreeWidgetItem* item, const QString& text) {
    const bool isEntry = item->data(0, pathRole).isValid();
    bool isShown = isEntry && item->text(0).contains(text, Qt::CaseInsensitive);
    for (int i = 0; i < item->childCount(); ++i)
        isShown = showMatching(item->child(i), text) || isShown;
    item->setHidden(!isShown && !text.isEmpty());
    if (isShown && !text.isEmpty()) item->setExpanded(true);
    return isShown;
}

bool hasChild(const QTreeWidgetItem& item, const QString& text) {
    for (int i = 0; i < item.childCount(); ++i)
        if (item.child(i)->text(0).compare(text, Qt::CaseInsensitive) == 0) return true;
    return false;
}

}  // namespace

LibraryTree::LibraryTree(QWidget* parent) : QTreeWidget(parent) {
    setHeaderHidden(true);
    setObjectName("libraryTree");
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    connect(this, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        const QVariant path = item->data(0, pathRole);
        if (path.isValid() && m_opener)
            m_opener(static_cast<LibraryKind>(item->data(0, kindRole).toInt()),
                     Vor_String(fromQt(path.toString())));
    });
}

void LibraryTree::refresh() {
    QSet<QString> open;
    QString current = currentItem() ? keyOf(currentItem()) : QString();
    const bool isFirst = topLevelItemCount() == 0;
    eachItem(*this, [&](QTreeWidgetItem* item) {
        if (item->isExpanded()) open.insert(keyOf(item));
    });
    clear();
    if (gSettings.libDir().isEmpty()) return;
    for (const LibraryFolder& folder : libraryFolders()) add(folder);
    addStockItems();
    eachItem(*this, [&](QTreeWidgetItem* item) {
        const bool isTop = !item->parent();
        item->setExpanded(open.contains(keyOf(item)) || (isFirst && isTop));
        if (!current.isEmpty() && keyOf(item) == current) setCurrentItem(item);
    });
}

// Where files of several kinds stand beside each other, their extensions tell them apart.
void LibraryTree::add(const LibraryFolder& folder) {
    const Vor_String whole = folder.path();
    const bool showsExtensions = !folder.extensions[1].empty();
    auto* root = new QTreeWidgetItem(this, {uiText(folder.title)});
    root->setData(0, kindRole, static_cast<int>(folder.kind));
    for (const Vor_String& path : ObjectExportFindFilesRecursive(whole, "*")) {
        if (!folder.hasExtension(path)) continue;
        const QString relative = toQt(path.view().substr(whole.view().size()));
        const qsizetype slash = relative.lastIndexOf('\\');
        QString name = relative.mid(slash + 1);
        if (!showsExtensions) name = name.left(name.lastIndexOf('.'));
        auto* item = new QTreeWidgetItem(
            folderItem(root, relative.left(std::max<qsizetype>(slash, 0))), {name});
        item->setData(0, pathRole, toQt(path));
        item->setData(0, kindRole, static_cast<int>(folder.kind));
        item->setToolTip(0, relative);
    }
}

// Items that have no files yet lead to the list that names them.
void LibraryTree::addStockItems() {
    DlgCSP2Data stock;
    Vor_String message;  // is told when the items are opened
    if (!cutstock::CuttingStockLibrary().loadItems(stock, message)) return;
    QTreeWidgetItem* root = rootOf(LibraryKind::cuttingStock);
    for (const Vor_String& name : stock.itemNames) {
        if (hasChild(*root, toQt(name))) continue;
        auto* item = new QTreeWidgetItem(root, {toQt(name)});
        item->setData(0, pathRole, toQt(cutstock::CuttingStockLibrary::path()));
        item->setData(0, kindRole, static_cast<int>(LibraryKind::cuttingStock));
    }
}

QTreeWidgetItem* LibraryTree::rootOf(LibraryKind kind) const {
    int at = 0;
    while (topLevelItem(at)->data(0, kindRole).toInt() != static_cast<int>(kind)) ++at;
    return topLevelItem(at);
}

QTreeWidgetItem* LibraryTree::folderItem(QTreeWidgetItem* root, const QString& folder) {
    QTreeWidgetItem* item = root;
    for (const QString& part : folder.split('\\', Qt::SkipEmptyParts)) {
        QTreeWidgetItem* found = nullptr;
        for (int i = 0; i < item->childCount() && !found; ++i)
            if (item->child(i)->text(0) == part && !item->child(i)->data(0, pathRole).isValid())
                found = item->child(i);
        item = found ? found : new QTreeWidgetItem(item, {part});
    }
    return item;
}

Vor_StringArray LibraryTree::selected(LibraryKind kind) const {
    Vor_StringArray paths;
    for (const QTreeWidgetItem* item : selectedItems())
        if (item->data(0, pathRole).isValid() &&
            item->data(0, kindRole).toInt() == static_cast<int>(kind))
            paths.append(fromQt(item->data(0, pathRole).toString()));
    return paths;
}

int LibraryTree::count(LibraryKind kind) const {
    int entries = 0;
    for (QTreeWidgetItemIterator at(const_cast<LibraryTree*>(this)); *at; ++at)
        if ((*at)->data(0, pathRole).isValid() &&
            (*at)->data(0, kindRole).toInt() == static_cast<int>(kind))
            ++entries;
    return entries;
}

void LibraryTree::filter(const QString& text) {
    for (int i = 0; i < topLevelItemCount(); ++i) showMatching(topLevelItem(i), text);
}
