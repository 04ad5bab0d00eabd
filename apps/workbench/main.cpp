// vormant-workbench [LIBRARY]
#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>

#include "shell/main_window.h"
#include "window/qt_window_system.h"

namespace {

/// Has to be known before the application is made.
void applyScale(const WorkbenchSettings& settings) {
    if (settings.scalePercent != 100 && !qEnvironmentVariableIsSet("QT_SCALE_FACTOR"))
        qputenv("QT_SCALE_FACTOR", QByteArray::number(settings.scalePercent / 100.0));
}

}  // namespace

int main(int argc, char** argv) {
    const WorkbenchSettings settings = WorkbenchSettings::load();
    applyScale(settings);
    QApplication application(argc, argv);
    QApplication::setApplicationName("vormant-workbench");
    QApplication::setApplicationVersion(VORMANT_VERSION);
    QtWindowSystem windows;

    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Connection standards, sections and bills for steel detailers");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument("library", "Folder of the library to open", "[library]");
    parser.process(application);

    MainWindow window(settings);
    window.show();
    const QStringList given = parser.positionalArguments();
    const std::string library = given.isEmpty()
                                    ? settings.library
                                    : QFileInfo(given.front()).absoluteFilePath().toStdString();
    if (!library.empty()) window.openLibrary(library);
    return QApplication::exec();
}
