#pragma once

#include <QImage>

namespace onze {

// The picture at another, larger size, in the format of the fast painters (32 bits a pixel, alpha
// premultiplied if any). Its pixels are joined by a cubic curve that goes through them: outlines stay crisper
// than with the straight lines of QImage::scaled().
QImage Enlarged(const QImage& image, QSize size);

}  // namespace onze
