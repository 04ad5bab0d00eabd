// One size of a section table as drawings show it: to scale, with its dimensions as numbers, its
// area and its mass below. Where there is nothing to draw, it says why.
#pragma once

#include <QLabel>
#include <QWidget>

#include "core_api/text/vor_string_array.h"
#include "drawing/figure.h"

/// Paints a figure as large as it has room for.
class FigureView : public QWidget {
  public:
    using QWidget::QWidget;

    static constexpr double labelHeight = 9;

    void showFigure(drawing::Figure figure);
    QSize sizeHint() const override { return {320, 300}; }
    QSize minimumSizeHint() const override { return {180, 160}; }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    drawing::Figure m_figure;
};

class SizePanel : public QWidget {
  public:
    explicit SizePanel(QWidget* parent = nullptr);

    struct Size {
        Vor_String name;
        Vor_String drawnAs;       ///< what the table says: a type's number or a ".dwg" file
        Vor_StringArray columns;  ///< the names of its values
        Vor_StringArray values;
    };
    void showSize(const Size& size);

    FigureView& figure() { return *m_figure; }
    QString reason() const { return m_reason->text(); }
    /// Area and mass, as far as they are known.
    QString figures() const { return m_figures->text(); }

  private:
    FigureView* m_figure;
    QLabel* m_name;
    QLabel* m_reason;
    QLabel* m_figures;
};
