#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/key.h"

namespace onze {

// Where the keys go: a control of the page shown. A ring around it shows from the first key on, until the
// pointer is used again. When the control can no longer be used the focus goes where a child would go next,
// and comes back when it can be used again before another key.
class Focus {
  public:
    explicit Focus(Stage& stage) : stage_(stage) {}

    void Press(const KeyPress& press);
    // Takes the focus to a control and uses it; in vain where it is no stop. A text is entered as a whole.
    void Perform(Control& control, Use use, std::string_view text);
    // The pointer is used: on this control, or just so.
    void YieldToPointer(Control* control);
    // Looks for its place anew, after anything that may have changed the page.
    void Follow();

    // The control with the ring, or null.
    Control* shown() const { return shown_ ? at_ : nullptr; }
    // The ring's outer bounds; empty while there is none.
    Rect Ring() const;
    void Paint(Canvas& canvas) const;

    void Forget(const Form& form);
    void Forget(const Control& control);

  private:
    using Stops = std::vector<Control*>;

    void BeginPage();
    Stops StopsOfPage() const;
    Control* HeirOf(Control& lost, const Stops& stops) const;
    Control* Neighbour(Key direction) const;
    void MoveTo(Control* control);
    void MoveBy(int stops);
    void Click(Control& control);
    void Escape();
    void Enter(const KeyPress& press, UpDown& arrows);
    void Type(const KeyPress& press, UpDown& arrows);
    void Hover() const;

    Stage& stage_;
    std::map<const Form*, Control*> wanted_;  // by the last key or press on each page
    const Form* page_ = nullptr;
    Control* at_ = nullptr;
    bool shown_ = false;
    std::string typed_;  // so far
    std::int64_t typed_at_ = 0;
};

}  // namespace onze
