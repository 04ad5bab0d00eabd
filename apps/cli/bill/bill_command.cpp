#include "cli/bill/bill_command.h"

#include "bills/bill_choice.h"
#include "bills/bill_sheet.h"
#include "cli/bill/bill_summary.h"
#include "cli/bill/print_document.h"
#include "core_api/settings.h"
#include "core_api/text/delimited_text.h"
#include "core_api/text/text_helpers.h"
#include "core_api/texts/language_codes.h"

#include "cli/io/output.h"
#include "cli/io/suggestion.h"
#include "cli/io/typed_paths.h"
#include "cli/standards/library.h"
#include "exchange/texts.h"
#include "platform/files.h"
#include "platform/host/host.h"

namespace cli {

namespace {

/// Keeps what the module prints, to be told as this program tells things.
class ListeningHost : public Host {
  public:
    void print(std::string_view text) override { m_text += text; }

    void report() const {
        for (const Vor_String& line : splitStringAtSymbol(m_text, '\n', true))
            if (!line.isEmpty()) complainText(line);
    }

  private:
    std::string m_text;
};

class BillCall {
  public:
    explicit BillCall(const BillRequest& request) : m_request(request) {}

    ExitCode run() {
        if (const auto language = languageOfCode(m_request.language))
            gSettings.current().language = *language;
        if (const ExitCode code = takeChoice(); code != ExitCode::done) return code;
        if (!m_request.output.empty() && bills::isSource(m_choice, m_target.file)) {
            complainAt(m_request.output, 0, "is what the bill is made of; choose another file");
            return ExitCode::wrongCall;
        }
        std::string error;
        bool isWrongCall = false;
        auto bill = bills::makeBill(m_choice, error, &isWrongCall);
        if (!bill) {
            complainText(error);
            return isWrongCall ? ExitCode::wrongCall : ExitCode::failed;
        }
        if (m_request.output.empty()) return print(*bill);
        return write(*bill);
    }

  private:
    // --- what was asked for ---------------------------------------------------------------------

    ExitCode takeChoice() {
        if (!m_request.output.empty() && !takeTarget()) return ExitCode::wrongCall;
        if (m_request.output.empty() && (m_request.json || m_request.pictures)) {
            complain("--json and --pictures need a file to write: --output FILE");
            return ExitCode::wrongCall;
        }
        if (!takeText("--title", m_request.title, m_choice.title) ||
            !takeText("--group", m_request.group, m_choice.group) || !takeColumns())
            return ExitCode::wrongCall;
        for (const std::string& source : m_request.sources)
            if (const ExitCode code = addSource(source); code != ExitCode::done) return code;
        return ExitCode::done;
    }

    bool takeText(const std::string& option, const std::string& typed, Vor_String& text) {
        std::string taken, error;
        if (!exchange::fromUtf8(typed, taken, error)) {
            complain(option + " " + typed + ": " + error);
            return false;
        }
        text = taken;
        return true;
    }

    bool takeColumns() {
        Vor_String all;
        if (!takeText("--columns", m_request.columns, all)) return false;
        if (!all.isEmpty()) m_choice.columns = splitStringAtSymbol(all, ',', true);
        return true;
    }

    bool takeTarget() {
        const auto file = insidePath(m_request.output);
        Vor_String settings;
        if (!file || !takeText("--settings", m_request.settings, settings)) return false;
        const auto settingsPath = insidePath(m_request.settings);
        if (!bills::billFormat(*file)) {
            complainAt(m_request.output, 0,
                       "is no kind of file for a bill; choose .sss, .tws, .xlsx, .csv or .pdf");
            return false;
        }
        m_target.file = *file;
        m_target.settings = settings.endsWith(".twd") ? *settingsPath : settings;
        m_target.hasPictures = m_request.pictures;
        m_target.pictureHeight = m_request.pictureHeight;
        return true;
    }

