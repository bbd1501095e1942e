#pragma once

#include <string>
#include <string_view>

#include "forms/page_view.h"

namespace onze {

class Canvas;
struct Host;

// The page on a sheet of paper, which lies on its side. Above the page, at heights below 0, is a head.

// Where the page lies on the part of a sheet that can be printed on, of this many of the printer's pixels.
PageView ViewOnPaper(int width, int height);
// The program's name, a line for the pupil's where it is asked for, and the day.
void PaintHead(Canvas& canvas, const Host& host, bool for_a_pupil);

// The title of what is printed; and the report, in French, where that cannot be done: into which file, if
// any.
inline constexpr std::string_view kPaperTitle = "Onze Tables";
std::string NotPrinted(std::string_view file = {});

}  // namespace onze
