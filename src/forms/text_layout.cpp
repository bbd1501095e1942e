#include "forms/text_layout.h"

#include <algorithm>
#include <limits>

namespace onze {

namespace {

bool IsNumber(std::string_view word) {
    return !word.empty() && word.find_first_not_of("0123456789") == std::string_view::npos;
}

// What is not broken by the end of a line: a sum, where it fits on one line, or else its sides.
enum class Piece { kSum, kSide };

// Whether a word stays with the next one: marks with the word before them, signs with what they join. A colon
// and a dash are signs between numbers only.
bool StayTogether(std::string_view before, std::string_view word, std::string_view next, Piece piece) {
    if (next == "?" || next == "!" || next == ":" || next == "=" || next == "X" || next == "+") return true;
    if (next == "-") return IsNumber(word);
    if (word == "X" || word == "+") return true;
    if (word == "-" || word == ":") return IsNumber(before) && IsNumber(next);
    return word == "=" && piece == Piece::kSum;
}

// The end of the first word of a text, with what stays together with it.
std::size_t WordEnd(std::string_view text, Piece piece) {
    const auto end_of_word = [text](std::size_t start) {
        return std::min(text.find(' ', start), text.size());
    };
    std::size_t start = std::min(text.find_first_not_of(' '), text.size());
    std::size_t end = end_of_word(start);
    std::string_view before;
    while (end < text.size()) {
        const std::size_t next_end = end_of_word(end + 1);
        const std::string_view next = text.substr(end + 1, next_end - end - 1);
        const std::string_view word = text.substr(start, end - start);
        if (!StayTogether(before, word, next, piece)) break;
        before = word;
        start = end + 1;
        end = next_end;
    }
    return end;
}

constexpr int kSmallestHeight = 4.0_pt;
constexpr int kShrinkStep = 0.25_pt;

class Wrapper {
  public:
    Wrapper(TextMeasure& measure, const Font& font, int width)
        : measure_(measure), width_(width), layout_{font, measure.MeasureText(" ", font).height, {}} {}

    void AddParagraph(std::string_view text) {
        std::string line;
        while (!text.empty()) {
            const auto word_start = std::min(text.find_first_not_of(' '), text.size());
            const auto word_end = PieceEnd(text, word_start);
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
    std::size_t PieceEnd(std::string_view text, std::size_t start) {
        const auto side_end = WordEnd(text, Piece::kSide);
        const auto sum_end = WordEnd(text, Piece::kSum);
        if (sum_end == side_end) return side_end;
        return WidthOf(text.substr(start, sum_end - start)) <= width_ ? sum_end : side_end;
    }

    int WidthOf(std::string_view line) { return measure_.MeasureText(line, layout_.font).width; }

    void AddLine(std::string line) {
        const int width = WidthOf(line);
        layout_.lines.push_back({std::move(line), width});
    }

    TextMeasure& measure_;
    int width_;
    TextLayout layout_;
};

TextLayout LayOut(TextMeasure& measure, std::string_view text, const Font& font, int width) {
    Wrapper wrapper(measure, font, width);
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

TextLayout LayOutUnwrapped(TextMeasure& measure, std::string_view text, const Font& font) {
    return LayOut(measure, text, font, std::numeric_limits<int>::max());
}

TextLayout LayOutInBox(TextMeasure& measure, std::string_view text, const Font& font, Size box,
                       int last_line_limit) {
    Font smaller = font;
    while (true) {
        TextLayout layout = LayOut(measure, text, smaller, box.width);
        const int last_line = last_line_limit > 0 ? last_line_limit : box.width;
        const bool fits = layout.Width() <= box.width && layout.Height() <= box.height &&
                          layout.lines.back().width <= last_line;
        if (fits || smaller.height - kShrinkStep < kSmallestHeight) return layout;
        smaller.height -= kShrinkStep;
    }
}

}  // namespace onze
