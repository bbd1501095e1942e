#pragma once

#include <cstddef>
#include <deque>

#include "forms/geometry.h"

namespace onze {

class Form;

// Controls of one kind that are addressed by index; box_of(i) is the box of member i.
template <class Kind>
class ControlArray {
  public:
    template <class BoxOf, class... Rest>
    ControlArray(Form& form, int count, BoxOf box_of, const Rest&... rest) {
        for (int i = 0; i < count; ++i) members_.emplace_back(form, box_of(i), rest...);
    }

    Kind& operator[](int i) { return members_.at(static_cast<std::size_t>(i)); }
    const Kind& operator[](int i) const { return members_.at(static_cast<std::size_t>(i)); }
    int size() const { return static_cast<int>(members_.size()); }
    auto begin() { return members_.begin(); }
    auto end() { return members_.end(); }

  private:
    std::deque<Kind> members_;
};

}  // namespace onze