    ExitCode addSource(const std::string& typed) {
        const auto path = insidePath(typed);
        if (!path) return ExitCode::wrongCall;
        const bool isTable = path->endsWith(".csv");
        if (isTable && m_request.sources.size() > 1) {
            complain("a bill is made of macros, or of one CSV file");
            return ExitCode::wrongCall;
        }
        if (isTable) {
            m_choice.table = *path;
            return ExitCode::done;
        }
        const auto macro = findMacro(*path);
        if (!macro) {
            complain("there is no macro \"" + typed + "\"; name a file, or a macro of the library" +
                     didYouMean(nearest(typed, macroNames())));
            return ExitCode::failed;
        }
        m_choice.macros.append(*macro);
        return ExitCode::done;
    }

    /// A file, or a macro of the library by its name.
    static std::optional<Vor_String> findMacro(const Vor_String& typed) {
        if (files::exists(typed)) return typed;
        if (gSettings.libDir().isEmpty()) return std::nullopt;
        const Vor_String name = typed.endsWith(".macro") ? typed : typed + ".macro";
        const Vor_String path = gSettings.libDir() + "Macros\\" + name;
        return files::exists(path) ? std::optional(path) : std::nullopt;
    }

    static std::vector<std::string> macroNames() {
        std::vector<std::string> names;
        if (gSettings.libDir().isEmpty()) return names;
        for (const std::string& path :
             files::find(gSettings.libDir() + "Macros\\", "*.macro", false)) {
            names.emplace_back();
            exchange::appendUtf8(names.back(), removeExtension(getFileName(path)));
        }
        return names;
    }

    // --- what is given --------------------------------------------------------------------------

    /// The rows as CSV, without what sums them up.
    static ExitCode print(const Vor_Bill& bill) {
        Output output;
        const auto line = [&](const Vor_StringArray& cells) {
            std::string text;
            for (int i = 0; i < cells.length(); ++i) {
                std::string field;
                exchange::appendUtf8(field, cells[i]);
                if (i > 0) text += ',';
                appendGuardedField(text, field, ',');
            }
            output.write(text + "\n");
        };
        line(bill.columnNames());
        for (const BillRow& row : bill.rows) line(row.cells);
        reportDoubtfulMasses(bill);
        return output.close() ? ExitCode::done : ExitCode::failed;
    }

    ExitCode write(Vor_Bill& bill) {
        const bool isPdf = bills::billFormat(m_target.file) == bills::BillFormat::pdf;
        if (isPdf && !findPrinter()) return ExitCode::failed;
        std::string error;
        ListeningHost host;
        const HostScope scope(host);
        bills::BillSheet sheet(m_target);
        const BillFeed written = sheet.write(bill, nullptr, error);
        host.report();
        if (!error.empty()) complainText(error);
        if (written != BillFeed::done) return ExitCode::failed;
        if (isPdf && !printDocument(sheet.document(), m_target.file)) return ExitCode::failed;
        if (!m_request.json) {
            reportRowsWithoutMass(bill);
            reportDoubtfulMasses(bill);
            return ExitCode::done;
        }
        Output output;
        output.write(billSummary(bill, m_target.file) + "\n");
        return output.close() ? ExitCode::done : ExitCode::failed;
    }

    static void reportDoubtfulMasses(const Vor_Bill& bill) {
        const Vor_StringArray doubtful = bills::doubtfulMasses(bill);
        if (doubtful.isEmpty()) return;
        std::string list;
        exchange::appendUtf8(list, arrToStr(doubtful, ", "));
        complain(exchange::shortened(
            "the masses of sections do not fit their dimensions (in the table / by "
            "the dimensions): " +
            list + "; the bill has those of the table, see 'sections check'"));
    }

    static void reportRowsWithoutMass(const Vor_Bill& bill) {
        const Vor_StringArray names = bills::rowsWithoutMass(bill);
        if (names.isEmpty()) return;
        std::string list;
        exchange::appendUtf8(list, arrToStr(names, ", "));
        complain(
            exchange::shortened("no mass is known of " + list + "; the totals are without them"));
    }

    const BillRequest& m_request;
    bills::BillChoice m_choice;
    bills::BillTarget m_target;
};

}  // namespace

ExitCode makeBill(const BillRequest& request) {
    return BillCall(request).run();
}

}  // namespace cli
