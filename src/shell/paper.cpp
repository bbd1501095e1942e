#include "shell/paper.h"

#include "forms/look.h"
#include "forms/text_measure.h"
#include "services/calendar.h"
#include "shell/host.h"
#include "support/capital.h"

namespace onze {

namespace {

constexpr int kHead = 30_px;
constexpr int kTexts = -24_px;
constexpr int kWritingLine = -10_px;
constexpr int kGap = 24_px;
constexpr Font kName{9.75_pt, true};
constexpr Font kPlain{8.25_pt, false};

}  // namespace

PageView ViewOnPaper(int width, int height) {
    const int head = height * kHead / (kPageHeight + kHead);
    return PageView({0, head, width, height - head});
}

void PaintHead(Canvas& canvas, const Host& host, bool for_a_pupil) {
    const auto width = [&host](std::string_view text, const Font& font) {
        return host.text_measure.MeasureText(text, font).width;
    };
    const std::string day = WithCapital(host.calendar.LongDate());
    const int day_left = kPageWidth - width(day, kPlain);
    canvas.DrawTextLine({0, kTexts}, kPaperTitle, kName, kInk);
    canvas.DrawTextLine({day_left, kTexts}, day, kPlain, kInk);
    if (!for_a_pupil) return;
    constexpr std::string_view kAsked = "Nom :";
    const int left = width(kPaperTitle, kName) + kGap;
    const int line_left = left + width(kAsked, kPlain) + 6_px;
    canvas.DrawTextLine({left, kTexts}, kAsked, kPlain, kInk);
    canvas.DrawLine({line_left, kWritingLine}, {day_left - kGap, kWritingLine}, 1_px, kInk);
}

std::string NotPrinted(std::string_view file) {
    return "Impression impossible" + (file.empty() ? "" : " : " + std::string(file));
}

}  // namespace onze
