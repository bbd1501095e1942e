#pragma once

#include <QPointF>
#include <QRect>

#include "forms/geometry.h"

// Where the page lies in a surface of device pixels: as large as its shape of 4 to 3 allows, in the middle.
class PageView {
  public:
    static PageView Fitting(QSize surface);

    // Device pixels of one twip.
    double scale() const { return static_cast<double>(pixels_) / twips_; }
    QRect page() const { return {origin_, size_}; }
    // Every edge is brought to the nearest edge of a device pixel.
    QPoint ToDevice(Point point) const;
    QRect ToDevice(const Rect& box) const;
    // A length of the page, at least one device pixel.
    int LengthToDevice(int twips) const;
    // The middle of the device pixel that a position lies in, so that a control is found exactly where it is
    // painted.
    Point ToPage(QPointF position) const;
    // The part of the page that can reach into this part of the surface, and the part of the surface that
    // this part of the page can reach; both allow for rounding and for letters that pass their cell.
    Rect Around(const QRect& part) const;
    QRect Around(const Rect& part) const;

  private:
    PageView(int pixels, int twips, QSize surface);
    int EdgeToDevice(int twips) const;
    int PixelToPage(double position) const;

    // As many pixels as twips, kept whole so that both ways round to the same.
    int pixels_;
    int twips_;
    QPoint origin_;
    QSize size_;
};
