#include "platform/web/accessible.h"

#include <algorithm>

#include "forms/up_down.h"
#include "platform/web/browser.h"

namespace onze {

AccessiblePage::Element AccessiblePage::ElementOf(const ReadControl& read) const {
    Element element{.read = read,
                    .stop = read.control->IsStop(),
                    .place = program_.view().ToPixels(read.control->HitBox())};
    if (const UpDown* const arrows = read.control->arrows()) {
        element.value = arrows->value();
        element.minimum = arrows->minimum();
        element.maximum = arrows->maximum();
    }
    return element;
}

void AccessiblePage::Send(std::size_t index, const Element& element) {
    const ReadControl& read = element.read;
    const PixelBox& place = element.place;
    browser::ReadControl(index, read.control, static_cast<int>(read.kind), element.stop, read.name.data(),
                         read.name.size(), place.left, place.top, place.width, place.height);
    if (read.kind == ReadControl::Kind::kToEnter)
        browser::ReadAnswer(index, element.value, element.minimum, element.maximum, read.value.data(),
                            read.value.size());
}

void AccessiblePage::Announce(const std::vector<Control*>& messages) const {
    std::string text;
    for (const Element& element : shown_) {
        for (const Control* message : messages) {
            if (element.read.control == message) text += (text.empty() ? "" : " ") + element.read.name;
        }
    }
    if (!text.empty()) browser::Say(text.data(), text.size());
}

void AccessiblePage::Show(std::vector<Element> elements) {
    const auto same = [](const Element& a, const Element& b) {
        return a.read.control == b.read.control && a.read.kind == b.read.kind;
    };
    const bool all = !std::equal(elements.begin(), elements.end(), shown_.begin(), shown_.end(), same);
    if (all) browser::ReadControls(elements.size());
    for (std::size_t i = 0; i < elements.size(); ++i) {
        if (all || elements[i] != shown_[i]) Send(i, elements[i]);
    }
    shown_ = std::move(elements);
}

void AccessiblePage::Tell(const Reaction& reaction) {
    const Stage& stage = program_.stage();
    if (!stage.front() || (reaction.repaint.empty() && reaction.say.empty())) return;
    const ReadingNews news = watch_.Look(stage, reaction.say);
    std::vector<Element> elements;
    int focused = -1;
    for (const ReadControl& read : ReadPage(*stage.front())) {
        if (read.control == stage.focused()) focused = static_cast<int>(elements.size());
        elements.push_back(ElementOf(read));
    }
    Show(std::move(elements));
    browser::FocusOn(focused);
    Announce(news.messages);
}

Control* AccessiblePage::At(std::size_t index) const {
    return index < shown_.size() ? shown_[index].read.control : nullptr;
}

}  // namespace onze
