#pragma once

#include <QCache>
#include <QImage>

#include "platform/qt/pictures.h"

namespace onze {

// The pictures of the page as it is shown, at the size at which it is shown, so that they are not scaled at
// every paint. Those of the pages that were left make room: each page of a large screen takes megabytes.
class ScaledPictures {
  public:
    // The picture in the format that is painted fastest; there is room for a page of this size.
    QImage AtSize(const QtPicture& picture, QSize size, QSize page);

  private:
    QCache<qint64, QImage> kept_;  // by the picture's key; costs are bytes
};

}  // namespace onze
