#include "shell/program.h"

#include "shell/paper.h"
#include "support/run_time_error.h"

namespace onze {

namespace {

constexpr std::uint32_t kHideWindow = 0x80;
constexpr std::uint32_t kShowWindow = 0x40;
constexpr int kNotch = 120;
// As wide and as high as this, in the window, is each target of a finger, where its neighbours leave the
// room.
constexpr double kFingerPixels = 44;

// Takes a step when its block is left, in whatever way.
template <class Step>
class AtEnd {
  public:
    explicit AtEnd(Step step) : step_(step) {}
    AtEnd(const AtEnd&) = delete;
    AtEnd& operator=(const AtEnd&) = delete;
    ~AtEnd() { step_(); }

  private:
    Step step_;
};

}  // namespace

Program::Program(const Host& host, Random& random)
    : host_(host),
      stage_(host.clock, host.text_measure),
      sounds_(host.sound_player),
      display_(host.desktop),
      shared_{.sounds = sounds_, .random = random, .counters = record_.counters},
      view_(kPageWidth / kTwipsPerPixel, kPageHeight / kTwipsPerPixel) {}

Reaction Program::Take(const Event& event) {
    return React([&] { std::visit([this](const auto& happened) { On(happened); }, event); });
}

Reaction Program::Paint(Canvas& canvas, const PixelBox& part) {
    return React([&] { stage_.Paint(canvas, view_.Around(part)); });
}

Reaction Program::PaintOnPaper(Canvas& canvas) {
    return React([&] {
        const Form& page = *stage_.front();
        PaintHead(canvas, host_, &page == &screens_->bilan.form);
        page.Paint(canvas, {0, 0, kPageWidth, kPageHeight});
    });
}

template <class Step>
Reaction Program::React(Step step) {
    if (state_ == Reaction::State::kRuns) {
        try {
            step();
        } catch (const RunTimeError& error) {
            Fail(error.what());
        } catch (const std::exception& error) {
            Fail(std::string("Erreur inattendue : ") + error.what());
        }
    }
    Reaction reaction;
    reaction.state = state_;
    reaction.failure = failure_;
    if (state_ != Reaction::State::kRuns) return reaction;
    const Rect damage = stage_.TakeDamage();
    if (!damage.empty()) reaction.repaint = view_.Around(damage);
    reaction.hand = stage_.ReactsToClickAt(pointer_);
    reaction.wake_at = stage_.NextDue();
    reaction.print = std::exchange(print_, false);
    reaction.say = stage_.TakeMessages();
    return reaction;
}

void Program::Fail(std::string text) {
    state_ = Reaction::State::kFailed;
    failure_ = std::move(text);
}

void Program::On(const event::Started&) {
    record_ = LoadUsageRecord(host_.files);
    MakeScreens();
    screens_->depart.Prepare();
    screens_->leçon.Prepare();
    SavedScreenWidth = static_cast<float>(host_.desktop.ScreenWidthInPixels());
    SavedScreenHeight = static_cast<float>(host_.desktop.ScreenHeightInPixels());
    SetTaskbar(kHideWindow);
    display_.SetDisplayResolution(640, 480);
    screens_->depart.form.Show();
}

void Program::MakeScreens() {
    const ScreenPictures pictures(host_.files, host_.pictures);
    screens_.emplace(stage_, host_, pictures, shared_);
    LoadScreenPictures(pictures, screens_->apprendre.form, "11");
    LoadScreenPictures(pictures, screens_->bilan.form, "12");
    LoadScreenPictures(pictures, screens_->exercices.form, "13");
    LoadScreenPictures(pictures, screens_->leçon.form, "14");
    LoadScreenPictures(pictures, screens_->depart.form, "15");
    LoadScreenPictures(pictures, screens_->pythagore.form, "16");
    screens_->depart.fin.on_click = [this] { fin_Click(); };
}

void Program::On(const event::WindowResized& resized) {
    view_ = PageView(resized.width, resized.height);
    stage_.DamageAll();
}

Point Program::Aim(Pixel at) const {
    const Point point = view_.ToPage(at);
    return finger_ ? stage_.NearestTarget(point, view_.LengthToPage(kFingerPixels)) : point;
}

void Program::On(const event::KeyPressed& pressed) {
    if (pressed.press.key != Key::kPrint) return stage_.Press(pressed.press);
    stage_.CancelPress();
    print_ = !pressed.press.repeated;
}

void Program::On(const event::PointerMoved& moved) {
    pointer_ = view_.ToPage(moved.at);
    stage_.Move(pointer_);
}

void Program::On(const event::PointerPressed& pressed) {
    finger_ = pressed.finger;
    pointer_ = Aim(pressed.at);
    stage_.Press(pointer_, {.pressed_at = pressed.time,
                            .time = pressed.double_click_time,
                            .distance = view_.LengthToPage(pressed.double_click_distance)});
}

void Program::On(const event::PointerReleased& released) {
    pointer_ = Aim(released.at);
    stage_.Release(pointer_);
}

void Program::On(const event::WheelTurned& turned) {
    wheel_turned_ += turned.turn;
    const int notches = wheel_turned_ / kNotch;
    wheel_turned_ %= kNotch;
    if (notches != 0) stage_.Wheel(view_.ToPage(turned.at), notches);
}

// Without a taskbar the call gets no window and does nothing.
void Program::SetTaskbar(std::uint32_t flags) {
    const Desktop::WindowHandle taskbar = host_.desktop.FindWindowA("Shell_traywnd", "");
    host_.desktop.SetWindowPos(taskbar, 0, 0, 0, 0, 0, flags);
}

void Program::fin_Click() {
    sounds_.PlayNavigationSound("5");
    // The machine must be usable, also where the counters could not be saved.
    const AtEnd put_back([this] {
        display_.SetDisplayResolution(SavedScreenWidth, SavedScreenHeight);
        SetTaskbar(kShowWindow);
    });
    SaveUsageRecord(host_.files, record_);
    state_ = Reaction::State::kEnded;
}

}  // namespace onze
