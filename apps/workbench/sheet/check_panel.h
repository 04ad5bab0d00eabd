// What is wrong with a standard, or probably not meant; a finding leads to its cell.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <functional>

#include "core_api/text/vor_string.h"
#include "spread/control/grid.h"

class CheckPanel : public QWidget {
  public:
    /// `goTo` hears of the cell of a finding that is chosen.
    CheckPanel(std::function<void(control::CellAddress)> goTo, QWidget* parent);

    /// Checks the file. The number of findings.
    int check(const Vor_String& path);
    QListWidget& findings() const { return *m_findings; }

  private:
    QLabel* m_message;
    QListWidget* m_findings;
    std::function<void(control::CellAddress)> m_goTo;
};
