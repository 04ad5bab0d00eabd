// Makes bills: asks what they are made of, tells how far they are, and keeps the window of the last
// one, which shows its sheet.
#pragma once

#include <memory>

#include "bills/bill_choice.h"
#include "bills/bill_sheet.h"

class QWidget;

class BillMaker {
  public:
    explicit BillMaker(bills::OpenMacro openMacro) : m_openMacro(std::move(openMacro)) {}

    /// `macros` are ticked at first. False when the user cancelled, or after telling what failed.
    bool askAndMake(const Vor_StringArray& macros, QWidget* parent);
    /// Without asking.
    bool make(bills::BillChoice choice, const bills::BillTarget& target, QWidget* parent);

    /// The last bill; null before there is one.
    bills::BillSheet* last() { return m_sheet.get(); }
    void close() { m_sheet.reset(); }

  private:
    void offerExports(const Vor_String& file);
    bool write(Vor_Bill& bill, const bills::BillTarget& target, QWidget* parent);

    bills::OpenMacro m_openMacro;
    std::unique_ptr<bills::BillSheet> m_sheet;
};
