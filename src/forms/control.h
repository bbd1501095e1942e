#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <utility>

#include "forms/drawing.h"

namespace onze {

class Form;
class TextMeasure;
class UpDown;

// What a control is to its user.
enum class Role {
    kText,       // to read, whenever
    kHeading,    // names what stands under it
    kMessage,    // what an exercise asks or tells
    kAnswer,     // entered with arrows, and clicked to have it corrected
    kButton,     // clicked, under a caption
    kZone,       // clicked, a part of the page's picture
    kTable,      // of numbers, which its name tells in words
    kRowHeader,  // of a table, clicked
    kColumnHeader,
    kDecoration,  // nothing to anybody but the eye
};

// What every visible control of a form has. A control belongs to its form for life; it is neither copied nor
// moved. Every change repaints the places concerned, and only those.
class Control {
  public:
    Control(Form& form, const Rect& box, Role role);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    Role role() const { return role_; }
    // What tells it in words: its text, or what stands for the text that it has not.
    virtual const std::string& name() const { return name_; }
    void SetName(std::string name) { name_ = std::move(name); }
    const std::string& given_name() const { return name_; }

    const Rect& box() const { return box_; }
    bool visible() const { return visible_; }
    bool enabled() const { return enabled_; }
    void SetBox(const Rect& box);
    void SetLeft(int left) { SetBox({left, box_.top, box_.width, box_.height}); }
    void SetTop(int top) { SetBox({box_.left, top, box_.width, box_.height}); }
    void SetWidth(int width) { SetBox({box_.left, box_.top, width, box_.height}); }
    void SetHeight(int height) { SetBox({box_.left, box_.top, box_.width, height}); }
    void SetVisible(bool visible);
    void Show() { SetVisible(true); }
    void Hide() { SetVisible(false); }
    void SetEnabled(bool enabled);

    // Where the pointer finds the control, and what all its painting lies in.
    virtual Rect HitBox() const { return box_; }
    virtual Rect PaintedBox() const { return HitBox(); }
    // Whether the pointer finds it, and whether a click on it, at this point, would do something now.
    virtual bool TakesPointer() const { return visible_ && enabled_ && (on_click || on_move); }
    virtual bool TakesClicks() const { return on_click != nullptr; }
    virtual bool TakesClickAt(Point) const { return TakesClicks(); }
    virtual void Paint(Canvas& canvas) const = 0;

    // Whether the focus can stand on it: it can be used now. What belongs to another stop is none.
    virtual bool IsStop() const { return TakesPointer() && TakesClicks(); }
    // The stop that it belongs to, and the arrows that enter it, if any do.
    virtual const Control* Stop() const { return this; }
    Control* Stop() { return const_cast<Control*>(std::as_const(*this).Stop()); }
    virtual UpDown* arrows() const { return nullptr; }

    // The pointer's button went down here; tells whether the press goes on by itself while it is held. Then
    // it is repeated, wherever the pointer is by then. Each press is ended.
    virtual bool BeginPress(Point) { return false; }
    virtual void RepeatPress(Point) {}
    // The pointer moved while it is held, over the control or off it.
    virtual void MovePress(bool) {}
    virtual void EndPress() {}
    // The wheel was turned by whole notches (positive: away from the user); tells whether that was meant for
    // it.
    virtual bool TurnWheel(Point, int) { return false; }

    std::function<void()> on_click;
    std::function<void()> on_move;

  protected:
    TextMeasure& text_measure() const;
    void Damage() const;
    // Has a message told to whoever cannot see it.
    void Tell(const std::string& message) const;

  private:
    Form& form_;
    Rect box_;
    Role role_;
    std::string name_;
    bool visible_ = true;
    bool enabled_ = true;
};

inline void SetAllVisible(bool visible, std::initializer_list<Control*> controls) {
    for (Control* control : controls) control->SetVisible(visible);
}

// A click zone, or a picture drawn at its own size from the top-left corner of its box.
class Image final : public Control {
  public:
    Image(Form& form, const Rect& box, Role role = Role::kZone) : Control(form, box, role) {}

    const PicturePtr& picture() const { return picture_; }
    // A null picture empties the image.
    void SetPicture(PicturePtr picture);
    void Paint(Canvas& canvas) const override;

  private:
    PicturePtr picture_;
};

// A decoration that no pointer finds.
class Line final : public Control {
  public:
    Line(Form& form, Point from, Point to, int width, Color color);

    bool TakesPointer() const override { return false; }
    void Paint(Canvas& canvas) const override;

  private:
    Point from_;
    Point to_;
    int width_;
    Color color_;
};

}  // namespace onze
