#pragma once

#include <functional>
#include <initializer_list>

#include "forms/drawing.h"

class Form;
class Platform;

// What every visible control of a form has. A control belongs to its form for life; it is neither copied nor
// moved. Every change repaints the places concerned, and only those.
class Control {
  public:
    Control(Form& form, const Rect& box);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

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

    // Where the pointer finds the control, and where it paints.
    virtual Rect Reach() const { return box_; }
    virtual Rect Painted() const { return Reach(); }
    // Whether the pointer can do anything here.
    virtual bool Reacts() const { return visible_ && enabled_ && (on_click || on_move); }
    virtual void Paint(Canvas& canvas) const = 0;

    std::function<void()> on_click;
    std::function<void()> on_move;

  protected:
    Platform& platform() const;
    void Damage() const;

  private:
    Form& form_;
    Rect box_;
    bool visible_ = true;
    bool enabled_ = true;
};

inline void SetAllVisible(bool visible, std::initializer_list<Control*> controls) {
    for (Control* control : controls) control->SetVisible(visible);
}

// A click zone, or a picture drawn at its own size from the top-left corner of its box.
class Image final : public Control {
  public:
    using Control::Control;

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

    bool Reacts() const override { return false; }
    void Paint(Canvas& canvas) const override;

  private:
    Point from_;
    Point to_;
    int width_;
    Color color_;
};
