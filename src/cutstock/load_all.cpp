#include "cutstock/load_all.h"

#include "core_api/text/text_helpers.h"
#include "core_api/texts/date_text.h"
#include "core_api/texts/texts.h"
#include "platform/clock.h"

namespace cutstock {

namespace {

constexpr int titleText = 652, headingText = 285, forItemText = 634, loadedText = 636;
constexpr size_t ruleLength = 116;

/// What the report says of a kind of file.
struct ReportWords {
    FileKind kind;
    int noFile;
    int file;
};
constexpr ReportWords stockWords{stockKind, 633, 635};
constexpr ReportWords purchaseWords{purchaseKind, 637, 638};

Vor_String quoted(const Vor_String& text) {
    return "\"" + text + "\"";
}

class Loading {
  public:
    explicit Loading(DlgCSP2Data& data) : m_data(data) {}

    LoadedAll run() {
        m_loaded.report.title = dialString(titleText);
        m_loaded.report.heading = dialString(headingText);
        addRule();
        for (int item = 0; isItem(m_data, item); ++item) {
            loadNewest(item, stockWords);
            add("");
            loadNewest(item, purchaseWords);
            addRule();
        }
        return std::move(m_loaded);
    }

  private:
    void add(const Vor_String& line) { m_loaded.report.lines.append(line); }
    void addRule() { add(std::string(ruleLength, '-')); }
    void addFailure(const Vor_String& message) {
        add(message);
        m_loaded.failures.append(message);
    }

    void loadNewest(int item, const ReportWords& words) {
        const Vor_String name = m_data.itemNames[item];
        const Vor_String forItem = dialString(forItemText) + " " + quoted(name);
        Vor_String message;
        std::optional<StockFile> newest;
        if (const auto folder = itemFolder(name, message)) newest = newestFile(*folder, words.kind);
        if (newest) {
            add(dialString(words.file) + " " + quoted(getFileName(newest->path)) + " " + forItem +
                " " + dialString(loadedText) + timeText(newest->time));
            (void)readItem(m_data, item, words.kind, newest->path, message);
        } else {
            add(dialString(words.noFile) + " " + forItem + ".");
        }
        if (!message.isEmpty()) addFailure(message);
    }

    DlgCSP2Data& m_data;
    LoadedAll m_loaded;
};

}  // namespace

Vor_String timeText(std::int64_t nanoseconds) {
    return dateText(platform::calendarTime(nanoseconds / 1'000'000'000));
}

LoadedAll loadAll(DlgCSP2Data& data) {
    return Loading(data).run();
}

}  // namespace cutstock
