#pragma once

#include <QCache>
#include <QImage>

#include "platform/qt/pictures.h"

namespace onze {

// The pictures of the page as it is shown, at the size at which it is shown, so that they are not scaled at
// every paint. All pages are kept where they take some tens of megabytes, else those shown last.
class ScaledPictures {
  public:
    // The picture in the format that is painted fastest; there is room for a page of this size.
    QImage AtSize(const QtPicture& picture, QSize size, QSize page);
    // For a while, those that are not kept are made of small pictures, which is quick.
    void set_small_only(bool small_only) { small_only_ = small_only; }
    // Whether one more page of this size drives no other out.
    bool HasRoomFor(QSize page) const;

  private:
    QCache<qint64, QImage> kept_;  // by the picture's key; costs are bytes
    bool small_only_ = false;
};

}  // namespace onze
