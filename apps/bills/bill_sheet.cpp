#include "bills/bill_sheet.h"

#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "platform/files.h"
#include "sheets/sheet_writing.h"
#include "spread/sheet_preparation.h"
#include "spread/tw_sheet_settings.h"

namespace bills {

namespace {

constexpr int titleVariable = 1, fileVariable = 2;

/// Lets the module look for a settings file where it lies: where its path says, or in the add-on's
/// folder, or else in the library.
class SettingsFolder {
  public:
    explicit SettingsFolder(const Vor_String& typed) : m_before(gSettings.vorDir()) {
        const bool isPath = typed.endsWith(".twd");
        m_name = typed.isEmpty() ? Vor_String("Bill")
                 : isPath        ? removeExtension(getFileName(typed))
                                 : typed;
        if (isPath)
            gSettings.setVorDir(getPath(typed).isEmpty() ? Vor_String(".") : getPath(typed));
        else if (!exists())
            gSettings.setVorDir(gSettings.libDir());
    }
    ~SettingsFolder() { gSettings.setVorDir(m_before); }
    SettingsFolder(const SettingsFolder&) = delete;
    SettingsFolder& operator=(const SettingsFolder&) = delete;

    const Vor_String& name() const { return m_name; }
    bool exists() const {
        return files::exists(ensureEndBSlash(gSettings.vorDir()) + m_name + ".twd");
    }

  private:
    Vor_String m_before;
    Vor_String m_name;
};

AcArray<int> kindsOf(const Vor_Bill& bill) {
    AcArray<int> kinds;
    for (const BillColumn& column : bill.columns) kinds.append(static_cast<int>(column.kind));
    return kinds;
}

}  // namespace

std::optional<BillFormat> billFormat(const Vor_String& file) {
    const std::pair<const char*, BillFormat> formats[] = {{".tws", BillFormat::document},
                                                          {".sss", BillFormat::document},
                                                          {".xlsx", BillFormat::xlsx},
                                                          {".csv", BillFormat::csv},
                                                          {".pdf", BillFormat::pdf}};
    for (const auto& [extension, format] : formats)
        if (file.endsWith(extension)) return format;
    return std::nullopt;
}

BillSheet::BillSheet(const BillTarget& target)
    : m_target(target), m_format(billFormat(target.file).value_or(BillFormat::document)) {
    m_output.leaveFailuresToCaller();
}

/// What is no document itself is made of one, which has its name and so its title.
bool BillSheet::chooseDocument(std::string& error) {
    m_document = m_target.file;
    if (m_format == BillFormat::document) return true;
    m_folder = files::ScratchFolder::make(error);
    if (!m_folder) return false;
    m_document = m_folder->inside(changeExtension(getFileName(m_target.file), "sss").view());
    return true;
}

BillFeed BillSheet::write(Vor_Bill& bill, const BillProgress& progress, std::string& error) {
    const SettingsFolder settings(m_target.settings);
    if (!m_target.settings.isEmpty() && !settings.exists()) {
        error = "there are no settings \"" + m_target.settings.str() + "\" in " +
                gSettings.vorDir().str();
        return BillFeed::failed;
    }
    if (!chooseDocument(error)) return BillFeed::failed;
    if (m_output.init(m_document, bill.columnNames(), {}, kindsOf(bill), settings.name(), {}, {}) !=
        Acad::eOk) {
        error = "the window of the bill cannot be opened";
        return BillFeed::failed;
    }
    AcTransaction transaction;
    if (m_target.hasPictures)
        m_output.setVars(-1, m_target.pictureHeight, 0, true, true, &bill, &transaction);
    const BillFeed fed = feedBill(bill, m_output, progress);
    m_output.setVars(-1, 0, 0, true, true, nullptr, nullptr);
    if (fed == BillFeed::cancelled) return fed;
    const bool isWritten = fed == BillFeed::done && m_output.wasSaved();
    if (!isWritten) error = m_output.sheet() ? m_output.sheet()->lastError() : "";
    return isWritten && nameIt(bill, error) && exportIt(error) ? BillFeed::done : BillFeed::failed;
}

/// A title of its own, and the file that was asked for, in the variables of page headers.
bool BillSheet::nameIt(const Vor_Bill& bill, std::string& error) {
    if (bill.title.isEmpty() && m_document == m_target.file) return true;
    Vor_Spread& sheet = *m_output.sheet();
    TwSheetSettings settings;
    settings.readFromSheet(sheet);
    if (settings.varValues.length() <= fileVariable) return true;
    if (!bill.title.isEmpty()) settings.varValues[titleVariable] = bill.title;
    settings.varValues[fileVariable] = m_target.file;
    settings.writeToSheet(sheet);
    if (saveSheet(sheet, m_document)) return true;
    error = sheet.lastError();
    return false;
}

bool BillSheet::exportIt(std::string& error) {
    if (m_format == BillFormat::document || m_format == BillFormat::pdf) return true;
    const control::Grid& grid = m_output.sheet()->grid();
    const auto content = m_format == BillFormat::csv ? sheets::sheetAsCsv(grid, error)
                                                     : sheets::sheetAsXlsx(grid, error);
    if (!content) {
        error = m_target.file.str() + ": " + error;
        return false;
    }
    return files::writeWhole(m_target.file, *content, error);
}

}  // namespace bills
