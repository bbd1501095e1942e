#pragma once

#include <optional>

#include "forms/stage.h"
#include "services/display_mode.h"
#include "services/sounds.h"
#include "shell/event.h"
#include "shell/host.h"
#include "shell/screens.h"
#include "stats/usage_record.h"

namespace onze {

// The program from start-up to quit, and its front door: nothing else comes in, and no error gets out.
class Program {
  public:
    Program(const Host& host, Random& random);

    // Once the program has ended or failed nothing changes any more.
    Reaction Take(const Event& event);
    // Paints a part of the window, whose page lies as view() tells.
    Reaction Paint(Canvas& canvas, const PixelBox& part);
    const PageView& view() const { return view_; }
    // Paints the page shown, without the ring of the keys, and its head, on a canvas that has the view of
    // ViewOnPaper.
    Reaction PaintOnPaper(Canvas& canvas);

    // For whoever looks inside. The screens exist once the start succeeded.
    Stage& stage() { return stage_; }
    const Stage& stage() const { return stage_; }
    Screens& screens() { return *screens_; }
    const Counters& counters() const { return record_.counters; }

  private:
    void On(const event::Started&);
    void On(const event::WindowResized& resized);
    void On(const event::TimePassed&) { stage_.RunDue(); }
    void On(const event::PointerMoved& moved);
    void On(const event::PointerPressed& pressed);
    void On(const event::PointerReleased& released);
    void On(const event::PointerLost&) { stage_.CancelPress(); }
    void On(const event::KeyPressed& pressed);
    void On(const event::Used& used) { stage_.Perform(*used.control, used.use, used.text); }
    void On(const event::WheelTurned& turned);

    // The point of the page that was meant.
    Point Aim(Pixel at) const;

    // Takes a step while the program runs; the one place that catches.
    template <class Step>
    Reaction React(Step step);
    void Fail(std::string text);
    void MakeScreens();
    void SetTaskbar(std::uint32_t flags);
    void fin_Click();

    Host host_;
    Stage stage_;
    Sounds sounds_;
    DisplayMode display_;
    UsageRecord record_;
    SharedState shared_;
    std::optional<Screens> screens_;
    PageView view_;
    Point pointer_;
    bool print_ = false;
    bool finger_ = false;   // pressed last
    int wheel_turned_ = 0;  // since the last whole notch
    Reaction::State state_ = Reaction::State::kRuns;
    std::string failure_;
    float SavedScreenWidth = 0;
    float SavedScreenHeight = 0;
};

}  // namespace onze
