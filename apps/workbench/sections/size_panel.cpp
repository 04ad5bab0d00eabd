#include "workbench/sections/size_panel.h"

#include <QPainter>
#include <QVBoxLayout>

#include "core_api/text/text_helpers.h"
#include "core_api/texts/texts.h"
#include "sections/section_area.h"
#include "sections/section_figures.h"
#include "sections/section_types.h"
#include "workbench/sections/sketch_painter.h"
#include "workbench/window/dialog_font.h"

namespace {

constexpr int wordDrawnTemplate = 25057, wordArea = 25058, wordMass = 25059,
              wordCalculatedMass = 25060;

QString word(int number, const Vor_String& value) {
    Vor_String text = dialString(number);
    text.replaceSubString("%1", value);
    return toQt(text);
}

/// The values up to the first that is no number: what follows cannot be in its place.
std::vector<double> numbersOf(const Vor_StringArray& values) {
    std::vector<double> numbers;
    for (const Vor_String& value : values) {
        if (!isNumber(value)) break;
        numbers.push_back(textToDouble(value));
    }
    return numbers;
}

/// That of the table, and the calculated one where the table has none or one that cannot be.
QStringList massesOf(const SizePanel::Size& size) {
    constexpr std::string_view massColumn = "Mass kg/m";
    const int at = size.columns.find(massColumn);
    const Vor_String printed = size.values.isIndex(at) ? size.values[at] : Vor_String();
    const std::vector<std::string_view> values(size.values.begin(), size.values.end());
    const auto figures = SectionFigures::of(size.drawnAs, values);
    QStringList lines;
    if (isNumber(printed)) lines += word(wordMass, Vor_String(textToDouble(printed), 2));
    if (figures && (!isNumber(printed) || !figures->allows(massColumn, printed)))
        lines += word(wordCalculatedMass, Vor_String(*figures->valueOf(massColumn), 2));
    return lines;
}

QString figuresOf(const SizePanel::Size& size, std::optional<double> area) {
    QStringList lines;
    if (area) lines += word(wordArea, Vor_String(*area / mm2PerCm2, 2));
    lines += massesOf(size);
    return lines.join('\n');
}

QLabel* addLabel(QVBoxLayout& layout) {
    auto* label = new QLabel;
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout.addWidget(label);
    return label;
}

void showText(QLabel& label, const QString& text) {
    label.setText(text);
    label.setVisible(!text.isEmpty());
}

}  // namespace

void FigureView::showFigure(drawing::Figure figure) {
    m_figure = std::move(figure);
    update();
}

void FigureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    const drawing::FigurePaper paper{
        .width = double(width()), .height = double(height()), .capHeight = labelHeight};
    paintSketch(painter, laidOut(m_figure, paper), palette());
}

SizePanel::SizePanel(QWidget* parent) : QWidget(parent), m_figure(new FigureView) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 6, 8, 6);
    m_name = addLabel(*layout);
    QFont bold = font();
    bold.setBold(true);
    m_name->setFont(bold);
    m_reason = addLabel(*layout);
    layout->addWidget(m_figure, 1);
    m_figures = addLabel(*layout);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
}

void SizePanel::showSize(const Size& size) {
    const std::vector<double> values = numbersOf(size.values);
    const int type = sectionTypeNumber(size.drawnAs);
    const drawing::SectionOutline outline = drawing::sectionOutline(type, values);
    const bool isDrawn = isDrawnTemplate(size.drawnAs);
    const bool hasShape = isDrawn || !outline.isEmpty();
    m_figure->showFigure(figureOf(outline, drawing::numberLabels(type, values)));
    m_name->setText(toQt(size.name));
    m_figure->setAccessibleName(m_name->text());
    showText(*m_reason, isDrawn ? word(wordDrawnTemplate, size.drawnAs)
                                : toQt(problemText(outline.problem, size.columns)));
    showText(*m_figures, hasShape ? figuresOf(size, sectionArea(type, values)) : QString());
}
