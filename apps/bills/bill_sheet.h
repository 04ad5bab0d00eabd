// A bill written into a sheet, and that sheet into the file that was asked for.
#pragma once

#include <optional>
#include <string>

#include "bill/feed_bill.h"
#include "bill/tw_ss_bill_output.h"
#include "platform/scratch.h"
#include "spread/tw_sheet_settings.h"

namespace bills {

struct BillTarget {
    Vor_String file;      ///< ".tws", ".sss", ".xlsx", ".csv"; ".pdf" where a program can print
    Vor_String settings;  ///< name of a settings file, or its path with ".twd"; empty: "Bill"
    bool hasPictures = false;
    int pictureHeight = 0;  ///< pixels; 0 for the usual
};

enum class BillFormat { document, xlsx, csv, pdf };
/// By the extension; nothing for another one.
std::optional<BillFormat> billFormat(const Vor_String& file);

class BillSheet {
  public:
    explicit BillSheet(const BillTarget& target);
    BillSheet(const BillSheet&) = delete;
    BillSheet& operator=(const BillSheet&) = delete;

    /// Fills the sheet and writes the file, all but a PDF: with the copies of its page header and
    /// footer and all its pictures, or not at all. failed with the reason in `error`; a file that
    /// was there before is as it was then, and when cancelled.
    BillFeed write(Vor_Bill& bill, const BillProgress& progress, std::string& error);

    /// The document of the sheet: the file itself, or one that goes with this object, for programs
    /// that print it.
    const Vor_String& document() const { return m_document; }
    TwSSBillOutput& output() { return m_output; }

  private:
    bool isPrinted() const {
        return m_format == BillFormat::document || m_format == BillFormat::pdf;
    }
    bool chooseDocument(std::string& error);
    bool begin(const Vor_Bill& bill, std::string& error);
    bool hasSettings(const TwSheetSettings& wanted) const;
    bool areHeadersUsable(const TwSheetSettings& settings, std::string& error) const;
    BillFeed feed(Vor_Bill& bill, const BillProgress& progress, std::string& error);
    bool exportIt(std::string& error);

    BillTarget m_target;
    BillFormat m_format = BillFormat::document;
    Vor_String m_document;
    std::optional<files::ScratchFolder> m_folder;  ///< of a document that goes
    TwSSBillOutput m_output;
};

}  // namespace bills
