#include "forms/reading.h"

#include <algorithm>
#include <array>
#include <utility>

#include "forms/stage.h"
#include "forms/up_down.h"

namespace onze {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 6> kWords{
    {{"X", "fois"}, {"x", "fois"}, {"=", "égale"}, {"+", "plus"}, {"-", "moins"}, {"??", "à trouver"}}};

std::string_view WordFor(std::string_view sign) {
    for (const auto& [written, said] : kWords) {
        if (written == sign) return said;
    }
    return sign;
}

bool IsSign(std::string_view word) {
    return word != "??" && WordFor(word) != word;
}

// Takes the first word from a text; empty at its end.
std::string_view NextWord(std::string_view& text) {
    constexpr std::string_view kBlanks = " \r";
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    const std::string_view word = text.substr(0, text.find_first_of(kBlanks));
    text.remove_prefix(word.size());
    return word;
}

// "A=1," is said as "A égale 1,".
std::string Spelled(std::string_view word) {
    const std::size_t equals = word.find('=');
    if (equals == std::string_view::npos || word.size() < 2) return std::string(WordFor(word));
    return std::string(word.substr(0, equals)) + " égale " + std::string(word.substr(equals + 1));
}

ReadControl::Kind KindOf(const Control& control) {
    using enum ReadControl::Kind;
    if (control.arrows() && control.IsStop()) return kToEnter;
    switch (control.role()) {
        case Role::kHeading:
            return kHeading;
        case Role::kTable:
            return kTable;
        case Role::kRowHeader:
            return kRowHeader;
        case Role::kColumnHeader:
            return kColumnHeader;
        case Role::kButton:
            return kToPress;
        default:
            if (control.IsStop()) return kToPress;
            return control.role() == Role::kZone ? kPicture : kText;
    }
}

// What stands in an answer as it is said: a mark of question alone stands for what is asked, and an X among
// letters is one.
std::string ValueOf(const Control& answer) {
    const UpDown* const arrows = answer.arrows();
    if (arrows && arrows->text_of && arrows->text_of(arrows->minimum()) == "A") return answer.name();
    return InWords(answer.name() == "?" ? "??" : answer.name());
}

// What can be clicked tells what that does, too.
std::string NameOf(const Control& control) {
    const std::string said = control.arrows() ? ValueOf(control) : InWords(control.name());
    const std::string& more = control.given_name();
    return said == more || more.empty() || !control.IsStop() ? said : said + ", " + more;
}

// The line that an answer stands in, with what is still to be found in its place.
std::string LineOf(const Control& answer, const Form& page) {
    const Point middle = answer.box().Middle();
    std::vector<const Control*> line;
    for (const Control* control : page.controls()) {
        const bool part = control->role() == Role::kText || control->role() == Role::kAnswer;
        const Rect& box = control->box();
        if (control->visible() && part && control->Stop() == control && !control->name().empty() &&
            box.top <= middle.y && middle.y < box.bottom() &&
            page.AreaAt(box.Middle()) == page.AreaAt(middle)) {
            line.push_back(control);
        }
    }
    std::sort(line.begin(), line.end(),
              [](const Control* a, const Control* b) { return a->box().left < b->box().left; });
    std::string words = "Réponse :";
    for (const Control* control : line) words += " " + ValueOf(*control);
    return words;
}

}  // namespace

std::string InWords(std::string_view text) {
    std::string words;
    for (std::string_view word = NextWord(text), next; !word.empty(); word = next) {
        next = NextWord(text);
        // What a sign follows is none, but the letter.
        const bool letter = word == "X" && IsSign(next);
        words += (words.empty() ? "" : " ") + (letter ? std::string(word) : Spelled(word));
    }
    return words;
}

ReadingNews ReadingWatch::Look(const Stage& stage, std::string_view said) {
    ReadingNews news;
    const Form* const page = stage.front();
    const Control* const focused = stage.focused();
    if (!page) return news;
    news.page = page != page_;
    const std::string lines = "\n" + std::string(said) + "\n";
    std::string value;
    for (const ReadControl& read : ReadPage(*page)) {
        const bool message = read.control->role() == Role::kMessage;
        if (message && lines.find("\n" + read.control->name() + "\n") != std::string::npos)
            news.messages.push_back(read.control);
        if (read.control != focused) continue;
        value = read.value;
        if (focused != focused_) {
            news.focused = read.control;
        } else if (value != value_) {
            news.entered = read.control;
        }
    }
    page_ = page;
    focused_ = focused;
    value_ = value;
    return news;
}

std::vector<ReadControl> ReadPage(const Form& page) {
    std::vector<ReadControl> items;
    for (Control* control : page.InReadingOrder()) {
        if (!control->visible() || control->Stop() != control) continue;
        if (control->arrows() && control->IsStop()) {
            items.push_back({control, KindOf(*control), LineOf(*control, page), ValueOf(*control)});
        } else if (std::string name = NameOf(*control); !name.empty()) {
            items.push_back({control, KindOf(*control), std::move(name), ""});
        }
    }
    return items;
}

}  // namespace onze
