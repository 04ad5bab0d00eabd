#include "workbench/bill/bill_maker.h"

#include <QProgressDialog>

#include "core_api/text/text_helpers.h"
#include "platform/host/host.h"
#include "platform/window/message_box.h"
#include "workbench/bill/bill_dialog.h"
#include "workbench/bill/bill_window_button.h"
#include "workbench/bill/bill_words.h"
#include "workbench/sheet/sheet_printing.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/machine_path.h"
#include "workbench/window/ui_text.h"

namespace {

bool complain(const std::string& text) {
    showWarning(fromQt(uiTitle(sayBill)), text);
    return false;
}

constexpr int untilProgressShows = 300;  // milliseconds
/// Every row would be told too often, with pictures every hundredth too seldom.
constexpr int rowsBetween = 10;

bool printPdf(Vor_Spread& sheet, const Vor_String& pdf, std::string& error) {
    QString why;
    if (writeSheetPdf(sheet, machinePath(pdf.str()), why)) return true;
    error = fromQt(why);
    return false;
}

void reportRowsWithoutMass(const Vor_Bill& bill) {
    const Vor_StringArray names = bills::rowsWithoutMass(bill);
    if (names.isEmpty()) return;
    acutPrint(fromQt(uiText(sayBillNoMass).arg(toQt(arrToStr(names, ", ")))) + "\n");
}

void reportDoubtfulMasses(const Vor_Bill& bill) {
    const Vor_StringArray doubtful = bills::doubtfulMasses(bill);
    if (doubtful.isEmpty()) return;
    acutPrint(fromQt(uiText(sayBillDoubtfulMass).arg(toQt(arrToStr(doubtful, ", ")))) + "\n");
}

}  // namespace

bool BillMaker::askAndMake(const Vor_StringArray& macros, QWidget* parent) {
    BillDialog dialog(macros, parent);
    return dialog.exec() == QDialog::Accepted && make(dialog.choice(), dialog.target(), parent);
}

bool BillMaker::make(bills::BillChoice choice, const bills::BillTarget& target, QWidget* parent) {
    choice.openMacro = m_openMacro;
    if (bills::isSource(choice, target.file))
        return complain(fromQt(uiText(sayBillIsSource).arg(machinePath(target.file.str()))));
    std::string error;
    auto bill = bills::makeBill(choice, error);
    if (!bill) return complain(error);
    return write(*bill, target, parent);
}

/// Also when the file was not written: what is shown can go elsewhere.
void BillMaker::offerExports(const Vor_String& file) {
    Vor_Spread* sheet = m_sheet->output().sheet();
    auto* window = sheet ? dynamic_cast<TwSheetEditorDlg*>(sheet->parent()) : nullptr;
    if (window) BillWindowButton::addTo(*window, file);
}

bool BillMaker::write(Vor_Bill& bill, const bills::BillTarget& target, QWidget* parent) {
    m_sheet = std::make_unique<bills::BillSheet>(target);
    QProgressDialog progress(uiText(sayBillMaking), uiText(2), 0,
                             static_cast<int>(bill.rows.size()), parent);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(untilProgressShows);
    const auto step = [&](int done, int) {
        if (done % rowsBetween == 0) progress.setValue(done);
        return !progress.wasCanceled();
    };
    std::string error;
    const BillFeed written = m_sheet->write(bill, step, error);
    progress.reset();
    if (written == BillFeed::cancelled) {
        m_sheet.reset();
        return false;
    }
    offerExports(target.file);
    const bool isPdf = bills::billFormat(target.file) == bills::BillFormat::pdf;
    if (written == BillFeed::failed ||
        (isPdf && !printPdf(*m_sheet->output().sheet(), target.file, error)))
        return complain(error);
    acutPrint(fromQt(uiText(sayBillSaved).arg(toQt(target.file))) + "\n");
    reportRowsWithoutMass(bill);
    reportDoubtfulMasses(bill);
    return true;
}
