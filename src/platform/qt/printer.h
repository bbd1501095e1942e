#pragma once

#include <QBuffer>
#include <QPdfWriter>
#include <string>

#include "forms/page_view.h"

namespace onze {

// A sheet of paper, painted into a PDF file, which the desktop shows and prints.
class Sheet {
  public:
    Sheet();

    QPagedPaintDevice& device() { return writer_; }
    PageView view() const;
    // Keeps what was painted as a new file among the user's documents, and has the desktop open it. Where
    // something fails, tells what, in French: where the file is, or would have been.
    std::string Hand();

  private:
    QBuffer bytes_;
    QPdfWriter writer_;
};

}  // namespace onze
