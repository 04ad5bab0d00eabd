// vormant-workbench [LIBRARY] [FILE…] [--open NAME]… [--dialog NAME] [--screenshot FILE]
// vormant-workbench --print DOCUMENT PDF
#include <QApplication>
#include <QBuffer>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QHashSeed>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <new>
#include <utility>

#include "core_api/program_data.h"
#include "core_api/settings.h"
#include "core_api/texts/language_codes.h"
#include "platform/out_of_memory.h"
#include "platform/paths.h"
#include "platform/terminal_text.h"
#include "workbench/grid/calculation_stop.h"
#include "workbench/module/starters_menu.h"
#include "workbench/sheet/sheet_file.h"
#include "workbench/sheet/sheet_printing.h"
#include "workbench/shell/main_window.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"
#include "workbench/window/written_file.h"

namespace {

void complain(const QString& message) {
    const std::string line = terminalText("vormant-workbench: " + message.toStdString() + "\n");
    std::fwrite(line.data(), 1, line.size(), stderr);
}

/// Has to be known before the application is made.
void applyScale(const WorkbenchSettings& settings) {
    if (settings.scalePercent != 100 && !qEnvironmentVariableIsSet("QT_SCALE_FACTOR"))
        qputenv("QT_SCALE_FACTOR", QByteArray::number(settings.scalePercent / 100.0));
}

QString absolute(const QString& path) {
    return QFileInfo(path).absoluteFilePath();
}

/// Opens one of the module's dialogs, as its entry in the menu does. False for an unknown name.
bool openDialog(MainWindow& window, const QString& name) {
    constexpr std::pair<const char*, int> dialogs[] = {
        {"library", 24060}, {"size", 24061}, {"stock", 24064}};
    const auto named = std::find_if(std::begin(dialogs), std::end(dialogs),
                                    [&](const auto& each) { return name == each.first; });
    if (named == std::end(dialogs)) return false;
    const auto all = starters();
    const auto found = std::find_if(
        all.begin(), all.end(), [&](const Starter& each) { return each.title == named->second; });
    QTimer::singleShot(0, &window, [&window, found] { start(*found, window.moduleData()); });
    return true;
}

/// What is open is drawn into a picture, as a reader of the manual will see it: the dialog in
/// front, else the window.
void takeScreenshot(MainWindow& window, const QString& file) {
    constexpr int untilPainted = 200;  // milliseconds
    QTimer::singleShot(untilPainted, &window, [&window, file] {
        QWidget* dialog = QApplication::activeModalWidget();
        QBuffer picture;
        QString error = file + ": cannot be written";
        const QByteArray format = QFileInfo(file).suffix().toLatin1();
        const bool isSaved =
            picture.open(QIODevice::WriteOnly) &&
            (dialog ? dialog->grab() : window.grab()).save(&picture, format.constData()) &&
            writeFile(file, picture.data(), error);
        if (!isSaved) complain(error);
        QApplication::exit(isSaved ? 0 : 1);
    });
}

constexpr const char* printOption = "--print";

/// Writes the pages of a document into a PDF file, without a screen.
int printDocument(int argc, char** argv) {
    if (argc != 4) {
        complain(QString(printOption) + " needs a document and a PDF file");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What Qt remarks on a session without a desktop is of no use to a script.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QApplication application(argc, argv);
    QtWindowSystem windows;
    const WorkbenchSettings settings = WorkbenchSettings::load();
    settings.applyNameRule();
    if (const auto library = paths::toInside(settings.library); library && !library->empty())
        gSettings.setLibDir(*library);
    const auto path = paths::toInside(argv[2]);
    SheetFile file;
    std::string failure = "the name of the document cannot be used";
    QString error;
    if (path && file.open(*path, failure)) {
        // Pages without their header are not what was asked for.
        error = printProblems(file.spread());
        if (error.isEmpty() && writeSheetPdf(file.spread(), QString::fromLocal8Bit(argv[3]), error))
            return 0;
    } else {
        error = toQt(failure);
        if (path) error.replace(toQt(*path), QString::fromLocal8Bit(argv[2]));
    }
    complain(shownMessage(error));
    return 1;
}

}  // namespace

int main(int argc, char** argv) try {
    platform::prepareForNoMemory("vormant-workbench");
    // Fonts come into PDF files in the order of a hash, which is another one at every start.
    QHashSeed::setDeterministicGlobalSeed();
    if (argc > 1 && std::strcmp(argv[1], printOption) == 0) return printDocument(argc, argv);
    WorkbenchSettings settings = WorkbenchSettings::load();
    applyScale(settings);
    QApplication application(argc, argv);
    QApplication::setApplicationName("vormant-workbench");
    QApplication::setApplicationVersion(VORMANT_VERSION);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Connection standards, sections and bills for steel detailers");
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption open("open", "Standard, macro, section table or sheet to open",
                                  "file");
    const QCommandLineOption language("language", "Language of the texts: en, nl, de or fr",
                                      "code");
    const QCommandLineOption screenshot("screenshot", "Draw the window into a picture and end",
                                        "file");
    const QCommandLineOption dialog("dialog", "Dialog to open: library, size or stock", "name");
    parser.addOptions({open, language, dialog, screenshot});
    parser.addPositionalArgument("library", "Folder of the library to open", "[library]");
    parser.addPositionalArgument("files", "Standards, macros, section tables or sheets to open",
                                 "[file…]");
    parser.process(application);

    if (parser.isSet(language)) {
        settings.sessionLanguage = languageOfCode(parser.value(language).toStdString());
        if (!settings.sessionLanguage) {
            complain("--language " + parser.value(language) + ": choose " + languageCodes.data());
            return 2;
        }
    }
    useProgramData();
    offerToStopCalculations();
    MainWindow window(settings);
    window.show();
    QStringList files = parser.positionalArguments();
    const bool isLibrary = !files.isEmpty() && !QFileInfo(files.front()).isFile();
    const std::string library =
        isLibrary ? absolute(files.takeFirst()).toStdString() : settings.library;
    if (!library.empty()) window.openLibrary(library);
    for (const QString& file : files + parser.values(open)) window.openFile(absolute(file));
    if (parser.isSet(dialog) && !openDialog(window, parser.value(dialog))) {
        complain("--dialog " + parser.value(dialog) + ": choose library, size or stock");
        return 2;
    }
    if (parser.isSet(screenshot)) takeScreenshot(window, parser.value(screenshot));
    return QApplication::exec();
} catch (const std::bad_alloc&) {
    return platform::reportNoMemory();
}
