// Paints sketches into a bitmap, with smooth edges.
#pragma once

#include <array>

#include "core_api/drawing/sketch.h"
#include "platform/window/bitmap.h"

namespace drawing {

class VORMANT_API Canvas {
  public:
    Canvas(int width, int height, CBitmap::Pixel paper = CBitmap::white);

    enum class Rule { evenOdd, nonZero };
    /// `inkPixel` covers the paper as far as the contours cover a pixel.
    void fill(std::span<const Contour> contours, CBitmap::Pixel inkPixel, Rule rule);
    /// With round ends and corners.
    void stroke(std::span<const Point> points, double width, CBitmap::Pixel inkPixel,
                bool isClosed = false, bool isDashed = false);
    void text(const Label& label, CBitmap::Pixel inkPixel);

    const CBitmap& bitmap() const { return m_bitmap; }

  private:
    void blend(int y, std::span<const double> cover, CBitmap::Pixel inkPixel);

    CBitmap m_bitmap;
};

/// The colours of picture files: dark lines on light metal, on white paper.
VORMANT_API const std::array<CBitmap::Pixel, inkCount>& paperInks();

VORMANT_API CBitmap painted(const Sketch& sketch);

}  // namespace drawing
