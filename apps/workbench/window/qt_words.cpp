#include "workbench/window/qt_words.h"

#include <QLibraryInfo>
#include <algorithm>
#include <string_view>

#include "workbench/window/ui_text.h"

namespace {

struct Word {
    std::string_view source;
    int number;
};

constexpr Word words[] = {
    {"OK", 1},
    {"Cancel", 2},
    {"&Yes", 9101},
    {"&No", 9102},
    // Choosing files
    {"Look in:", 9107},
    {"File &name:", 9108},
    {"Files of type:", 9109},
    {"&Open", 9110},
    {"&Save", 9111},
    {"&Choose", 26025},
    {"Directory:", 26020},
    {"Directories", 26026},
    {"Name", 87},
    {"Folder", 26021},
    {"Size", 26022},
    {"Type", 26023},
    {"Date Modified", 26024},
    {"Back", 26027},
    {"Go back", 26027},
    {"Forward", 26028},
    {"Go forward", 26028},
    {"Parent Directory", 26029},
    {"Go to the parent directory", 26029},
    {"Create New Folder", 26030},
    {"Create a New Folder", 26030},
    {"List View", 26031},
    {"Change to list view mode", 26031},
    {"Detail View", 26032},
    {"Change to detail view mode", 26032},
    {"Computer", 26033},
    {"My Computer", 26033},
    {"%1\nFile not found.\nPlease verify the correct file name was given.", 26045},
    // Choosing colours
    {"&Basic colors", 26034},
    {"&Custom colors", 26035},
    {"&Add to Custom Colors", 26036},
    {"&Pick Screen Color", 26037},
    {"Hu&e:", 26038},
    {"&Sat:", 26039},
    {"&Val:", 26040},
    {"&Red:", 26041},
    {"&Green:", 26042},
    {"Bl&ue:", 26043},
    {"&HTML:", 26044},
    // The menu of fields
    {"&Undo", 26046},
    {"&Redo", 26047},
    {"Cu&t", 23012},
    {"&Copy", 23013},
    {"&Paste", 23014},
    {"Delete", 26009},
    {"Select All", 23020},
};

constexpr const char* catalogues[] = {"qtbase_en", "qtbase_nl", "qtbase_de", "qtbase_fr"};

}  // namespace

QString QtWords::translate(const char* context, const char* source, const char* disambiguation,
                           int count) const {
    const auto* found = std::find_if(std::begin(words), std::end(words),
                                     [&](const Word& word) { return word.source == source; });
    if (found != std::end(words)) return uiText(found->number);
    return catalogue().translate(context, source, disambiguation, count);
}

const QTranslator& QtWords::catalogue() const {
    const Language language = gSettings.current().language;
    if (m_loaded != language) {
        m_loaded = language;
        const char* name = catalogues[static_cast<size_t>(language)];
        // Without it nothing is translated.
        [[maybe_unused]] const bool isThere =
            m_catalogue.load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    }
    return m_catalogue;
}
