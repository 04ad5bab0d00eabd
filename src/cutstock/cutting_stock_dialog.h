// The dialog that prepares a cutting-stock calculation: one item at a time with its three tables,
// and the files of the second and the third. It works on the data given to it before it runs.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "cutstock/stock_files.h"
#include "cutstock/stock_sheet.h"
#include "platform/window/dialog.h"

class TwCuttingStockDlg : public CDialog {
  public:
    static constexpr int resourceNumber = 8724;
    enum Item {
        itemLabel = 1001,
        itemList,
        addItemButton,
        deleteItemButton,
        tablesFrame,
        actionButton,
        askNamesCheck,
    };
    /// The controls of a table, from 0: the number of the part plus a hundred for each table.
    enum Part { frame = 1101, sheet, insertRowButton, deleteRowButton, openButton, saveButton };
    static constexpr int idOf(int table, Part part) { return part + 100 * table; }

    TwCuttingStockDlg();
    ~TwCuttingStockDlg() override;

    DlgCSP2Data& data() { return m_data; }

    void onCommand(int id, int code) override;
    bool preTranslateKey(const KeyMessage& key) override;

  protected:
    void onInit() override;
    void onOK() override;
    void onSize(CSize before) override;
    void onDestroy() override;

  private:
    enum class Asks { no, forName };

    // --- items and rows
    int current() const;
    std::optional<int> currentId() const;
    void showItem();
    void takeItemBack();
    void select(int index);
    void addItem();
    bool askName(Vor_String& name);
    void deleteItem();
    bool onTableCommand(int id);
    void showWhatCanBeDone();
    void shareHeight();

    // --- files
    void openFile(const cutstock::FileKind& kind);
    void saveFile(const cutstock::FileKind& kind);
    bool askPath(bool isOpen, const cutstock::FileKind& kind, Vor_String& path);
    void save(int item, const cutstock::FileKind& kind, Asks asks, Vor_StringArray& failures);
    void runAction();
    void saveAll();
    void loadAll();
    void report(const Vor_StringArray& failures);

    DlgCSP2Data m_data;
    std::optional<int> m_shownId;  ///< of the item that the sheets show
    std::array<cutstock::StockSheet, DlgCSP2Data::tableCount> m_sheets;
    struct Place {
        int id;
        int band;
        bool grows;
        CRect place;
    };
    std::vector<Place> m_places;  ///< of the tables' controls at the usual size
    int m_usualHeight = 0;
};
