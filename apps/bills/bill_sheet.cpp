#include "bills/bill_sheet.h"

#include <algorithm>

#include "bills/bill_choice.h"
#include "bills/bill_sections.h"
#include "core_api/library_names.h"
#include "core_api/settings.h"
#include "core_api/text/text_helpers.h"
#include "exchange/sheet_writing.h"
#include "platform/files.h"
#include "spread/sheet_preparation.h"
#include "spread/tw_sheet_settings.h"

namespace bills {

namespace {

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
    Vor_String path() const { return ensureEndBSlash(gSettings.vorDir()) + m_name + ".twd"; }
    /// A folder of that name is no settings file, but no reason to do without one either.
    bool exists() const { return files::exists(path()) || files::isFolder(path()); }

  private:
    Vor_String m_before;
    Vor_String m_name;
};

std::string notAsBefore(const SettingsFolder& settings) {
    return "cannot read " + settings.path().str() + ": it has just changed; try again";
}

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
    m_output.leaveFailuresToCaller(isPrinted() ? HeaderFiles::allOrNothing
                                               : HeaderFiles::whereUsable);
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
    const bool needsSections = m_target.hasPictures || !rowsWithoutMass(bill).isEmpty();
    if ((needsSections && !areSectionsRead(bill, error)) || !chooseDocument(error) ||
        !begin(bill, error))
        return BillFeed::failed;
    const BillFeed fed = feed(bill, progress, error);
    return fed == BillFeed::done && !exportIt(error) ? BillFeed::failed : fed;
}

/// The window with an empty sheet that has the settings: those of the file where there is one.
bool BillSheet::begin(const Vor_Bill& bill, std::string& error) {
    const SettingsFolder settings(m_target.settings);
    const bool areRequired = settings.exists();
    if (!m_target.settings.isEmpty() && !areRequired) {
        error = "there are no settings \"" + m_target.settings.str() + "\" in " +
                gSettings.vorDir().str();
        return false;
    }
    TwSheetSettings wanted;
    if (areRequired &&
        (!files::readWhole(settings.path(), error) || !wanted.readFromFile(settings.name()) ||
         !areHeadersUsable(wanted, error))) {
        if (error.empty()) error = notAsBefore(settings);
        return false;
    }
    if (m_output.init(m_document, bill.columnNames(), {}, kindsOf(bill), settings.name(), {}, {}) !=
        Acad::eOk) {
        error = "the window of the bill cannot be opened";
        return false;
    }
    std::string shownFile = m_target.file.str();
    std::replace(shownFile.begin(), shownFile.end(), '\\',
                 '/');  // as this machine's users write it
    m_output.setNames(bill.title, shownFile);
    if (!areRequired || hasSettings(wanted)) return true;
    error = notAsBefore(settings);
    return false;
}

bool BillSheet::hasSettings(const TwSheetSettings& wanted) const {
    const Vor_Spread& sheet = *m_output.sheet();
    TwSheetSettings got;
    got.readFromSheet(sheet);
    return got == wanted && sheet.fontName().equal(wanted.defaultFont, true) &&
           sheet.fontHeight() == wanted.defaultTextHeight;
}

/// False when the bill would take the place of what stands above or below its pages, or when that
/// does not lie beside the settings: a bare name never means the folder of the call.
bool BillSheet::areHeadersUsable(const TwSheetSettings& settings, std::string& error) const {
    for (const Vor_String& file : {settings.headerFile, settings.footerFile}) {
        if (file.isEmpty()) continue;
        if (isSameFile(file, m_target.file))
            error = m_target.file.str() +
                    ": is the page header or footer of the bill; choose another file for the bill";
        else if (isPrinted() && getPath(file).isEmpty())
            error = "cannot read " + file.str() +
                    ": it does not lie beside the settings; put the page header or footer there";
        // The settings' folder is the add-on's for as long as they are read.
        else if (const auto refusal =
                     isPrinted() && files::exists(file) ? outsideRefusal(file) : std::nullopt)
            error = refusal->str();
        if (!error.empty()) return false;
    }
    return true;
}

BillFeed BillSheet::feed(Vor_Bill& bill, const BillProgress& progress, std::string& error) {
    AcTransaction transaction;
    if (m_target.hasPictures)
        m_output.setVars(-1, m_target.pictureHeight, 0, true, true, &bill, &transaction);
    const BillFeed fed = feedBill(bill, m_output, progress);
    m_output.setVars(-1, 0, 0, true, true, nullptr, nullptr);
    if (fed == BillFeed::cancelled || (fed == BillFeed::done && m_output.wasSaved())) return fed;
    error = m_output.saveFailure();
    return BillFeed::failed;
}

bool BillSheet::exportIt(std::string& error) {
    if (m_format == BillFormat::document || m_format == BillFormat::pdf) return true;
    const control::Grid& grid = m_output.sheet()->grid();
    const auto content = m_format == BillFormat::csv
                             ? exchange::sheetAsCsv(grid, exchange::CsvTexts::guarded, error)
                             : exchange::sheetAsXlsx(grid, error);
    if (!content) {
        error = m_target.file.str() + ": " + error;
        return false;
    }
    return files::writeWhole(m_target.file, *content, error);
}

}  // namespace bills
