// Sheets on paper: the preview, the question for a printer, and what a reader of PDF finds.
#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QImage>
#include <QMenuBar>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QProcess>
#include <QRegularExpression>
#include <QToolButton>

#include "platform/window/bitmap.h"
#include "spread/control/document.h"
#include "spread/tw_sheet_settings.h"
#include "workbench/sheet/page_painter.h"
#include "workbench/sheet/ui_text.h"
#include "workbench/sheet_fixture.h"

namespace {

void press(const QDialog& dialog, const char* name) {
    for (QToolButton* button : dialog.findChildren<QToolButton*>())
        if (button->text() == name) return button->click();
    ADD_FAILURE() << "no button " << name;
}

void printToFile(QPrintDialog& dialog, const QString& file) {
    auto* printers = dialog.findChild<QComboBox*>("printers");
    auto* name = dialog.findChild<QLineEdit*>("filename");
    ASSERT_TRUE(printers && name);
    printers->setCurrentText("Print to File (PDF)");
    name->setText(file);
    for (QAbstractButton* button : dialog.findChild<QDialogButtonBox*>()->buttons())
        if (button->text() == "&Print") return button->click();
    ADD_FAILURE() << "no button that prints";
}

/// What poppler finds in a PDF file; pages end in form feeds.
QString readBack(const QString& file, const QStringList& options = {"-layout"}) {
    QProcess reader;
    reader.start("pdftotext", options + QStringList{file, "-"});
    EXPECT_TRUE(reader.waitForFinished()) << reader.errorString().toStdString();
    EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
    return QString::fromUtf8(reader.readAllStandardOutput());
}

QStringList pagesOf(const QString& file) {
    QStringList pages = readBack(file).split('\f');
    pages.removeLast();
    return pages;
}

/// Where a word stands on its page, in millimetres from the left and the top.
QPointF placeOf(const QString& file, const QString& word) {
    const QRegularExpression wanted("xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\"[^>]*>" + word + "<");
    const auto found = wanted.match(readBack(file, {"-bbox"}));
    EXPECT_TRUE(found.hasMatch()) << word.toStdString();
    constexpr double millimetresPerPoint = 25.4 / 72;
    return QPointF(found.captured(1).toDouble(), found.captured(2).toDouble()) *
           millimetresPerPoint;
}

TEST(PrintedPictures, ShowTheArrowFromARowOfABill) {
    printing::PrintedPage page;
    page.body.emplace_back();
    page.body.back().place = {10, 10, 10, 40};
    page.body.back().format.type.kind = control::CellKind::pictureHandle;
    page.body.back().format.type.picture = 251;
    QImage paper(400, 600, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    paintPage(painter, page, 10);
    painter.end();
    QRect dark;
    for (int y = 110; y < 490; ++y)
        for (int x = 110; x < 190; ++x)
            if (qGray(paper.pixel(x, y)) < 160) dark |= QRect(x, y, 1, 1);
    // 10 of its 20 pixels, which are 5.3 mm on paper, in the middle of the cell.
    EXPECT_NEAR(dark.width(), 27, 5);
    EXPECT_LT(std::abs(dark.center().y() - 300), 12) << dark.center().y();
}

TEST(PrintedPictures, LeaveTheLinesOfTheirCellsVisible) {
    const std::string white = packBitmap(CBitmap(100, 100));
    printing::PrintedPage page;
    for (const double top : {0.0, 20.0}) {
        page.body.emplace_back();
        page.body.back().place = {10, 10 + top, 40, 20};
    }
    page.body.back().picture = "#1";
    page.body.back().embeddedImage = &white;
    QImage paper(600, 600, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    paintPage(painter, page, 10);
    painter.end();
    EXPECT_EQ(paper.pixelColor(150, 350), QColor(Qt::white)) << "inside the picture";
    EXPECT_NE(paper.pixelColor(150, 300), QColor(Qt::white)) << "the line above it";
}

class SheetOnPaper : public SheetWindow {
  protected:
    // Three pages with a header and a footer.
    SheetOnPaper() {
        settings.readFromSheet(page->spread());
        settings.headerFile = band("head.sss", "Frame {Order}");
        settings.footerFile = band("foot.sss", "sheet {Page} of {Pages}");
        settings.varNames = {"Order"};
        settings.varValues = {"4711"};
        settings.rowHeader = false;
        apply();
        type("A1", "Beams");
        type("B140", "Sum");
    }
    Vor_String band(const char* name, const char* text) const {
        control::Grid grid;
        grid.setCols(2);
        grid.setRows(1);
        grid.setColWidth(1, 200);
        grid.setData(1, 1, text);
        std::string error;
        EXPECT_TRUE(saveDocument(grid, inside(name), error)) << error;
        return inside(name);
    }
    void apply() {
        ASSERT_TRUE(page->finish(page->editor().setTag(0, 0, settings.toList().write())));
    }
    void choose(int word) const {
        for (QAction* action : window->menuBar()->findChildren<QAction*>())
            if (action->text() == uiText(word)) return action->trigger();
        FAIL() << "no menu entry";
    }
    QStringList filesInFolder() const { return QDir(m_folder.path()).entryList(QDir::Files); }

    TwSheetSettings settings;
};

TEST_F(SheetOnPaper, ThePreviewTurnsPagesZoomsAndPrints) {
    whenOpens<QPrintPreviewDialog>([&](QPrintPreviewDialog& dialog) {
        auto* preview = dialog.findChild<QPrintPreviewWidget*>();
        ASSERT_TRUE(preview);
        EXPECT_EQ(preview->pageCount(), 3);
        EXPECT_EQ(preview->currentPage(), 1);
        press(dialog, "Next page");
        EXPECT_EQ(preview->currentPage(), 2);
        press(dialog, "Last page");
        EXPECT_EQ(preview->currentPage(), 3);
        press(dialog, "Previous page");
        EXPECT_EQ(preview->currentPage(), 2);
        const double before = preview->zoomFactor();
        press(dialog, "Zoom in");
        EXPECT_GT(preview->zoomFactor(), before);
        press(dialog, "Zoom out");
        press(dialog, "Zoom out");
        EXPECT_LT(preview->zoomFactor(), before);
        // The settings of the sheet turn the paper, so nothing else offers to.
        for (const QAction* action : dialog.findChildren<QAction*>())
            EXPECT_FALSE(action->isVisible() &&
                         (action->text() == "Portrait" || action->text() == "Landscape"));
        whenOpens<QPrintDialog>([&](QPrintDialog& asked) { printToFile(asked, path("p.pdf")); });
        press(dialog, "Print");
    });
    choose(sayPrintPreview);
    EXPECT_EQ(page->message(), "");
    const QStringList pages = pagesOf(path("p.pdf"));
    ASSERT_EQ(pages.size(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(pages[i].contains("Frame 4711"));
        EXPECT_TRUE(pages[i].contains(QString("sheet %1 of 3").arg(i + 1)));
        EXPECT_EQ(pages[i].contains("Beams"), i == 0);
        EXPECT_EQ(pages[i].contains("Sum"), i == 2);
    }
}

TEST_F(SheetOnPaper, MarginsAndSwitchesCountInPdfFiles) {
    settings.marginLeft = 30;
    settings.marginTop = 40;
    settings.colHeader = false;
    apply();
    ASSERT_TRUE(page->exportTo(inside("a.pdf")));
    const QPointF header = placeOf(path("a.pdf"), "Frame"), body = placeOf(path("a.pdf"), "Beams");
    EXPECT_NEAR(header.x(), 30, 1.5);
    EXPECT_NEAR(header.y(), 40, 2);
    EXPECT_NEAR(body.x(), 30, 1.5);
    const double headerHeight = 20 * 25.4 / 96;
    EXPECT_NEAR(body.y() - header.y(), headerHeight, 1);

    settings.headerFile = "";
    settings.marginLeft = 10;
    apply();
    ASSERT_TRUE(page->exportTo(inside("a.pdf")));
    EXPECT_FALSE(readBack(path("a.pdf")).contains("Frame"));
    EXPECT_NEAR(placeOf(path("a.pdf"), "Beams").x(), 10, 1.5);
    EXPECT_NEAR(placeOf(path("a.pdf"), "Beams").y(), 40, 2);
}

/// A page as it is painted, four dots to a millimetre.
class PaintedPage {
  public:
    PaintedPage(control::Grid& grid, const TwSheetSettings& settings, int page = 0)
        : m_job(grid, settings, {}), m_page(m_job.page(page)) {
        m_image.fill(Qt::white);
        QPainter painter(&m_image);
        paintPage(painter, m_page, dots);
    }
    /// Whether anything dark lies in the middle of a row of the sheet, between two pixels of it.
    bool hasInk(int row, int from, int to) const {
        const auto at = [&](double millimetres) { return static_cast<int>(millimetres * dots); };
        const double pixel = printing::millimetresPerPixel, left = m_job.layout().body.left;
        const double top = m_job.layout().body.top + (row - 1) * 20 * pixel;
        for (int y = at(top + 5 * pixel); y < at(top + 15 * pixel); ++y)
            for (int x = at(left + from * pixel); x < at(left + to * pixel); ++x)
                if (qGray(m_image.pixel(x, y)) < 100) return true;
        return false;
    }
    /// Whether the line left of a pixel goes through the whole row.
    bool hasLine(int row, int at) const {
        const double pixel = printing::millimetresPerPixel, body = m_job.layout().body.left;
        const int x = qRound((body + at * pixel) * dots);
        const double top = m_job.layout().body.top + (row - 1) * 20 * pixel;
        for (int y = qRound((top + 2 * pixel) * dots); y < qRound((top + 4 * pixel) * dots); ++y)
            if (qGray(m_image.pixel(x, y)) > 230 && qGray(m_image.pixel(x - 1, y)) > 230)
                return false;
        return true;
    }

  private:
    static constexpr int dots = 4;
    printing::PrintJob m_job;
    printing::PrintedPage m_page;
    QImage m_image{210 * dots, 297 * dots, QImage::Format_RGB32};
};

TEST(PagePainter, TextsReachOverTheirNeighboursAsOnTheScreen) {
    control::Grid grid;
    grid.setCols(6);
    grid.setRows(4);
    const char* text = "a title of the sheet";  // some 120 pixels
    for (int row = 1; row <= 4; ++row) grid.setData(1, row, text);
    grid.setData(2, 2, "x");
    grid.changeFormats({2, 3, 2, 3},
                       [](control::CellFormat& format) { format.background = 0xE0FFE0; });
    grid.setData(1, 4, "1234567890.12345");
    grid.setData(6, 1, "end");
    TwSheetSettings settings;
    settings.rowHeader = settings.colHeader = false;
    const PaintedPage page(grid, settings);
    EXPECT_TRUE(page.hasInk(1, 66, 110)) << "over the empty cell";
    EXPECT_FALSE(page.hasLine(1, 64)) << "no line through the text";
    EXPECT_TRUE(page.hasLine(1, 192)) << "the lines behind it stay";
    EXPECT_FALSE(page.hasInk(2, 80, 126)) << "not over a text";
    EXPECT_TRUE(page.hasLine(2, 64));
    EXPECT_TRUE(page.hasInk(3, 66, 110)) << "over the colour of the neighbour";
    EXPECT_TRUE(page.hasInk(4, 4, 60));
    EXPECT_FALSE(page.hasInk(4, 66, 126)) << "a number is not drawn over others";
}

TEST_F(SheetOnPaper, SomePagesArePrinted) {
    whenOpens<QPrintDialog>([&](QPrintDialog& dialog) {
        dialog.findChild<QAbstractButton*>("printRange")->setChecked(true);
        dialog.findChild<QSpinBox*>("from")->setValue(2);
        dialog.findChild<QSpinBox*>("to")->setValue(2);
        printToFile(dialog, path("second.pdf"));
    });
    choose(sayPrint);
    const QStringList pages = pagesOf(path("second.pdf"));
    ASSERT_EQ(pages.size(), 1);
    EXPECT_TRUE(pages[0].contains("sheet 2 of 3"));
}

TEST_F(SheetOnPaper, CancellingLeavesNothing) {
    const QStringList before = filesInFolder();
    const bool wasChanged = page->isChanged();
    whenOpens<QPrintDialog>([&](QPrintDialog& dialog) {
        dialog.findChild<QLineEdit*>("filename")->setText(path("never.pdf"));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    choose(sayPrint);
    whenOpens<QPrintPreviewDialog>([&](QPrintPreviewDialog& dialog) {
        whenOpens<QPrintDialog>(
            [](QPrintDialog& asked) { QTest::keyClick(&asked, Qt::Key_Escape); });
        press(dialog, "Print");
        EXPECT_TRUE(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    choose(sayPrintPreview);
    EXPECT_EQ(filesInFolder(), before);
    EXPECT_EQ(page->isChanged(), wasChanged);
    EXPECT_EQ(text(1, 1), "Beams");
}

TEST_F(SheetOnPaper, WhatIsMissingOrCannotBeWrittenIsTold) {
    settings.headerFile = inside("gone.sss");
    apply();
    whenOpens<QPrintDialog>([&](QPrintDialog& dialog) { printToFile(dialog, path("a.pdf")); });
    choose(sayPrint);
    EXPECT_TRUE(page->message().contains("gone.sss")) << page->message().toStdString();
    EXPECT_TRUE(readBack(path("a.pdf")).contains("sheet 1 of 3"));

    // The folder goes while the printer is chosen.
    TestUser user;
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("sub"));
    whenOpens<QPrintDialog>([&](QPrintDialog& dialog) {
        QObject::connect(&dialog, &QDialog::accepted,
                         [&] { QDir(path("sub")).removeRecursively(); });
        printToFile(dialog, path("sub/a.pdf"));
    });
    choose(sayPrint);
    EXPECT_TRUE(page->message().startsWith(path("sub/a.pdf"))) << page->message().toStdString();
    EXPECT_EQ(user.messages().size(), 1u);
}

}  // namespace
