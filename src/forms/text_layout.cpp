#include "forms/text_layout.h"

#include <algorithm>
#include <limits>

#include "forms/platform.h"

namespace {

// A blank before such a mark is no place for a break.
bool IsMark(std::string_view word) {
    return word == "?" || word == "!" || word == ":";
}

// The end of the first word of a text, with the marks that belong to it.
std::size_t WordEnd(std::string_view text) {
    auto end = std::min(text.find(' ', std::min(text.find_first_not_of(' '), text.size())), text.size());
    while (end < text.size() && IsMark(text.substr(end + 1, text.find(' ', end + 1) - end - 1))) {
        end = std::min(text.find(' ', end + 1), text.size());
    }
    return end;
}

constexpr int kSmallestHeight = 4.0_pt;
constexpr int kShrinkStep = 0.25_pt;

class Wrapper {
  public:
    Wrapper(Platform& platform, const Font& font, int width)
        : platform_(platform), width_(width), layout_{font, platform.MeasureText(" ", font).height, {}} {}

    void AddParagraph(std::string_view text) {
        std::string line;
        while (!text.empty()) {
            const auto word_start = std::min(text.find_first_not_of(' '), text.size());
            const auto word_end = WordEnd(text);
            const bool first = line.empty();
            if (!first && WidthOf(line + std::string(text.substr(0, word_end))) > width_) {
                AddLine(std::move(line));
                line = text.substr(word_start, word_end - word_start);
            } else {
                line += text.substr(0, word_end);
            }
            text.remove_prefix(word_end);
        }
        AddLine(std::move(line));
    }

    TextLayout Take() { return std::move(layout_); }

  private:
    int WidthOf(std::string_view line) { return platform_.MeasureText(line, layout_.font).width; }

    void AddLine(std::string line) {
        const int width = WidthOf(line);
        layout_.lines.push_back({std::move(line), width});
    }

    Platform& platform_;
    int width_;
    TextLayout layout_;
};

TextLayout LayOut(Platform& platform, std::string_view text, const Font& font, int width) {
    Wrapper wrapper(platform, font, width);
    while (true) {
        const auto line_break = text.find('\r');
        wrapper.AddParagraph(text.substr(0, line_break));
        if (line_break == std::string_view::npos) return wrapper.Take();
        text.remove_prefix(line_break + 1);
    }
}

}  // namespace

int TextLayout::Width() const {
    int width = 0;
    for (const TextLine& line : lines) width = std::max(width, line.width);
    return width;
}

TextLayout LayOutUnwrapped(Platform& platform, std::string_view text, const Font& font) {
    return LayOut(platform, text, font, std::numeric_limits<int>::max());
}

TextLayout LayOutInBox(Platform& platform, std::string_view text, const Font& font, Size box,
                       int last_line_limit) {
    Font smaller = font;
    while (true) {
        TextLayout layout = LayOut(platform, text, smaller, box.width);
        const int last_line = last_line_limit > 0 ? last_line_limit : box.width;
        const bool fits = layout.Width() <= box.width && layout.Height() <= box.height &&
                          layout.lines.back().width <= last_line;
        if (fits || smaller.height - kShrinkStep < kSmallestHeight) return layout;
        smaller.height -= kShrinkStep;
    }
}
