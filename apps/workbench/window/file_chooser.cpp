// Asking for files on the desktop, and the clipboard's text: the two places where names and texts
// of other programs come in.
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <optional>

#include "platform/paths.h"
#include "platform/window/wnd.h"
#include "workbench/window/desktop_texts.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/folder_dialog.h"
#include "workbench/window/qt_window_system.h"
#include "workbench/window/typed_text.h"

namespace {

using Kind = FileQuestion::Kind;

/// Or the nearest folder above that is there.
QString existingFolder(const std::string& folder) {
    if (folder.empty()) return {};
    QString path = QDir::cleanPath(QString::fromStdString(paths::toMachine(folder)));
    while (!QFileInfo(path).isDir() && path != QFileInfo(path).path())
        path = QFileInfo(path).path();
    return path;
}

/// Names with a dot of their own ("HEB 200.5") need the extension as well.
QString withExtension(const QString& path, const FileQuestion& question) {
    const QString ending = "." + toQt(question.extension);
    const bool isComplete = question.kind == Kind::folder || question.extension.empty() ||
                            path.endsWith(ending, Qt::CaseInsensitive) ||
                            (question.kind != Kind::save && QFileInfo::exists(path));
    return isComplete ? path : path + ending;
}

/// Looks for what was typed with the extension, too: Qt adds it only to names without any dot.
class Chooser : public FolderDialog {
  public:
    Chooser(QWidget* parent, const FileQuestion& question)
        : FolderDialog(parent), m_question(question) {}

  protected:
    void accept() override {
        auto* field = findChild<QLineEdit*>("fileNameEdit");
        if (field && !field->text().isEmpty() && !field->text().contains('"')) {
            const QString path = directory().filePath(field->text());
            const QString ending = withExtension(path, m_question).mid(path.size());
            if (!QFileInfo(path).isDir()) field->setText(field->text() + ending);
        }
        FolderDialog::accept();
    }

  private:
    const FileQuestion& m_question;
};

void setUp(FolderDialog& chooser, const FileQuestion& question) {
    chooser.setWindowTitle(toQt(question.title));
    // Asked after the extension was added, in the words of the module.
    chooser.setOption(QFileDialog::DontConfirmOverwrite);
    chooser.setAcceptMode(question.kind == Kind::save ? QFileDialog::AcceptSave
                                                      : QFileDialog::AcceptOpen);
    if (question.kind == Kind::save) chooser.setFileMode(QFileDialog::AnyFile);
    if (question.kind == Kind::open) chooser.setFileMode(QFileDialog::ExistingFile);
    if (question.kind == Kind::openSeveral) chooser.takeFolders();
    if (question.kind == Kind::folder) {
        chooser.setFileMode(QFileDialog::Directory);
        chooser.setOption(QFileDialog::ShowDirsOnly);
    } else if (!question.extension.empty()) {
        const QString extension = toQt(question.extension);
        chooser.setNameFilter(toQt(question.filterName) + " (*." + extension + ")");
    }
    if (const QString folder = existingFolder(question.folder); !folder.isEmpty())
        chooser.setDirectory(folder);
    if (!question.preset.empty()) chooser.selectFile(toQt(question.preset));
}

/// Letter case aside, as the module looks for its files.
bool mayBeReplaced(const std::string& inside, const FileQuestion& question) {
    const QFileInfo file(QString::fromStdString(paths::toMachine(inside)));
    if (question.kind != Kind::save || !file.exists()) return true;
    const QString asked = desktopText(DesktopText::fileExists).arg(file.fileName());
    return showMessage({question.title, fromQt(asked), MessageIcon::exclamation,
                        MessageButtons::yesNo}) == IDYES;
}

/// The path as the module writes it; nothing, after telling why, when it cannot.
std::optional<std::string> insidePath(const QString& path, const FileQuestion& question) {
    auto inside = paths::toInside(path.toStdString());
    if (!inside) {
        const QString why = desktopText(DesktopText::nameNotKept).arg(QFileInfo(path).fileName());
        showWarning(question.title, fromQt(why + "\n" + refusalOf(path)));
        return std::nullopt;
    }
    if (QFileInfo(path).isDir() && !inside->ends_with('\\')) *inside += '\\';
    return inside;
}

/// Empty when one of them is refused.
std::vector<std::string> accepted(const QStringList& chosen, const FileQuestion& question) {
    std::vector<std::string> made;
    for (const QString& each : chosen) {
        const QString path = withExtension(each, question);
        const auto inside = insidePath(path, question);
        if (!inside || !mayBeReplaced(*inside, question)) return {};
        made.push_back(*inside);
    }
    return made;
}

}  // namespace

std::vector<std::string> QtWindowSystem::chooseFiles(const FileQuestion& question, CWnd* parent) {
    syncGrids();
    Chooser chooser(ownerOf(parent), question);
    setUp(chooser, question);
    while (chooser.exec() == QDialog::Accepted) {
        const auto files = accepted(chooser.chosen(), question);
        if (!files.empty()) return files;
    }
    return {};
}

// What cannot be kept whole is not pasted at all.
std::string QtWindowSystem::clipboardText() {
    const QString text = QGuiApplication::clipboard()->text();
    if (canBeKept(text)) return fromQt(text);
    showWarning({}, fromQt(refusalOf(text)));
    return {};
}
