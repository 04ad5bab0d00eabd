// Lets windows draw with a painter.
#pragma once

#include <QPainter>

#include "platform/window/device_context.h"

class PainterDC : public CDC {
  public:
    /// `painter` is borrowed; its origin is that of the window's client area.
    explicit PainterDC(QPainter& painter) : m_painter(painter) {}
    void fill(const CRect& rect, CBitmap::Pixel colour) override;
    void line(CPoint from, CPoint to, const Pen& pen) override;
    void frame(const CRect& rect, const Pen& pen) override;
    void bitmap(const CBitmap& picture, CPoint at, int64_t without = -1) override;
    void text(const CRect& rect, std::string_view text, CBitmap::Pixel colour,
              TextAlign align = TextAlign::left) override;

  private:
    QPainter& m_painter;
};
