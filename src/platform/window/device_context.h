// What windows draw on. Coordinates are pixels of the window's client area; colours 0x00RRGGBB.
// A desktop draws; BitmapDC draws into a picture, for files and tests.
#pragma once

#include <span>
#include <string_view>

#include "platform/window/bitmap.h"

enum class TextAlign { left, centre, right };

struct Pen {
    CBitmap::Pixel colour = CBitmap::black;
    int width = 1;
    bool isDashed = false;
};

class VORMANT_API CDC {
  public:
    virtual ~CDC() = default;
    virtual void fill(const CRect& rect, CBitmap::Pixel colour) = 0;
    virtual void line(CPoint from, CPoint to, const Pen& pen) = 0;
    virtual void frame(const CRect& rect, const Pen& pen) = 0;
    /// Pixels of the colour `without` (0x00RRGGBB; -1 for none) are left out.
    virtual void bitmap(const CBitmap& picture, CPoint at, int64_t without = -1) = 0;
    /// One line, centred in height.
    virtual void text(const CRect& rect, std::string_view text, CBitmap::Pixel colour,
                      TextAlign align = TextAlign::left) = 0;
};

/// Everything but texts, which it leaves out: it has no font.
class VORMANT_API BitmapDC : public CDC {
  public:
    /// `target` is borrowed.
    explicit BitmapDC(CBitmap& target) : m_target(target) {}
    void fill(const CRect& rect, CBitmap::Pixel colour) override;
    void line(CPoint from, CPoint to, const Pen& pen) override;
    void frame(const CRect& rect, const Pen& pen) override;
    void bitmap(const CBitmap& picture, CPoint at, int64_t without = -1) override;
    void text(const CRect&, std::string_view, CBitmap::Pixel, TextAlign) override {}

  private:
    CBitmap& m_target;
};
