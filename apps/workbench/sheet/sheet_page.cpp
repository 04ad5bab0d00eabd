#include "workbench/sheet/sheet_page.h"

#include <QFileInfo>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>

#include "core_api/text/text_helpers.h"
#include "platform/window/file_question.h"
#include "platform/window/message_box.h"
#include "spread/editor/block_statistics.h"
#include "workbench/sheet/sheet_commands.h"
#include "workbench/sheet/sheet_export.h"
#include "workbench/sheet/sheet_printing.h"
#include "workbench/sheet/ui_text.h"
#include "workbench/window/machine_path.h"
#include "workbench/window/typed_text.h"
#include "workbench/words/workbench_words.h"

namespace {

constexpr int summaryDelay = 30;  // milliseconds; dragging selects many blocks in a row
constexpr int figures = 10;

}  // namespace

SheetPage::SheetPage(std::unique_ptr<SheetFile> file, QString name, QWidget* parent)
    : QWidget(parent), m_file(std::move(file)), m_name(std::move(name)) {
    m_view = new SheetView(spread(), this);
    m_bar = new FormulaBar(*m_view, grid(), this);
    m_find = new FindBar(
        spread(), [this] { finish(true); },
        [this] {
            m_find->hide();
            m_view->setFocus();
        },
        this);
    m_find->hide();
    m_check = new CheckPanel(
        [this](control::CellAddress cell) {
            goTo({cell.col, cell.row, cell.col, cell.row});
        },
        this);
    m_check->hide();
    m_commands = new SheetCommands(*this);
    auto* middle = new QSplitter;
    middle->addWidget(m_view);
    middle->addWidget(m_check);
    middle->setStretchFactor(0, 3);
    middle->setStretchFactor(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(&m_commands->toolBar());
    layout->addWidget(m_bar);
    layout->addWidget(middle, 1);
    layout->addWidget(m_find);
    layout->addWidget(makeStatus());
    setFocusProxy(m_view);
    connectParts();
    markStandard();
    follow();
}

// The view goes before the grid that it shows.
SheetPage::~SheetPage() {
    spread().setListener({});
    spread().setMenuOpener({});
    delete m_view;
}

QWidget* SheetPage::makeStatus() {
    auto* status = new QWidget;
    auto* layout = new QHBoxLayout(status);
    layout->setContentsMargins(6, 2, 6, 2);
    m_message = new QLabel;
    m_message->setTextFormat(Qt::PlainText);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_summary = new QLabel;
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(m_message, 1);
    layout->addWidget(m_summary);
    return status;
}

void SheetPage::connectParts() {
    spread().setListener([this](const GridNotice&) {
        showMessage({});
        follow();
    });
    spread().setMenuOpener([this] { m_commands->openContextMenu(); });
    connect(m_bar, &FormulaBar::wentTo, this, [this](const control::Block& block) { goTo(block); });
    connect(m_bar, &FormulaBar::noSuchPlace, this,
            [this](const QString& name) { showMessage(uiText(sayNoSuchCell).arg(name), true); });
    connect(m_bar, &FormulaBar::entered, this, [this](const QString& text) { enterFromBar(text); });
    connect(&m_bar->functionButton(), &QToolButton::clicked, this,
            [this] { m_commands->insertFunction(); });
    m_summariseSoon.setSingleShot(true);
    m_summariseSoon.setInterval(summaryDelay);
    connect(&m_summariseSoon, &QTimer::timeout, this, [this] { summarise(); });
}

// --- showing ------------------------------------------------------------------------------------

void SheetPage::follow() {
    m_view->sync();
    m_bar->follow();
    m_commands->follow();
    m_summariseSoon.start();
    emit stateChanged();
}

bool SheetPage::finish(bool isDone) {
    if (isDone)
        showMessage({});
    else if (!editor().lastError().empty())
        showMessage(toQt(editor().lastError()), true);
    follow();
    if (m_file->isStandard()) markStandard();
    return isDone;
}

void SheetPage::finishAt(bool isDone) {
    if (!isDone) return;
    const control::Block place = editor().place();
    if (grid().isInside(place.col1, place.row1)) grid().select(place);
    finish(true);
}

void SheetPage::goTo(const control::Block& block) {
    if (!commitEdit()) return;
    if (block.col1 == block.col2 && block.row1 == block.row2)
        spread().userMoves(block.col1, block.row1);
    else
        spread().userSelects(block);
    m_view->setFocus();
}

void SheetPage::showMessage(const QString& message, bool isFailure) {
    const QString shown = shownMessage(message);
    m_message->setText(shown);
    m_message->setToolTip(shown);
    m_message->setStyleSheet(isFailure ? "color: #b00000" : "");
}

void SheetPage::summarise() {
    const auto found = editor::blockStatistics(grid(), spread().chosen());
    const auto number = [](double value) { return QString::number(value, 'g', figures); };
    m_summary->setText(
        found.numbers < 1 || found.filled < 2
            ? QString()
            : uiText(saySummary).arg(number(found.sum), number(found.average())).arg(found.filled));
}

void SheetPage::markStandard() {
    m_view->setStandardMarks(m_file->isStandard()
                                 ? std::make_shared<const StandardMarks>(standardMarks(spread()))
                                 : nullptr);
}

void SheetPage::enterFromBar(const QString& text) {
    const auto [col, row] = grid().active();
    if (const QString why = refusalOf(text); !why.isEmpty()) {
        showMessage(why, true);
        return;
    }
    finish(spread().userEnters(col, row, fromQt(text)));
}

QString SheetPage::title() const {
    const std::string& path = m_file->path();
    return path.empty() ? m_name : toQt(getFileName(Vor_String(path)));
}

// --- files --------------------------------------------------------------------------------------

bool SheetPage::save() {
    if (!commitEdit()) return false;
    if (m_file->path().empty()) return saveAs();
    return saveTo(m_file->path());
}

bool SheetPage::saveAs() {
    if (!commitEdit()) return false;
    const Vor_String path(m_file->path());
    FileQuestion question;
    question.kind = FileQuestion::Kind::save;
    question.title = fromQt(uiTitle(saySaveAs));
    question.filterName = fromQt(uiText(saySheetFilter));
    question.extension = m_file->isStandard() ? "tws" : "sss";
    question.folder = getPath(path).str();
    question.preset = path.isEmpty() ? fromQt(m_name) : getFileName(path).str();
    const auto chosen = chooseFiles(question, nullptr);
    return !chosen.empty() && saveTo(chosen.front());
}

bool SheetPage::saveTo(const std::string& path) {
    std::string error;
    const OpenFile::Saved saved = m_file->save(path, error);
    if (saved == OpenFile::Saved::reload) return reload(), false;
    if (saved == OpenFile::Saved::no) {
        if (error.empty()) return false;  // the user cancelled
        showMessage(toQt(error), true);
        showWarning("Vormant", error);
        return false;
    }
    finish(true);
    showMessage(uiText(saySaved).arg(machinePath(path)));
    if (m_check->isVisible()) check();
    return true;
}

/// What another program wrote, in place of what is shown.
void SheetPage::reload() {
    std::string error;
    const std::string path = m_file->path();
    if (!m_file->open(path, error)) {
        showMessage(toQt(error), true);
        showWarning("Vormant", error);
        return;
    }
    finish(true);
}

void SheetPage::followFile() {
    if (!m_file->noticeChange()) return;
    if (isChanged()) return showMessage(uiText(wordFileChanged), true);
    std::string error;
    const std::string path = m_file->path();
    if (!m_file->open(path, error))
        return showMessage(uiText(wordFileUnreadable).arg(toQt(error)), true);
    finish(true);
    showMessage(uiText(wordFileReloaded));
    if (m_check->isVisible()) check();
}

bool SheetPage::exportTo(const std::string& path) {
    if (!commitEdit()) return false;
    const QString shown = machinePath(path);
    const bool isPdf = shown.endsWith(".pdf", Qt::CaseInsensitive);
    const QString failure = exportSheet(spread(), path, exchange::CsvTexts::exact);
    if (failure.isEmpty()) showMessage(uiText(sayExported).arg(shown));
    if (isPdf || !failure.isEmpty()) showPrintOutcome(failure);
    return failure.isEmpty();
}

void SheetPage::showPrintOutcome(const QString& failure) {
    if (!failure.isEmpty()) {
        showMessage(failure, true);
        showWarning("Vormant", fromQt(failure));
    } else if (const QString problems = printProblems(spread()); !problems.isEmpty()) {
        showMessage(problems, true);
    }
}

// What is checked is the file, so it is saved first.
void SheetPage::check() {
    if (isChanged() && !save()) return;
    m_check->show();
    m_check->check(Vor_String(m_file->path()));
}
