#pragma once

#include <functional>
#include <vector>

#include "forms/control.h"
#include "forms/timer.h"

namespace onze {

class Stage;

// A page of 640 x 480 pixels: a background picture under controls that are painted, and found by the pointer,
// in the order of their declaration, the last on top. It is created hidden.
class Form {
  public:
    explicit Form(Stage& stage);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    ~Form();

    Stage& stage() const { return stage_; }
    bool visible() const;
    // Shows the form over the others and, each time, activates it.
    void Show();
    void Hide();

    const PicturePtr& picture() const { return picture_; }
    void SetPicture(PicturePtr picture);

    void Paint(Canvas& canvas, const Rect& clip) const;
    // The topmost control that reacts at a point, or null.
    Control* ControlAt(Point point) const;
    const std::vector<Control*>& controls() const { return controls_; }

    // The parts of the page in which it is read, one after the other; what lies in none comes last.
    void SetReadingAreas(std::vector<Rect> areas) { areas_ = std::move(areas); }
    std::vector<Control*> InReadingOrder() const;
    // The place of a point among them.
    std::size_t AreaAt(Point point) const;
    // What leads back to the page before; null where there is none.
    Control* back() const { return back_; }
    void SetBack(Control& back) { back_ = &back; }

    std::function<void()> on_activate;
    // The pointer moved over the page where no control reacts.
    std::function<void()> on_move;

  private:
    friend class Control;
    void Add(Control& control) { controls_.push_back(&control); }
    void Remove(Control& control);
    void Damage(const Rect& box) const;
    void Tell(const std::string& message) const;

    Stage& stage_;
    PicturePtr picture_;
    std::vector<Control*> controls_;
    std::vector<Rect> areas_;
    Control* back_ = nullptr;
};

}  // namespace onze
