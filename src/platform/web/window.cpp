#include "platform/web/window.h"

#include <algorithm>

#include "forms/ground.h"
#include "platform/web/browser.h"
#include "platform/web/canvas.h"
#include "shell/paper.h"

namespace onze {

void Window::Follow(const Reaction& reaction) {
    if (reaction.state == Reaction::State::kEnded) return browser::End();
    if (reaction.state == Reaction::State::kFailed)
        return browser::Fail(reaction.failure.data(), reaction.failure.size());
    const PixelBox& page = program_.view().page();
    if (page != page_) browser::PlacePage(page.left, page.top, page.width, page.height);
    page_ = page;
    const PixelBox& part = reaction.repaint;
    if (!part.empty()) browser::Repaint(part.left, part.top, part.width, part.height);
    accessible_.Tell(reaction);
    if (reaction.hand != hand_) browser::ShowHand(reaction.hand);
    hand_ = reaction.hand;
    const std::int64_t now = host_.clock.TickCount();
    browser::WakeIn(reaction.wake_at ? static_cast<double>(std::max<std::int64_t>(0, *reaction.wake_at - now))
                                     : -1);
    if (reaction.print) browser::PrintPage();
}

void Window::Paint(const PixelBox& part) {
    const PixelBox& page = program_.view().page();
    browser::ClipTo(part.left, part.top, part.width, part.height);
    for (const auto& [box, color] : GroundIn(program_.view(), part)) FillPixels(box, color);
    browser::ClipTo(page.left, page.top, page.width, page.height);
    WebCanvas canvas(program_.view());
    const Reaction reaction = program_.Paint(canvas, part);
    browser::Unclip();
    browser::Unclip();
    Follow(reaction);
}

void Window::PaintOnPaper(int width, int height) {
    WebCanvas canvas(ViewOnPaper(width, height));
    Follow(program_.PaintOnPaper(canvas));
}

void Window::Use(std::size_t index, onze::Use use) {
    if (Control* const control = accessible_.At(index)) Take(event::Used{control, use});
}

// As if the pointer had gone far away, which takes the ring away, too.
void Window::Leave() {
    Take(event::PointerLost());
    Take(event::PointerMoved{{-kPageWidth, -kPageHeight}});
}

}  // namespace onze
